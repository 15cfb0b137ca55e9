#include "halls/ledger.h"

#include <algorithm>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "records/segments.h"

namespace grapplemont {

namespace {

template <class T>
std::vector<T> AllOf(const World& world) {
  return {world.Of<T>().begin(), world.Of<T>().end()};
}

long long KeyOfPair(int one, int two) {
  return (static_cast<long long>(one) << 32) | static_cast<unsigned>(two);
}

}  // namespace

Ledger::Ledger(const World& world)
    : Careers(AllOf<Career>(world)),
      Tenures(AllOf<Tenure>(world)),
      Pairs(AllOf<Partnership>(world)),
      Feats(AllOf<Feat>(world)),
      Lines(AllOf<YearLine>(world)),
      world_(world),
      byUid_(FreeUids::kHighest + 1, -1) {
  const auto& states = world.Of<TotalsState>();
  if (states.Count() > 0) State = states[1];
  if (State.Version != kTotalsVersion) {
    State.Version = kTotalsVersion;
    State.Since = State.Counted = Day(world.Game().StartDate);
  }
  began_ = State.Counted;
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
  for (std::size_t i = 0; i < Pairs.size(); ++i)
    pairs_.emplace(KeyOfPair(Pairs[i].One, Pairs[i].Two), static_cast<int>(i));
  for (std::size_t i = 0; i < Feats.size(); ++i)
    feats_[{Feats[i].Kind, Feats[i].Promotion}].push_back(i);
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
  Careers.push_back(career);
  lastTenure_.push_back(-1);
  return byUid_[static_cast<std::size_t>(uid)] = static_cast<int>(Careers.size()) - 1;
}

Tenure& Ledger::With(int career, int promotionUid, Day on) {
  const auto at = static_cast<std::size_t>(career);
  const std::string initials = InitialsOf(promotionUid);
  for (int i = lastTenure_[at]; i >= 0; i = tenureBefore_[static_cast<std::size_t>(i)]) {
    Tenure& known = Tenures[static_cast<std::size_t>(i)];
    if (known.Promotion == promotionUid && known.Initials == initials) return known;
  }
  Tenure fresh{};
  fresh.Career = int(Careers[at].Number);
  fresh.Promotion = promotionUid;
  fresh.Initials = initials;
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

/// Whoever is there when counting begins has been there before.
Day Ledger::SeenOn(Day on) const {
  return began_ == Day(State.Since) ? began_ : on;
}

/// Of one that has gone since, as it was called.
std::string Ledger::InitialsOf(int promotionUid) const {
  if (const Promotion* promotion = world_.FindPromotion(promotionUid))
    return promotion->Initials.Str();
  for (auto tenure = Tenures.rbegin(); tenure != Tenures.rend(); ++tenure)
    if (tenure->Promotion == promotionUid) return tenure->Initials.Str();
  return {};
}

void Ledger::CountUntil(Day until) {
  for (const auto count : {&Ledger::CountCards, &Ledger::CountHeld, &Ledger::CountReigns,
                           &Ledger::CountShows, &Ledger::CountDeeds}) {
    (this->*count)(until);
    SortLines();
  }
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
    Tenure& tenure = With(place, worker.Employer, world_.Today());
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

void Ledger::Keep(World& world) {
  world.Of<TotalsState>().Rewrite({State});
  world.Of<Career>().Rewrite(Careers);
  world.Of<Tenure>().Rewrite(Tenures);
  world.Of<Partnership>().Rewrite(Pairs);
  world.Of<Feat>().Rewrite(Feats);
  world.Of<YearLine>().Rewrite(Lines);
}

Ledger PastOf(const World& world) {
  Ledger ledger(world);
  ledger.CountUntil(world.Today());
  return ledger;
}

void CountThePast(World& world) {
  Ledger ledger(world);
  ledger.CountUntil(world.Today());
  ledger.CountMonth();
  ledger.Keep(world);
}

}  // namespace grapplemont
