#include "futures/spread.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "records/fields/fields.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

constexpr double kNotKnown = std::numeric_limits<double>::quiet_NaN();
constexpr int kClassIsWorth = 100;  // image

double Known(int value) {
  return value == Glimpse::kUnknown ? kNotKnown : value;
}

/// The value below which this share of the sorted values lies.
double At(const std::vector<double>& sorted, double share) {
  const double place = share * static_cast<double>(sorted.size() - 1);
  const auto below = static_cast<std::size_t>(place);
  const std::size_t above = std::min(below + 1, sorted.size() - 1);
  return std::lerp(sorted[below], sorted[above], place - static_cast<double>(below));
}

Chance CountOf(std::string what, const std::vector<WorldLife>& lives, const auto& has) {
  return {std::move(what), static_cast<int>(std::ranges::count_if(lives, has)),
          static_cast<int>(lives.size())};
}

/// Rounds the parts of a whole so that they come to 100 percent: those with the greatest remainders
/// up, the first of equals before the others.
void ShareOut(std::vector<Chance>& parts) {
  std::vector<Chance*> byRemainder;
  int rest = 100;
  for (Chance& part : parts) {
    if (part.Of == 0) return;
    part.Shared = 100 * part.Worlds / part.Of;
    rest -= part.Shared;
    byRemainder.push_back(&part);
  }
  std::ranges::stable_sort(byRemainder, std::greater<int>(),
                           [](const Chance* part) { return 100 * part->Worlds % part->Of; });
  for (Chance* part : byRemainder)
    if (rest-- > 0) ++part->Shared;
}

int SizeAtLast(const WorldLife& life) {
  return life.Seen.back().Stands ? life.Seen.back().Size : 0;
}

constexpr const char* kGone = "Gone";

}  // namespace

double ValueOf(const Glimpse& glimpse, Measure measure, const FirstMorning& morning) {
  if (!glimpse.Stands) return kNotKnown;
  switch (measure) {
    case Measure::Image:
      return glimpse.Image + kClassIsWorth * (morning.Now.Size - glimpse.Size);
    case Measure::Money:
      return glimpse.Money;
    case Measure::Rating:
      return Known(glimpse.Rating);
    case Measure::Morale:
      return Known(glimpse.Morale);
  }
  return kNotKnown;
}

std::string MeasureText(double value, Measure measure, const FirstMorning& morning) {
  if (!std::isfinite(value)) return "-";
  if (measure == Measure::Money) return Dollars(std::llround(value));
  const int rounded = static_cast<int>(std::lround(value));
  if (measure != Measure::Image || (rounded >= 0 && rounded <= kClassIsWorth))
    return std::to_string(rounded) + "%";
  const int up = rounded > 0 ? (rounded - 1) / kClassIsWorth
                             : -((kClassIsWorth - 1 - rounded) / kClassIsWorth);
  const int size = std::clamp(morning.Now.Size - up, int(kGlobal), int(kBackyard));
  const int image = rounded - kClassIsWorth * (morning.Now.Size - size);
  return std::string(SizeText(size)) + " " + std::to_string(image) + "%";
}

std::vector<std::pair<double, std::string>> ClassBorders(double low, double high,
                                                         const FirstMorning& morning) {
  std::vector<std::pair<double, std::string>> borders;
  for (int size = kGlobal; size < kBackyard; ++size) {
    // The upper end of the class below this one.
    const double at = kClassIsWorth * (morning.Now.Size - size);
    if (at >= low && at <= high)
      borders.emplace_back(at, std::string(SizeText(size)) + " from here");
  }
  return borders;
}

Spread SpreadOf(std::vector<double> values) {
  std::erase_if(values, [](double value) { return !std::isfinite(value); });
  if (values.empty()) return {kNotKnown, kNotKnown, kNotKnown, kNotKnown, kNotKnown};
  std::ranges::sort(values);
  return {At(values, 0.1),  At(values, 0.25), At(values, 0.5),
          At(values, 0.75), At(values, 0.9),  static_cast<int>(values.size())};
}

std::vector<Spread> SpreadsOf(const std::vector<WorldLife>& lives, Measure measure,
                              const FirstMorning& morning) {
  std::vector<Spread> spreads;
  const std::size_t days = lives.empty() ? 0 : lives.front().Seen.size();
  for (std::size_t day = 0; day < days; ++day) {
    std::vector<double> values;
    for (const WorldLife& life : lives) values.push_back(ValueOf(life.Seen[day], measure, morning));
    spreads.push_back(SpreadOf(std::move(values)));
  }
  return spreads;
}

std::vector<std::vector<Chance>> SizesAtLast(const std::vector<std::vector<WorldLife>>& answers) {
  std::vector<std::vector<Chance>> all(answers.size());
  const auto add = [&](int size, std::string_view called) {
    std::vector<Chance> row;
    for (const auto& lives : answers)
      row.push_back(CountOf(std::string(called), lives,
                            [size](const WorldLife& life) { return SizeAtLast(life) == size; }));
    if (std::ranges::all_of(row, [](const Chance& chance) { return chance.Worlds == 0; })) return;
    for (std::size_t answer = 0; answer < row.size(); ++answer)
      all[answer].push_back(std::move(row[answer]));
  };
  for (const Term& size : kSizes) add(size.Code, size.Says);
  add(0, kGone);
  for (std::vector<Chance>& sizes : all) ShareOut(sizes);
  return all;
}

std::vector<Chance> ChancesOf(const std::vector<WorldLife>& lives, const FirstMorning& morning) {
  const auto ends = [](int code) {
    return [code](const WorldLife& life) { return life.EndCode == code; };
  };
  const auto sometimes = [&](auto holds) {
    return [&morning, holds](const WorldLife& life) {
      return std::ranges::any_of(life.Seen, [&](const Glimpse& glimpse) {
        return glimpse.Stands && holds(glimpse.Size, morning.Now.Size);
      });
    };
  };
  return {CountOf("Dismissed by the board", lives, ends(kEndBoard)),
          CountOf("Dismissed over a loan", lives, ends(kEndLoan)),
          CountOf("Bankruptcy", lives, ends(kEndBankrupt)),
          CountOf("A fall of class", lives, sometimes(std::greater<int>())),
          CountOf("A rise of class", lives, sometimes(std::less<int>()))};
}

std::vector<Chance> ChampionsOf(const std::vector<WorldLife>& lives, std::size_t title) {
  std::map<std::string, int> counts;
  for (const WorldLife& life : lives) {
    const std::string& champion = life.Champions[title];
    ++counts[champion.empty() ? "Vacant" : champion];
  }
  std::vector<Chance> chances;
  for (const auto& [champion, worlds] : counts)
    chances.push_back({champion, worlds, static_cast<int>(lives.size())});
  std::ranges::stable_sort(chances, std::greater<int>(), &Chance::Worlds);
  ShareOut(chances);
  return chances;
}

std::vector<Chance> SizesOf(const std::vector<WorldLife>& lives, int promotionUid) {
  const auto sizeOf = [promotionUid](const WorldLife& life) {
    const auto found = life.Sizes.find(promotionUid);
    return found == life.Sizes.end() ? 0 : found->second;
  };
  std::vector<Chance> chances;
  const auto add = [&](int size, std::string_view called) {
    chances.push_back(CountOf(std::string(called), lives,
                              [&](const WorldLife& life) { return sizeOf(life) == size; }));
  };
  for (const Term& size : kSizes) add(size.Code, size.Says);
  add(0, kGone);
  ShareOut(chances);
  return chances;
}

std::pair<int, int> PairsWon(const std::vector<std::vector<WorldLife>>& answers, Measure measure,
                             const FirstMorning& morning) {
  std::pair<int, int> won;
  for (std::size_t world = 0; answers.size() == 2 && world < answers[0].size(); ++world) {
    const double first = ValueOf(answers[0][world].Seen.back(), measure, morning);
    const double second = ValueOf(answers[1][world].Seen.back(), measure, morning);
    won.first += first > second;
    won.second += second > first;
  }
  return won;
}

}  // namespace grapplemont
