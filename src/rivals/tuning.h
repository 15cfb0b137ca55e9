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

// Cards and stories.

/// Matches on a card, as far as the roster reaches.
inline constexpr int kTvMatches = 5;
inline constexpr int kEventMatches = 8;
inline constexpr int kHouseShowMatches = 6;
/// Outside an Event a Title is defended on one show in so many, and on television its champion
/// loses it so often in a hundred; a vacant one is fought for on one show in so many.
inline constexpr int kDefenceIn = 4;
inline constexpr int kTvUpset = 4;
inline constexpr int kVacancyIn = 2;
/// Matches out of so many end without a winner.
inline constexpr int kDrawIn = 20;
/// Heels who win cheat once in so many matches.
inline constexpr int kCheatsIn = 4;

/// Grudges that a rival can tell of at once, and their heat: when one begins, a week without a
/// match, a match, and the heat from which an Event settles it.
inline constexpr int kGrudges = 3;
inline constexpr int kGrudgeHeat = 30;
inline constexpr int kGrudgeCools = 3;
inline constexpr int kGrudgeMatch = 9;
inline constexpr int kGrudgeRipe = 60;
/// One begins after one cheated match in so many, and one lost Title in so many.
inline constexpr int kGrudgeAfterCheatingIn = 8;
inline constexpr int kGrudgeAfterTitleIn = 3;
/// Two who have a grudge meet on one show in so many that are no Event.
inline constexpr int kGrudgeMatchIn = 3;

/// A rival wants a team and a stable for every so many wrestlers, and looks for what is missing in
/// one week of so many.
inline constexpr int kWrestlersATeam = 6;
inline constexpr int kWrestlersAStable = 12;
inline constexpr int kNewTeamIn = 2;
inline constexpr int kNewStableIn = 4;
/// What stands ends in one week of so many; a pair that works apart is forgotten sooner.
inline constexpr int kTeamSplitsIn = 150;
inline constexpr int kPairForgottenIn = 40;
inline constexpr int kStableEndsIn = 200;
/// A stable of fewer than so many takes somebody in, in one week of so many.
inline constexpr int kStableWants = 4;
inline constexpr int kStableTakesIn = 10;
/// Two stables of one roster begin to feud.
inline constexpr int kStableFeudIn = 12;
/// A rival wants a manager for every so many wrestlers. In one week of so many it makes one of a
/// wrestler of that age and charisma.
inline constexpr int kWrestlersAManager = 20;
inline constexpr int kNewManagerIn = 8;
inline constexpr int kManagersAge = 37;
inline constexpr int kManagersCharisma = 50;
/// A manager who has fewer clients than that takes one, in one week of so many.
inline constexpr int kClientsWanted = 2;
inline constexpr int kClientTakenIn = 4;
/// Women and lightweights for a Title of their own, and teams for a tag Title; it rests while fewer
/// than two could fight for it. A rival looks at this in one week of so many.
inline constexpr int kWomenForTitle = 6;
inline constexpr int kLightweightsForTitle = 8;
inline constexpr int kTeamsForTitle = 3;
inline constexpr int kNewTitleIn = 6;
/// One wrestler of a roster has a new finisher, or another name, in one week of so many. Nobody
/// above that Over gives up a name.
inline constexpr int kNewFinisherIn = 12;
inline constexpr int kNewNameIn = 300;
inline constexpr int kKnownByName = 60;

}  // namespace grapplemont::tuning
