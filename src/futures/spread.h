#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "futures/futures.h"

// What many worlds come to, taken together.

namespace grapplemont {

/// A number that is followed through time.
enum class Measure { Image, Money, Rating, Morale };
inline constexpr std::array<std::pair<Measure, std::string_view>, 4> kMeasures = {
    {{Measure::Image, "Image"},
     {Measure::Money, "Money"},
     {Measure::Rating, "Show rating"},
     {Measure::Morale, "Morale"}}};

/// How it is counted: an image goes on beyond 100 and below 0 in the classes next to that of the
/// first morning, money in dollars. Not a number where it is not known.
double ValueOf(const Glimpse& glimpse, Measure measure, const FirstMorning& morning);
/// "63%", "National 16%" for an image of another class, "$1318720", "-" for what is not known.
std::string MeasureText(double value, Measure measure, const FirstMorning& morning);
/// The classes whose border lies between the two images, with where it lies: "National from here".
std::vector<std::pair<double, std::string>> ClassBorders(double low, double high,
                                                         const FirstMorning& morning);

/// Where a number lies in all worlds that know it: one in ten lies below Low, half of them between
/// the quarters. Not numbers where no world knows it.
struct Spread {
  double Low, LowQuarter, Middle, HighQuarter, High;
  int Worlds = 0;  // that know it
};
Spread SpreadOf(std::vector<double> values);
/// The same on each day that was looked at.
std::vector<Spread> SpreadsOf(const std::vector<WorldLife>& lives, Measure measure,
                              const FirstMorning& morning);

/// In how many worlds something has come to pass.
struct Chance {
  std::string What;
  int Worlds = 0;
  int Of = 0;
  int Shared = -1;  // percent, where it is a part of a whole whose parts come to 100; -1: none
  int Percent() const { return Shared >= 0 ? Shared : Of == 0 ? 0 : (100 * Worlds + Of / 2) / Of; }
};
/// The classes that the promotion may have at last, from the biggest down, then that it is gone; a
/// class that no answer leads to is left out. The same rows for each answer.
std::vector<std::vector<Chance>> SizesAtLast(const std::vector<std::vector<WorldLife>>& answers);
/// Being dismissed, by why; bankruptcy; a fall and a rise of class.
std::vector<Chance> ChancesOf(const std::vector<WorldLife>& lives, const FirstMorning& morning);

/// Who holds a Title at last, the likeliest first; "Vacant" among them.
std::vector<Chance> ChampionsOf(const std::vector<WorldLife>& lives, std::size_t title);
/// What class a promotion has at last, from Global to Backyard, and that it is gone.
std::vector<Chance> SizesOf(const std::vector<WorldLife>& lives, int promotionUid);

/// In how many pairs of worlds the first answer has the higher number at last, and the second.
std::pair<int, int> PairsWon(const std::vector<std::vector<WorldLife>>& answers, Measure measure,
                             const FirstMorning& morning);

}  // namespace grapplemont
