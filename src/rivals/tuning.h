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

// Careers.

/// The best skill that practice brings: at least this, and two draws of so many on top.
inline constexpr int kLeastCeiling = 55;
inline constexpr int kCeilingDraw = 21;
/// From this ceiling on a quarter brings up to three points; below, two.
inline constexpr int kGreatGift = 84;
/// Skills beside the strongest go so far, in percent of the ceiling.
inline constexpr int kSideSkill = 65;
/// In one of so many quarters of practice charisma gains a point.
inline constexpr int kTalkLearnedIn = 5;
/// One in so many blooms late, and one in so many is lost promise.
inline constexpr int kStoriesIn = 12;
/// What crowds see in somebody is at most so much more or less than they can do.
inline constexpr int kStar = 10;
/// The ages at which bodies start to fail, by the strongest skill, and after how many years more it
/// goes twice as fast.
inline constexpr int kFlyersFade = 36;
inline constexpr int kBrawlersFade = 39;
inline constexpr int kTechniciansFade = 41;
inline constexpr int kHardYears = 14;

/// Deserved Over is so many percent of talent, with what the class of the employer adds, and no
/// more than it lets anybody have.
inline constexpr int kTalentCounts = 125;
struct Fame {
  int Bonus;
  int Most;
};
inline constexpr std::array<Fame, 6> kFame = {
    {{-25, 100}, {-27, 97}, {-34, 88}, {-41, 70}, {-45, 52}, {-50, 36}}};
inline constexpr Fame kFameOfTheFree = {-42, 46};
inline constexpr int kLookBonus = 5;
/// By the place on the card, Main Event to Jobber.
inline constexpr std::array<int, 6> kPlaceBonus = {4, 2, 0, -2, -3, -4};
/// What a year costs a wrestler whose body fails them.
inline constexpr int kPastIt = 2;
/// A voice alone is worth so many fifths of what voice and ring are together.
inline constexpr int kVoiceAlone = 4;
/// What it costs not to be seen in a ring.
inline constexpr int kOutOfSight = 8;
/// A month closes the gap to what is deserved by one part in so many.
inline constexpr int kMonthsToRise = 14;
inline constexpr int kMonthsToFade = 12;
/// In one month of so many a crowd takes a fancy to somebody, in as many it tires of them.
inline constexpr int kFancyIn = 8;

/// One in so many fit workers of rivals is hurt in a month, for at most so many months.
inline constexpr int kHurtIn = 110;
inline constexpr int kLongestInjury = 9;
/// From so many months on it costs each skill up to one less than this, and so may a comeback.
inline constexpr int kLongInjury = 6;
inline constexpr int kInjuryMark = 5;
inline constexpr int kComebackGain = 5;
inline constexpr int kComebackMorale = 10;
/// One in so many changes sides in a month; one in so many of them to neither.
inline constexpr int kSidesChangedIn = 120;
inline constexpr int kTweenerIn = 6;

// New people.

/// While more than so many of a hundred workers are free, so many of them give up in a month: past
/// this age and under this Over.
inline constexpr int kFreeToSpare = 30;
inline constexpr int kGiveUpAMonth = 2;
inline constexpr int kGivesUpFrom = 27;
inline constexpr int kGivesUpBelow = 40;
/// Women are few under so many of a hundred; with enough of them one newcomer in so many is one.
inline constexpr int kWomenWanted = 25;
inline constexpr int kWomanOneIn = 5;
/// From so many of a hundred on, lightweights alone give up.
inline constexpr int kLightweightsEnough = 36;

}  // namespace grapplemont::tuning
