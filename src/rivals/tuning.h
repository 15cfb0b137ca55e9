#pragma once

#include <array>

// The numbers behind the life of rivals that may be turned without turning what a rival is, all in
// one place. By size, Global to Backyard, where there are six.

namespace grapplemont::tuning {

/// A rival signs every day while its main roster is below Least and fires while it is above Most;
/// between them its purse decides week by week.
struct RosterBand {
  int Least;
  int Most;
};
inline constexpr std::array<RosterBand, 6> kRosters = {
    {{60, 64}, {40, 44}, {26, 30}, {17, 20}, {13, 15}, {10, 12}}};

/// The wage, in thousands a month, of somebody with an Over of 100; it falls with the square.
inline constexpr std::array<int, 6> kTopWage = {300, 100, 80, 60, 30, 20};

/// A rival that has fewer months of wages in hand, and has lost money twice in a row, saves; one
/// that has more, and has gained twice, spends.
inline constexpr int kMonthsInHand = 6;

/// At the end of a contract the least wanted so many in a hundred are let go.
inline constexpr int kNotRenewed = 15;
/// Staff of less talent than this share of their post's best are not renewed, in percent.
inline constexpr int kStaffNotRenewed = 40;

/// New talent comes while fewer than so many workers in a hundred are free, so many a month at
/// most.
inline constexpr int kFreeWanted = 27;
inline constexpr int kNewTalentAMonth = 8;
/// Whoever waits for work asks for so many percent less every month, down to this wage.
inline constexpr int kWaitingDiscount = 5;
inline constexpr int kLeastAsked = 2;

/// A week's house show, in dollars: half of it is sure and the rest a matter of image.
inline constexpr std::array<int, 6> kHouseShow = {120000, 50000, 25000, 10000, 3000, 500};
/// Workers needed for one, and the most condition that it takes from each.
inline constexpr int kHouseShowCrew = 8;
inline constexpr int kHouseShowWear = 3;

/// A new promotion has Titles from this roster on.
inline constexpr int kTitleRoster = 8;
/// Image of a Title that is founded.
inline constexpr std::array<int, 6> kNewTitleImage = {60, 50, 40, 30, 20, 10};
/// A rival's champion loses an Event's defence so often in a hundred, by the days of his reign.
struct LongReign {
  int From;
  int LosesIn100;
};
inline constexpr LongReign kLongReigns[] = {{180, 50}, {90, 35}, {45, 18}, {0, 4}};
/// Among how many of the best the champion is found.
inline constexpr int kContenders = 6;

/// How a promotion begins that the player founds.
inline constexpr int kOwnImage = 20, kOwnMomentum = 2, kOwnRisk = 30;

/// A rich stranger comes in one of so many months to a player who has been alone at the top for
/// five month ends.
inline constexpr int kStrangerIn = 6;
inline constexpr int kStrangersMoney = 40000000;
/// He buys so many stars of more than this Over, one in so many of those he asks, and no more than
/// so many from any promotion.
inline constexpr int kStrangersStars = 16;
inline constexpr int kStarsOver = 50;
inline constexpr int kStarsAskedFor1 = 4;
inline constexpr int kStarsFromOne = 3;

}  // namespace grapplemont::tuning
