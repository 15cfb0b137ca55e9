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

Feat Ledger::NewFeat(FeatKind kind, Day on, int promotionUid, int number) const {
  Feat feat{};
  feat.Kind = kind;
  feat.On = on;
  feat.Promotion = promotionUid;
  feat.Initials = InitialsOf(promotionUid);
  feat.Number = number;
  return feat;
}

bool Ledger::Wants(int kind, int promotionUid, int number) const {
  const auto held = feats_.find({kind, promotionUid});
  if (held == feats_.end() || held->second.size() < kFeatsKept) return true;
  Feat feat{};
  feat.Kind = kind;
  feat.Number = number;
  return std::ranges::any_of(held->second,
                             [&](std::size_t at) { return WorthOf(Feats[at]) < WorthOf(feat); });
}

/// One that is known already takes its new number.
void Ledger::Offer(const Feat& feat) {
  auto& held = feats_[{feat.Kind, feat.Promotion}];
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
  const bool wanted = Wants(kFeatMatch, bout.Promotion, bout.Rating);
  const bool forYear = LinesAbove(line) < kYearMatches;
  if (!wanted && !forYear) return;
  const bool teams = bout.Style == kTag;
  const auto uid = [&](std::size_t at) { return at < bout.People.size() ? bout.People[at] : 0; };
  Feat feat = NewFeat(kFeatMatch, bout.On, bout.Promotion, bout.Rating);
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
  line.Initials = InitialsOf(promotionUid);
  line.Number = number;
  line.Who = who;
  line.What = what;
  return line;
}

/// Lines lie in the order of their years.
void Ledger::SortLines() {
  const auto year = [](const YearLine& line) { return int(line.Year); };
  if (!std::ranges::is_sorted(Lines, {}, year)) std::ranges::stable_sort(Lines, {}, year);
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
    Lines.push_back(line);
  else if (least->Number < line.Number)
    *least = line;
}

void Ledger::Prune() {
  std::vector<std::pair<int, int>> gone;  // points and number
  const std::vector<int> points = PointsOfAll(*this);
  for (std::size_t i = 0; i < Careers.size(); ++i)
    if (Careers[i].Worker == 0 && Careers[i].Elected == 0)
      gone.emplace_back(points[i], Careers[i].Number);
  if (gone.size() > kGoneKept) {
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
  if (Pairs.size() > kPairsKept) {
    std::ranges::stable_sort(Pairs, std::greater{}, [](const Partnership& pair) {
      return std::tuple(int(pair.Days), pair.Won + pair.Lost + pair.Drawn, Day(pair.Last));
    });
    Pairs.resize(kPairsKept);
  }
  const std::size_t ofClosed = Feats.size() > kMostFeats ? 1 : kFeatsOfClosed;
  std::vector<Feat> kept;
  for (const auto& [key, places] : feats_) {
    std::vector<std::size_t> best = places;
    std::ranges::stable_sort(best, std::greater{},
                             [&](std::size_t at) { return WorthOf(Feats[at]); });
    if (!world_.FindPromotion(key.second)) best.resize(std::min(best.size(), ofClosed));
    for (const std::size_t at : best) kept.push_back(Feats[at]);
  }
  Feats = std::move(kept);
  const int first = YearOf(world_.Today()) - kYearsKept;
  std::erase_if(Lines, [=](const YearLine& line) { return line.Year < first; });
}

}  // namespace grapplemont
