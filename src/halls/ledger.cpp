#include "halls/ledger.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "storylines/lineages.h"

namespace grapplemont {

namespace {

/// With room for what a month brings, so that the first new one does not move thousands.
template <class T>
std::vector<T> AllOf(const World& world) {
  const Records<T>& held = world.Of<T>();
  const auto count = static_cast<std::size_t>(held.Count());
  std::vector<T> all;
  all.reserve(count + count / 16 + 64);
  all.assign(held.begin(), held.end());
  return all;
}

long long KeyOfPair(int one, int two) {
  return (static_cast<long long>(one) << 32) | static_cast<unsigned>(two);
}

/// Most records stay as they are from month to month.
template <class T>
void KeepChanged(Records<T>& file, const std::vector<T>& records) {
  const auto held = static_cast<std::size_t>(file.Count());
  for (std::size_t i = 0; i < held; ++i) {
    const int number = static_cast<int>(i) + 1;
    if (std::memcmp(&std::as_const(file)[number], &records[i], sizeof(T)) != 0)
      file.Change(number) = records[i];
  }
  for (std::size_t i = held; i < records.size(); ++i) file.Append(records[i]);
}

template <class T>
bool Holds(const std::vector<T>& records) {
  return static_cast<int>(records.size()) <= LayoutOf<T>().Limit;
}

}  // namespace

Ledger::Ledger(const World& world) : world_(world), byUid_(FreeUids::kHighest + 1, -1) {
  const auto& states = world.Of<TotalsState>();
  if (states.Count() == 0 || states[1].Version != kTotalsVersion) {
    Begin();
    return;
  }
  State = states[1];
  Careers = AllOf<Career>(world);
  Tenures = AllOf<Tenure>(world);
  Pairs = AllOf<Partnership>(world);
  Feats = AllOf<Feat>(world);
  Lines = AllOf<YearLine>(world);
  Index();
}

/// Nobody knows how far totals without their state had come: they would count again what is in
/// them.
void Ledger::Begin() {
  const Day start = world_.Game().StartDate;
  isFirst_ = true;
  State.Version = kTotalsVersion;
  State.Counted = start;
  // A game that is past its first month is older than its totals.
  const bool isNew =
      world_.Today() <= start || world_.Today() <= NextFirst(start + std::chrono::days{1});
  State.Since = isNew ? start : world_.Today();
  for (const HallMember& member : world_.Of<HallMember>())
    State.LastCareer = std::max<int>(State.LastCareer, member.Career);
}

void Ledger::Index() {
  std::ranges::stable_sort(Careers, {}, [](const Career& career) { return int(career.Number); });
  for (std::size_t i = 0; i < Careers.size(); ++i) {
    State.LastCareer = std::max<int>(State.LastCareer, Careers[i].Number);
    if (const int uid = Careers[i].Worker; uid > 0)
      byUid_[static_cast<std::size_t>(uid)] = static_cast<int>(i);
  }
  lastTenure_.assign(Careers.size(), -1);
  for (const Tenure& tenure : Tenures) {
    const int place = PlaceOf(tenure.Career), number = static_cast<int>(tenureBefore_.size());
    tenureBefore_.push_back(place < 0 ? -1 : lastTenure_[static_cast<std::size_t>(place)]);
    if (place >= 0) lastTenure_[static_cast<std::size_t>(place)] = number;
  }
  pairs_.reserve(Pairs.capacity());
  for (std::size_t i = 0; i < Pairs.size(); ++i)
    pairs_.emplace(KeyOfPair(Pairs[i].One, Pairs[i].Two), static_cast<int>(i));
  for (std::size_t i = 0; i < Feats.size(); ++i)
    feats_[{Feats[i].Kind, {Feats[i].Promotion, Feats[i].Initials.Str()}}].push_back(i);
  const auto year = [](const YearLine& line) { return int(line.Year); };
  if (!std::ranges::is_sorted(Lines, {}, year)) std::ranges::stable_sort(Lines, {}, year);
}

int Ledger::PlaceOf(int career) const {
  const auto found = std::ranges::lower_bound(Careers, career, {},
                                              [](const Career& held) { return int(held.Number); });
  return found == Careers.end() || found->Number != career
             ? -1
             : static_cast<int>(found - Careers.begin());
}

int Ledger::PlaceOfUid(int uid) const {
  return uid < 1 || uid > FreeUids::kHighest ? -1 : byUid_[static_cast<std::size_t>(uid)];
}

int Ledger::Meet(int uid, Day on) {
  if (const int place = PlaceOfUid(uid); place >= 0) return place;
  const Worker* worker = world_.FindWorker(uid);
  if (!worker) return -1;
  Career career{};
  career.Number = ++State.LastCareer;
  career.Worker = uid;
  career.Name = worker->Name;
  career.Gender = bool(worker->Gender);
  career.First = SeenOn(on);
  career.Last = career.PeakOn = kNoTitleDate;
  if (isFirst_) career.Elected = ElectedAs(worker->Name);
  Careers.push_back(career);
  lastTenure_.push_back(-1);
  return byUid_[static_cast<std::size_t>(uid)] = static_cast<int>(Careers.size()) - 1;
}

/// Members of the hall outlast the careers that brought them there.
int Ledger::ElectedAs(std::string_view name) const {
  for (const HallMember& member : world_.Of<HallMember>())
    if (member.Name == name) return YearOf(member.On);
  return 0;
}

Tenure& Ledger::With(int career, const HouseKey& house, Day on) {
  const auto at = static_cast<std::size_t>(career);
  for (int i = lastTenure_[at]; i >= 0; i = tenureBefore_[static_cast<std::size_t>(i)]) {
    Tenure& known = Tenures[static_cast<std::size_t>(i)];
    if (known.Promotion == house.Uid && known.Initials == house.Initials) return known;
  }
  Tenure fresh{};
  fresh.Career = int(Careers[at].Number);
  fresh.Promotion = house.Uid;
  fresh.Initials = house.Initials;
  fresh.First = fresh.Last = SeenOn(on);
  tenureBefore_.push_back(lastTenure_[at]);
  lastTenure_[at] = static_cast<int>(Tenures.size());
  return Tenures.emplace_back(fresh);
}

Partnership* Ledger::PairOf(int uid, int otherUid, Day on) {
  const int a = Meet(uid, on), b = Meet(otherUid, on);
  if (a < 0 || b < 0 || a == b) return nullptr;
  const auto [one, two] = std::minmax({int(Careers[static_cast<std::size_t>(a)].Number),
                                       int(Careers[static_cast<std::size_t>(b)].Number)});
  const auto [at, isNew] = pairs_.emplace(KeyOfPair(one, two), static_cast<int>(Pairs.size()));
  if (isNew) {
    Partnership fresh{};
    fresh.One = one;
    fresh.Two = two;
    fresh.First = fresh.Last = kNoTitleDate;
    Pairs.push_back(fresh);
  }
  Partnership& pair = Pairs[static_cast<std::size_t>(at->second)];
  if (const std::string team = TeamNameOf(world_, uid, otherUid); team != "None") pair.Team = team;
  return &pair;
}

/// Whoever is there when counting begins has been there before; what the files still tell of a time
/// before that was seen when it was.
Day Ledger::SeenOn(Day on) const {
  return isFirst_ ? std::min(on, Day(State.Since)) : on;
}

Day Ledger::KnownFrom() const {
  Day first = State.Since;
  for (const Career& career : Careers)
    if (Day(career.First) > kNoTitleDate) first = std::min(first, Day(career.First));
  return first;
}

/// One that has gone since, as it was called.
HouseKey Ledger::HouseOf(int promotionUid) const {
  if (const Promotion* promotion = world_.FindPromotion(promotionUid))
    return {promotionUid, promotion->Initials.Str()};
  for (auto tenure = Tenures.rbegin(); tenure != Tenures.rend(); ++tenure)
    if (tenure->Promotion == promotionUid) return {promotionUid, tenure->Initials.Str()};
  return {promotionUid, {}};
}

bool Ledger::Stands(const HouseKey& house) const {
  const Promotion* promotion = world_.FindPromotion(house.Uid);
  return promotion && promotion->Initials == house.Initials;
}

void Ledger::CountUntil(Day until) {
  for (const auto count : {&Ledger::CountCards, &Ledger::CountHeld, &Ledger::CountReigns,
                           &Ledger::CountShows, &Ledger::CountDeeds})
    (this->*count)(until);
  CountFeuds();
  State.Counted = std::max(until, Day(State.Counted));
}

void Ledger::CountMonth() {
  for (const Worker& worker : world_.Workers()) {
    const int place =
        worker.Employer != 0 ? Meet(worker.Uid, world_.Today()) : PlaceOfUid(worker.Uid);
    if (place < 0) continue;
    Career& career = Careers[static_cast<std::size_t>(place)];
    career.Name = worker.Name;
    if (worker.Over >= kTopOver) ++career.Top;
    if (worker.Status == "Inj") ++career.Hurt;
    if (worker.Over > career.Peak) {
      career.Peak = int(worker.Over);
      career.PeakOn = world_.Today();
    }
    if (worker.Employer == 0) continue;
    Tenure& tenure = With(place, HouseOf(worker.Employer), world_.Today());
    ++tenure.Months;
    tenure.Last = world_.Today();
    tenure.Wage = std::max<int>(tenure.Wage, worker.Wage);
  }
}

void Ledger::CountYear() {
  const int year = YearOf(world_.Today());
  for (const YearEnd& before : world_.YearEnds()) {
    const Worker* worker = world_.FindWorker(before.Worker);
    const int place = worker ? PlaceOfUid(before.Worker) : -1;
    if (place < 0) continue;
    Career& career = Careers[static_cast<std::size_t>(place)];
    const int change = worker->Over - before.Over;
    if (change > career.Rise) {
      career.Rise = change;
      career.RiseYear = year;
    }
    if (-change > career.Fall) {
      career.Fall = -change;
      career.FallYear = year;
    }
  }
  for (const YearAward& award : world_.Awards()) {
    if (Day(award.On) != world_.Today() || award.Kind < 1 || award.Kind > kAwardKinds) continue;
    for (const int uid : {int(award.Worker), int(award.Partner)})
      if (const int place = PlaceOfUid(uid); place >= 0)
        ++Careers[static_cast<std::size_t>(place)].Awards[static_cast<std::size_t>(award.Kind - 1)];
  }
}

bool Ledger::Fits() const {
  return Holds(Careers) && Holds(Tenures) && Holds(Pairs) && Holds(Feats) && Holds(Lines);
}

void Ledger::Keep(World& world) {
  if (!Fits()) Prune();
  const bool whole = isFirst_ || isPruned_;
  const auto keep = [&]<class T>(const std::vector<T>& records) {
    Records<T>& file = world.Of<T>();
    if (whole || static_cast<int>(records.size()) < file.Count())
      file.Rewrite(records);
    else
      KeepChanged(file, records);
  };
  world.Of<TotalsState>().Rewrite({State});
  keep(Careers);
  keep(Tenures);
  keep(Pairs);
  keep(Feats);
  keep(Lines);
}

Ledger PastOf(const World& world) {
  Ledger ledger(world);
  ledger.CountUntil(world.Today());
  return ledger;
}

void CountThePast(World& world) {
  UpdateReigns(world);  // what the last day changed is not in them yet
  if (world.Session.CountsNoPast) return;
  Ledger ledger(world);
  ledger.CountUntil(world.Today());
  ledger.CountMonth();
  ledger.Keep(world);
}

}  // namespace grapplemont
