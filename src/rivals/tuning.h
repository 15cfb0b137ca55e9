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

/// A rival that has fewer months of wages in hand, and has lost money twice in a row, saves; one
/// that has more, and has gained twice, spends.
inline constexpr int kMonthsInHand = 6;
/// While it saves, a roster of this many percent of the least is enough.
inline constexpr int kLeastWhileSaving = 75;

/// At the end of a contract the least wanted are let go, this many in a hundred.
inline constexpr int kNotRenewed = 15;
/// Staff of less talent than this share of their post's best are not renewed, in percent.
inline constexpr int kStaffNotRenewed = 40;

/// New talent comes while fewer than this many workers in a hundred are free, this many a month at
/// most.
inline constexpr int kFreeWanted = 27;
inline constexpr int kNewTalentAMonth = 12;
/// Whoever waits for work asks for this many percent less every month, down to this wage.
inline constexpr int kWaitingDiscount = 5;
inline constexpr int kLeastAsked = 2;

/// A week's house show, in dollars: half of it is sure and the rest a matter of image.
inline constexpr std::array<int, 6> kHouseShow = {400000, 200000, 80000, 120000, 85000, 2500};
/// Workers needed for one, and the most condition that it takes from each.
inline constexpr int kHouseShowCrew = 6;
static_assert(kRosters.back().Least * kLeastWhileSaving / 100 > kHouseShowCrew,
              "without cards who saves would earn nothing, and nobody would win its Titles");
inline constexpr int kHouseShowWear = 3;

/// A new promotion has Titles from this roster on.
inline constexpr int kTitleRoster = 8;
/// Image of a Title that is founded.
inline constexpr std::array<int, 6> kNewTitleImage = {60, 50, 40, 30, 20, 10};
/// A rival's champion loses an Event's defence so often in a hundred, by the days of their reign.
struct LongReign {
  int From;
  int LosesIn100;
};
inline constexpr LongReign kLongReigns[] = {{180, 50}, {90, 35}, {45, 18}, {0, 4}};
/// Among how many of the best the champion is found.
inline constexpr int kContenders = 6;

/// How a promotion begins that the player founds.
inline constexpr int kOwnImage = 20, kOwnMomentum = 2, kOwnRisk = 30;

/// A rich stranger comes in one of this many months to a player who has been alone at the top for
/// five month ends.
inline constexpr int kStrangerIn = 6;
inline constexpr int kStrangersMoney = 40000000;
/// They buy this many stars of more than this Over, one in this many of those they ask, and no more
/// than this many from any promotion.
inline constexpr int kStrangersStars = 16;
inline constexpr int kStarsOver = 50;
inline constexpr int kStarsAskedFor1 = 4;
inline constexpr int kStarsFromOne = 3;

// Money.

/// The wage, in thousands a month, of somebody with an Over of 100 where a promotion has no books
/// yet; it falls with the square. With books it is no less than this over kScaleSpan and no more
/// than this times kScaleSpan.
inline constexpr std::array<int, 6> kTopWage = {300, 100, 80, 60, 30, 20};
inline constexpr int kScaleSpan = 3;
/// What lies above or below a fair sum goes into or out of the wage budget in this many months.
inline constexpr int kMonthsToFairSum = 24;

/// What is in hand beyond this many fair sums goes into campaigns, one part in this many a week.
inline constexpr int kFairSumsKept = 3;
inline constexpr int kWeeksOfCampaigns = 40;

/// How money is handled, by Spender.
struct SpendingHabit {
  int OfWhatIsLeft;  // percent of what all but workers' wages leaves over
  int MostOfIncome;  // percent
  bool MindsDebts;
};
inline constexpr std::array<SpendingHabit, 3> kHabits = {
    {{75, 45, true}, {88, 52, true}, {120, 80, false}}};
/// This many owners in a hundred are reckless, one fewer for each this many points of talent; and
/// this many are careful.
inline constexpr int kRecklessIn100 = 25;
inline constexpr int kTalentToOneLess = 3;
inline constexpr int kCarefulIn100 = 30;

/// What sponsors that look for a promotion of a size pay, in thousands of dollars a show.
struct PayBand {
  int From;
  int To;
};
inline constexpr std::array<PayBand, 6> kUsualPay = {
    {{350, 1000}, {200, 920}, {90, 460}, {100, 560}, {80, 450}, {1, 60}}};

/// A promotion goes after this many people a month where its budget has room, and one more a week
/// where it prospers; one of this many talks succeeds.
inline constexpr int kTalksAMonth = 6;
inline constexpr int kTalksFor1 = 2;
/// A contract can be talked about this many months before its end.
inline constexpr int kMonthsBeforeTheEnd = 3;
/// The most paid for somebody whose last wage is above the going rate, in percent of that.
inline constexpr int kMostOfRate = 250;
/// Whoever is offered this many percent of what the employer pays leaves at the end of the contract
/// in one of this many cases.
inline constexpr int kTemptingOffer = 125;
inline constexpr int kTemptedIn = 2;

/// A wage below the going rate closes the gap by one part in this many a month.
inline constexpr int kMonthsToRate = 6;

/// From this image on a rise is near, up to that a fall.
inline constexpr int kNearARise = 70;
inline constexpr int kNearAFall = 35;
/// What a week of house shows does for the image of a rival that would stay up, and costs one that
/// would stay below; as much again for each show that it has on television.
struct Tour {
  int Gain;
  int Loss;
};
inline constexpr std::array<Tour, 6> kTours = {{{2, 0}, {2, 2}, {1, 2}, {1, 2}, {1, 2}, {0, 2}}};
/// A class with this many promotions is full.
inline constexpr std::array<int, 6> kRoomInClass = {3, 4, 4, 6, 4, 30};
/// The ten best of whoever wants to rise may be this much less popular than those of the class
/// above, and of whoever wants to stay than those of its own.
inline constexpr int kMayBeWeaker = 2;
inline constexpr int kMayBeWeakerAtHome = 8;

// Careers.

/// The best skill that practice brings: at least this, and two draws of this many on top.
inline constexpr int kLeastCeiling = 55;
inline constexpr int kCeilingDraw = 21;
/// From this ceiling on a quarter brings up to three points; below, two.
inline constexpr int kGreatGift = 84;
/// Skills beside the strongest go this far, in percent of the ceiling.
inline constexpr int kSideSkill = 65;
/// Whoever works for nobody misses one quarter of practice in this many.
inline constexpr int kFreeMissIn = 3;
/// In one of this many quarters of practice charisma gains a point.
inline constexpr int kTalkLearnedIn = 5;
/// One in this many blooms late, and one in this many is lost promise.
inline constexpr int kStoriesIn = 12;
/// What crowds see in somebody is at most this much more or less than they can do.
inline constexpr int kStar = 10;
/// The ages at which bodies start to fail, by the strongest skill, and after how many years more it
/// goes twice as fast.
inline constexpr int kFlyersFade = 35;
inline constexpr int kBrawlersFade = 37;
inline constexpr int kTechniciansFade = 39;
inline constexpr int kHardYears = 14;

/// Deserved Over is this many percent of talent, with what the class of the employer adds, and no
/// more than it lets anybody have.
inline constexpr int kTalentCounts = 128;
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
inline constexpr int kPastIt = 4;
/// A voice alone is worth this many fifths of what voice and ring are together.
inline constexpr int kVoiceAlone = 4;
/// What it costs not to be seen in a ring.
inline constexpr int kOutOfSight = 8;
/// A month closes the gap to what is deserved by one part in this many.
inline constexpr int kMonthsToRise = 14;
inline constexpr int kMonthsToFade = 9;
/// In one month of this many a crowd takes a fancy to somebody, in as many it tires of them.
inline constexpr int kFancyIn = 8;

/// One in this many fit workers of rivals is hurt in a month, for at most this many months.
inline constexpr int kHurtIn = 110;
inline constexpr int kLongestInjury = 9;
/// From this many months on it costs each skill up to one less than this, and so may a comeback.
inline constexpr int kLongInjury = 6;
inline constexpr int kInjuryMark = 5;
inline constexpr int kComebackGain = 5;
inline constexpr int kComebackMorale = 10;
/// One in this many changes sides in a month; one in this many of them to neither.
inline constexpr int kSidesChangedIn = 120;
inline constexpr int kTweenerIn = 6;

// New people.

/// While more than this many of a hundred workers are free, this many of them give up in a month:
/// past this age and under this Over.
inline constexpr int kFreeToSpare = 30;
inline constexpr int kGiveUpAMonth = 2;
inline constexpr int kGivesUpFrom = 27;
inline constexpr int kGivesUpBelow = 40;
/// Women are few under this many of a hundred; then this many men are passed over, one after the
/// other, before one is taken.
inline constexpr int kWomenWanted = 25;
inline constexpr int kMenAskedToWait = 3;
/// From this many of a hundred on, lightweights alone give up.
inline constexpr int kLightweightsEnough = 34;

// Cards and stories.

/// Matches on a card, as far as the roster reaches.
inline constexpr int kTvMatches = 5;
inline constexpr int kEventMatches = 8;
inline constexpr int kHouseShowMatches = 6;
/// Outside an Event a Title is defended on one show in this many, and on television its champion
/// loses it this often in a hundred; a vacant one is fought for on one show in this many.
inline constexpr int kDefenceIn = 4;
inline constexpr int kTvUpset = 4;
inline constexpr int kVacancyIn = 1;
/// Matches out of this many end without a winner.
inline constexpr int kDrawIn = 20;
/// Heels who win cheat once in this many matches.
inline constexpr int kCheatsIn = 4;

/// Grudges that a rival can tell of at once, and their heat: when one begins, a week without a
/// match, a match, and the heat from which an Event settles it.
inline constexpr int kGrudges = 3;
inline constexpr int kGrudgeHeat = 30;
inline constexpr int kGrudgeCools = 3;
inline constexpr int kGrudgeMatch = 9;
inline constexpr int kGrudgeRipe = 60;
/// One begins after one cheated match in this many, and one lost Title in this many.
inline constexpr int kGrudgeAfterCheatingIn = 8;
inline constexpr int kGrudgeAfterTitleIn = 3;
/// Two who have a grudge meet on one show in this many that are not Events.
inline constexpr int kGrudgeMatchIn = 3;

/// A rival wants a team and a stable for every this many wrestlers, and looks for what is missing
/// in one week of this many.
inline constexpr int kWrestlersATeam = 6;
inline constexpr int kWrestlersAStable = 12;
inline constexpr int kNewTeamIn = 2;
inline constexpr int kNewStableIn = 4;
/// What stands ends in one week of this many; a pair that works apart is forgotten sooner.
inline constexpr int kTeamSplitsIn = 150;
inline constexpr int kPairForgottenIn = 40;
inline constexpr int kStableEndsIn = 200;
/// A stable of fewer than this many takes somebody in, in one week of this many.
inline constexpr int kStableWants = 4;
inline constexpr int kStableTakesIn = 10;
/// Two stables of one roster begin to feud.
inline constexpr int kStableFeudIn = 12;
/// A rival wants a manager for every this many wrestlers. In one week of this many it makes one of
/// a wrestler of that age and charisma.
inline constexpr int kWrestlersAManager = 20;
inline constexpr int kNewManagerIn = 8;
inline constexpr int kManagersAge = 37;
inline constexpr int kManagersCharisma = 50;
/// A manager who has fewer clients than that takes one, in one week of this many.
inline constexpr int kClientsWanted = 2;
inline constexpr int kClientTakenIn = 4;
/// Women and lightweights for a Title of their own, and teams for a tag Title; it rests while fewer
/// than two could fight for it. A rival looks at this in one week of this many.
inline constexpr int kWomenForTitle = 6;
inline constexpr int kLightweightsForTitle = 8;
inline constexpr int kTeamsForTitle = 3;
inline constexpr int kNewTitleIn = 6;
/// One wrestler of a roster has a new finisher, or another name, in one week of this many. Nobody
/// above that Over gives up a name.
inline constexpr int kNewFinisherIn = 12;
inline constexpr int kNewNameIn = 300;
inline constexpr int kKnownByName = 60;

}  // namespace grapplemont::tuning
