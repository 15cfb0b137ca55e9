#include <algorithm>
#include <functional>
#include <tuple>

#include "halls/hall.h"
#include "halls/ledger.h"
#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "records/segments.h"

// What stands among the best of its kind, and what is let go of.

namespace grapplemont {

namespace {

/// So many of a kind are kept for a promotion, and for one that has closed.
constexpr std::size_t kFeatsKept = 15, kFeatsOfClosed = 3;
constexpr std::size_t kYearMatches = 5;
constexpr std::size_t kGoneKept = 2000, kPairsKept = 2000, kMostFeats = 7000;
constexpr int kYearsKept = 150;

/// What a file may hold with room for another year.
template <class T>
std::size_t WithRoom() {
  return static_cast<std::size_t>(LayoutOf<T>().Limit) / 10 * 9;
}

/// The higher, the better.
std::int64_t WorthOf(const Feat& feat) {
  const std::int64_t number = int(feat.Number);
  return feat.Kind == kFeatYoungest ? -number : number;
}

bool IsTheSame(const Feat& one, const Feat& other) {
  return Day(one.On) == Day(other.On) && one.Who == other.Who && one.Against == other.Against &&
         one.What == other.What;
}

std::string NameOfSide(const World& world, int one, int two) {
  if (one == 0) return two == 0 ? "somebody who has left" : WorkerName(world, two);
  return two == 0 ? WorkerName(world, one) : PairName(world, one, two);
}

}  // namespace

Feat Ledger::NewFeat(FeatKind kind, Day on, const HouseKey& house, int number) {
  Feat feat{};
  feat.Kind = kind;
  feat.On = on;
  feat.Promotion = house.Uid;
  feat.Initials = house.Initials;
  feat.Number = number;
  return feat;
}

bool Ledger::Wants(int kind, const HouseKey& house, int number) const {
  const auto held = feats_.find({kind, house});
  if (held == feats_.end() || held->second.size() < kFeatsKept) return true;
  Feat feat{};
  feat.Kind = kind;
  feat.Number = number;
  return std::ranges::any_of(held->second,
                             [&](std::size_t at) { return WorthOf(Feats[at]) < WorthOf(feat); });
}

/// One that is known already takes its new number.
void Ledger::Offer(const Feat& feat) {
  auto& held = feats_[{feat.Kind, {feat.Promotion, feat.Initials.Str()}}];
  for (const std::size_t at : held)
    if (IsTheSame(Feats[at], feat)) {
      Feats[at].Number = int(feat.Number);
      return;
    }
  if (held.size() < kFeatsKept) {
    held.push_back(Feats.size());
    Feats.push_back(feat);
    return;
  }
  const auto least =
      std::ranges::min_element(held, {}, [&](std::size_t at) { return WorthOf(Feats[at]); });
  if (WorthOf(Feats[*least]) < WorthOf(feat)) Feats[*least] = feat;
}

void Ledger::OfferMatch(const Bout& bout) {
  YearLine line = NewLine(kYearMatch, YearOf(bout.On), bout.Promotion, bout.Rating, {});
  const HouseKey house = HouseOf(bout.Promotion);
  const bool wanted = Wants(kFeatMatch, house, bout.Rating);
  const bool forYear = LinesAbove(line) < kYearMatches;
  if (!wanted && !forYear) return;
  const bool teams = bout.Style == kTag;
  const auto uid = [&](std::size_t at) { return at < bout.People.size() ? bout.People[at] : 0; };
  Feat feat = NewFeat(kFeatMatch, bout.On, house, bout.Rating);
  const std::string won = !bout.Won.empty() ? std::string(bout.Won)
                          : teams           ? NameOfSide(world_, uid(0), uid(1))
                                            : NameOfSide(world_, uid(0), 0);
  const std::string lost = !bout.Lost.empty() ? std::string(bout.Lost)
                           : teams            ? NameOfSide(world_, uid(2), uid(3))
                                              : NameOfSide(world_, uid(1), 0);
  feat.Who = won;
  feat.Against = lost;
  feat.What = bout.Title.empty() ? bout.Show : bout.Title;
  if (const int place = PlaceOfUid(uid(0)); place >= 0)
    feat.Career = int(Careers[static_cast<std::size_t>(place)].Number);
  if (wanted) Offer(feat);
  line.Who = won + (bout.Winners > 0 ? " beat " : " drew with ") + lost;
  line.What =
      PlainDate(bout.On) + (bout.Title.empty() ? "" : ", for the " + std::string(bout.Title));
  line.Career = int(feat.Career);
  OfferLine(line, kYearMatches);
}

YearLine Ledger::NewLine(YearLineKind kind, int year, int promotionUid, int number,
                         std::string_view who, std::string_view what) const {
  YearLine line{};
  line.Year = year;
  line.Kind = kind;
  line.Promotion = promotionUid;
  line.Initials = HouseOf(promotionUid).Initials;
  line.Number = number;
  line.Who = who;
  line.What = what;
  return line;
}

void Ledger::AddLine(const YearLine& line) {
  Lines.insert(std::ranges::upper_bound(Lines, int(line.Year), {},
                                        [](const YearLine& other) { return int(other.Year); }),
               line);
}

std::size_t Ledger::LinesAbove(const YearLine& line) const {
  std::size_t above = 0;
  for (auto other = Lines.rbegin(); other != Lines.rend() && other->Year >= line.Year; ++other)
    if (other->Year == line.Year && other->Kind == line.Kind && other->Number >= line.Number)
      ++above;
  return above;
}

void Ledger::OfferLine(const YearLine& line, std::size_t most) {
  YearLine* least = nullptr;
  std::size_t held = 0;
  for (auto other = Lines.rbegin(); other != Lines.rend() && other->Year >= line.Year; ++other) {
    if (other->Year != line.Year || other->Kind != line.Kind) continue;
    if (other->Who == line.Who && other->What == line.What) return;
    ++held;
    if (!least || other->Number < least->Number) least = &*other;
  }
  if (held < most)
    AddLine(line);
  else if (least->Number < line.Number)
    *least = line;
}

void Ledger::Prune() {
  PruneCareers();
  PruneTenures();
  PrunePairs();
  PruneFeats();
  PruneLines();
  isPruned_ = true;
}

void Ledger::PruneCareers() {
  std::vector<std::pair<int, int>> gone;  // points and number
  const std::vector<int> points = PointsOfAll(*this);
  for (std::size_t i = 0; i < Careers.size(); ++i)
    if (!world_.FindWorker(Careers[i].Worker) && Careers[i].Elected == 0)
      gone.emplace_back(points[i], Careers[i].Number);
  if (gone.size() <= kGoneKept) return;
  std::ranges::sort(gone);
  gone.resize(gone.size() - kGoneKept);
  std::vector<int> dropped;
  for (const auto& [worth, number] : gone) dropped.push_back(number);
  std::ranges::sort(dropped);
  const auto isDropped = [&](int number) { return std::ranges::binary_search(dropped, number); };
  std::erase_if(Careers, [&](const Career& career) { return isDropped(career.Number); });
  std::erase_if(Tenures, [&](const Tenure& tenure) { return isDropped(tenure.Career); });
  std::erase_if(
      Pairs, [&](const Partnership& pair) { return isDropped(pair.One) || isDropped(pair.Two); });
}

/// The shortest that are over go first.
void Ledger::PruneTenures() {
  const std::size_t most = WithRoom<Tenure>();
  if (Tenures.size() <= most) return;
  const auto runs = [&](const Tenure& tenure) {
    const int place = PlaceOf(tenure.Career);
    const Worker* worker =
        place < 0 ? nullptr : world_.FindWorker(Careers[static_cast<std::size_t>(place)].Worker);
    return worker && worker->Employer == tenure.Promotion;
  };
  std::ranges::stable_sort(Tenures, std::greater{}, [&](const Tenure& tenure) {
    return std::tuple(runs(tenure), int(tenure.Reigns), int(tenure.Months),
                      tenure.Won + tenure.Lost + tenure.Drawn);
  });
  Tenures.resize(most);
}

void Ledger::PrunePairs() {
  if (Pairs.size() <= kPairsKept) return;
  std::ranges::stable_sort(Pairs, std::greater{}, [](const Partnership& pair) {
    return std::tuple(int(pair.Days), pair.Won + pair.Lost + pair.Drawn, Day(pair.Last));
  });
  Pairs.resize(kPairsKept);
}

/// Of those of closed promotions the latest stay where there is no room for all.
void Ledger::PruneFeats() {
  const std::size_t ofClosed = Feats.size() > kMostFeats ? 1 : kFeatsOfClosed;
  std::vector<Feat> kept, closed;
  for (const auto& [key, places] : feats_) {
    std::vector<std::size_t> best = places;
    std::ranges::stable_sort(best, std::greater{},
                             [&](std::size_t at) { return WorthOf(Feats[at]); });
    const bool stands = Stands(key.second);
    if (!stands) best.resize(std::min(best.size(), ofClosed));
    for (const std::size_t at : best) (stands ? kept : closed).push_back(Feats[at]);
  }
  const std::size_t room = kMostFeats - std::min(kept.size(), kMostFeats);
  if (closed.size() > room) {
    std::ranges::stable_sort(closed, std::greater{}, [](const Feat& feat) { return Day(feat.On); });
    closed.resize(room);
  }
  kept.insert(kept.end(), closed.begin(), closed.end());
  Feats = std::move(kept);
}

void Ledger::PruneLines() {
  int first = YearOf(world_.Today()) - kYearsKept;
  if (const std::size_t most = WithRoom<YearLine>(); Lines.size() > most)
    first = std::max(first, Lines[Lines.size() - most - 1].Year + 1);
  std::erase_if(Lines, [=](const YearLine& line) { return line.Year < first; });
}

}  // namespace grapplemont
