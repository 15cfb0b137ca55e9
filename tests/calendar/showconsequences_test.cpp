#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "calendar/showconsequences.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

constexpr Day kLastSunday{year{2026} / 3 / 29};
constexpr Day kFriday{year{2026} / 3 / 6};
constexpr Day kTuesday{year{2026} / 3 / 3};

SmallWorld Company(int size = kCult) {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA", size).Crew(6).Show("Friday Fire", "Friday", "Nine");
  small.Show("Sunday Slam", "Sunday", "Nine");
  small.Sponsor("Gulp", [](Sponsor& s) { s.Pay = 105; });
  small.Sponsor("Crunch", [](Sponsor& s) { s.Pay = 95; });
  return small;
}

TEST(PlayerShowConsequences, PayAndTellOfAnEvent) {
  World world = Company().Event(3, 2, "Marchmania").Game("CWA", kLastSunday);
  world.Session.ShowRating = 65;
  ScriptDraws(world, {{100, 50}});
  PlayerShowConsequences(world, false);
  const Promotion& player = world.Player();
  EXPECT_EQ(player.Image, 52);
  EXPECT_EQ(player.ThisMonth.SponsorIncome, 200000);
  EXPECT_EQ(player.ThisMonth.TicketIncome, 2250 * 30);
  EXPECT_EQ(player.ThisMonth.ProductionCost, 200000);
  EXPECT_EQ(player.Money, 5000000 + 200000 + 2250 * 30 - 200000);
  EXPECT_EQ(NewsOf(world),
            "Show report: Marchmania was attended by 2250 people!\n"
            "We made $67500 from ticket sales.\n");
  EXPECT_EQ(world.Events()[1].Type, 3) << "the image sets the next ones; this one was a large one";
}

TEST(PlayerShowConsequences, PayAndTellOfTelevision) {
  World world = Company().Event(3, 2).Game("CWA", kFriday);
  world.Session.ShowRating = 65;
  ScriptDraws(world, {{10, 5}, {20, 12}});
  PlayerShowConsequences(world, false);
  const Promotion& player = world.Player();
  EXPECT_EQ(player.Image, 51);
  EXPECT_EQ(player.ThisMonth.SponsorIncome, 26000 + 9000) << "a quarter and a tenth";
  EXPECT_EQ(player.ThisMonth.TicketIncome, 412 * 30);
  EXPECT_EQ(player.Money, 5000000 + 35000 + 412 * 30);
  EXPECT_EQ(NewsOf(world),
            "Nine: The ratings for Friday Fire need to improve.\n"
            "Television report: We got a 2.25 rating for 'Friday Fire'!\n"
            "The attendance level was 412 people.\nWe made $12360 from ticket sales.\n");
}

struct Remembered {
  int Kind;
  const char* Name;
  bool CalledOff;
  int Rating, Viewers, People, Income, Costs, Money, Image;
};

/// The one entry of the day.
void ExpectRemembered(const World& world, const Remembered& expected) {
  ASSERT_EQ(world.History().Count(), 1) << expected.Name;
  const HistoryEntry& entry = world.History()[1];
  EXPECT_EQ(Day(entry.On), world.Today());
  EXPECT_EQ(entry.Kind, expected.Kind);
  EXPECT_EQ(entry.Promotion, world.PlayerUid());
  EXPECT_EQ(entry.Name.View(), expected.Name);
  EXPECT_EQ(entry.CalledOff, expected.CalledOff);
  EXPECT_EQ(entry.Rating, expected.Rating);
  EXPECT_EQ(entry.Viewers, expected.Viewers);
  EXPECT_EQ(entry.Attendance, expected.People);
  EXPECT_EQ(entry.Income, expected.Income);
  EXPECT_EQ(entry.Costs, expected.Costs);
  EXPECT_EQ(entry.Money, expected.Money);
  EXPECT_EQ(entry.Size, world.Player().Size);
  EXPECT_EQ(entry.Image, expected.Image);
}

TEST(PlayerShowConsequences, AreRememberedWithWhatTheShowBroughtAndCost) {
  constexpr int kGate = 2250 * 30, kTvGate = 412 * 30;
  World event = Company().Event(3, 2, "Marchmania").Game("CWA", kLastSunday);
  event.Session.ShowRating = 65;
  event.Session.ExtraCost = 70000;  // was charged when the Event began
  ScriptDraws(event, {{100, 50}});
  PlayerShowConsequences(event, false);
  ExpectRemembered(event, {kPastEvent, "Marchmania", false, 65, 0, 2250, 200000 + kGate, 270000,
                           5000000 + kGate, 52});
  EXPECT_EQ(event.Session.ExtraCost, 0) << "the next show has none";

  World payPerView = Company(kRegional).Event(3, 1, "Big One").Game("CWA", kLastSunday);
  payPerView.Session.ShowRating = 45;
  ScriptDraws(payPerView, {{3, 2}, {100, 50}});
  PlayerShowConsequences(payPerView, false);
  const HistoryEntry& entry = payPerView.History()[1];
  EXPECT_EQ(entry.Viewers, 6 + 2) << "a buy rate";
  EXPECT_EQ(entry.Income, 200000 + 8 * 25000 + entry.Attendance * 20);
  EXPECT_EQ(entry.Costs, 1500000);
  EXPECT_EQ(entry.Money - 2000000, entry.Income - entry.Costs);

  World tv = Company().Event(3, 2).Game("CWA", kFriday);
  tv.Session.ShowRating = 65;
  ScriptDraws(tv, {{10, 5}, {20, 12}});
  PlayerShowConsequences(tv, false);
  ExpectRemembered(
      tv, {kPastTv, "Friday Fire", false, 65, 225, 412, 35000 + kTvGate, 0, 5035000 + kTvGate, 51});
}

TEST(PlayerShowConsequences, AreRememberedOfShowsThatWereCalledOff) {
  World event = Company().Event(3, 2, "Marchmania").Game("CWA", kLastSunday);
  event.Session.ShowRating = 95;
  PlayerShowConsequences(event, true);
  ExpectRemembered(event, {kPastEvent, "Marchmania", true, 0, 0, 0, 0, 1000000, 4000000, 35});
  World tv = Company().Game("CWA", kFriday);
  tv.Session.ShowRating = 95;
  PlayerShowConsequences(tv, true);
  ExpectRemembered(tv, {kPastTv, "Friday Fire", true, 0, 0, 0, 0, 0, 5000000, 35});
  World none = Company().Event(4).Game("CWA", kLastSunday);
  PlayerShowConsequences(none, false);
  EXPECT_EQ(none.History().Count(), 0) << "there was no show";
}

TEST(PlayerShowConsequences, AreNoneOnAPlainDay) {
  World world = Company().Event(3, 2).Game("CWA", kTuesday);
  world.Session.ShowRating = 95;
  const World before = CopyOf(world);
  ScriptDraws(world, {});
  PlayerShowConsequences(world, false);
  ExpectSame(world, before);
}

TEST(PlayerShowConsequences, CostImageWhenNoEventIsHeld) {
  World world = Company().Event(4).Game("CWA", kLastSunday);
  world.Session.ShowRating = 95;
  ScriptDraws(world, {});
  PlayerShowConsequences(world, false);
  EXPECT_EQ(world.Player().Image, 40);
  EXPECT_EQ(world.Player().Money, 5000000) << "Sunday Slam does not happen either";
  EXPECT_EQ(NewsOf(world), "");
}

TEST(PlayerShowConsequences, CostMoneyAndImageWhenAnEventIsCalledOff) {
  constexpr int kCharges[] = {2000000, 1000000, 100000, 5000};
  for (int type = 1; type <= 4; ++type) {
    World world = Company().Event(3, type).Game("CWA", kLastSunday, [](GameInfo& game) {
      game.Difficulty = kRockHard;
      game.Reputation = 0;
    });
    world.Session.ShowRating = 95;
    ScriptDraws(world, {});
    PlayerShowConsequences(world, true);
    EXPECT_EQ(world.Player().Image, 35) << type;
    EXPECT_EQ(world.Player().Money, 5000000 - kCharges[type - 1]) << type;
    for (const Cash& book :
         {world.Player().ThisMonth.SponsorIncome, world.Player().ThisMonth.ProductionCost})
      EXPECT_EQ(book, 0) << "outside the books";
  }
}

TEST(PlayerShowConsequences, CostImageAndAStrikeWhenTelevisionIsCalledOff) {
  World world = Company().Game("CWA", kFriday);
  world.Player().Risk = 90;
  ScriptDraws(world, {});
  PlayerShowConsequences(world, true);
  EXPECT_EQ(world.Player().Image, 35);
  EXPECT_EQ(world.Player().Money, 5000000);
  EXPECT_EQ(Named(world.Shows(), "Friday Fire").Rating4, 1);
  EXPECT_EQ(Named(world.Shows(), "Sunday Slam").Rating4, 0);
  EXPECT_EQ(NewsOf(world), "");
}

TEST(PlayerShowConsequences, FollowDifficultyAndReputation) {
  struct Case {
    int Difficulty, Reputation, Event, Tv;
  };
  constexpr Case kCases[] = {{kEasy, 80, 51, 51},     {kMedium, 80, 50, 50}, {kHard, 80, 48, 49},
                             {kRockHard, 80, 47, 48}, {kMedium, 25, 50, 50}, {kMedium, 24, 49, 49},
                             {kMedium, 1, 49, 49},    {kMedium, 0, 48, 49},  {kRockHard, 0, 45, 47},
                             {kEasy, 0, 49, 50}};
  for (const Case& c : kCases)
    for (const bool isEvent : {true, false}) {
      World world = Company(kRegional).Event(3, 3).Game("CWA", isEvent ? kLastSunday : kFriday,
                                                        [&](GameInfo& game) {
                                                          game.Difficulty = c.Difficulty;
                                                          game.Reputation = c.Reputation;
                                                        });
      world.Session.ShowRating = 45;  // of itself it changes nothing at this size
      PlayerShowConsequences(world, false);
      EXPECT_EQ(world.Player().Image, isEvent ? c.Event : c.Tv) << c.Difficulty << c.Reputation;
    }
}

TEST(PlayerShowConsequences, ReadTheRatingAtTheSizeTheShowLeft) {
  // At the edge of a class, reputation drops the promotion before the show is judged: a Regional
  // show of 95 then is worth 10.
  World world =
      Company().Event(3, 2).Game("CWA", kLastSunday, [](GameInfo& game) { game.Reputation = 10; });
  world.Player().Image = 1;
  world.Session.ShowRating = 95;
  PlayerShowConsequences(world, false);
  EXPECT_EQ(world.Player().Size, kCult) << "90 and 10 are 100: back up at once";
  EXPECT_EQ(world.Player().Image, 10);
}

struct ComplaintCase {
  const char* Slot;
  int Risk, Production, Strikes;
  const char* News;
};
constexpr const char* kRisky =
    "TV News: Nine are not happy with the risky nature of our last show. They are asking us to "
    "tone "
    "it down.\n";
constexpr const char* kPoor =
    "Nine: We are not happy with the production quality of Friday Fire, please improve your "
    "productions values ASAP.\n";

TEST(CheckShow, HearsTheNetworksComplaints) {
  const ComplaintCase kCases[] = {
      {"P", 60, 10, 0, ""},     {"P", 61, 10, 1, kRisky}, {"P", 60, 9, 1, kPoor},
      {"E", 20, 10, 0, ""},     {"E", 21, 10, 1, kRisky}, {"L", 70, 10, 0, ""},
      {"L", 71, 10, 1, kRisky}, {"G", 90, 10, 0, ""},     {"G", 91, 10, 1, kRisky}};
  for (const ComplaintCase& c : kCases)
    for (const bool isPlayers : {true, false}) {
      World world = SmallWorld()
                        .Network("Nine",
                                 [](Network& network) {
                                   network.EarlyRisk = 20;
                                   network.LateRisk = 70;
                                   network.GraveRisk = 90;
                                 })
                        .Promotion("CWA")
                        .Show("Friday Fire", "Friday", "Nine", [&](Show& s) { s.Slot = c.Slot; })
                        .Promotion("NEW")
                        .Game(isPlayers ? "CWA" : "NEW", kFriday);
      Promotion& promotion = Named(world.Promotions(), "CWA");
      promotion.Risk = c.Risk;
      promotion.Production = c.Production;
      CheckShow(world, promotion);
      EXPECT_EQ(world.Shows()[1].Rating4, c.Strikes) << c.Slot << c.Risk;
      EXPECT_EQ(NewsOf(world), isPlayers ? c.News : "") << c.Slot << c.Risk;
    }
  World both = Company().Game("CWA", kFriday);
  both.Player().Risk = 61;
  both.Player().Production = 0;
  CheckShow(both, both.Player());
  EXPECT_EQ(Named(both.Shows(), "Friday Fire").Rating4, 2);
  EXPECT_EQ(NewsOf(both), std::string(kRisky) + kPoor);
}

using std::chrono::year;

struct Post {
  int Position, Over;
};

/// A rival "NEW" with these people, shows on Friday and Sunday, and a player who minds his own.
SmallWorld Rival(int size, const std::vector<Post>& people) {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA", kRegional).Promotion("NEW", size);
  int number = 0;
  for (const Post& post : people)
    small.Worker("Hand " + std::to_string(++number), post.Position, post.Over);
  small.Show("New Hour", "Friday", "Nine").Show("New Sunday", "Sunday", "Nine");
  small.Sponsor("Gulp", [](Sponsor& s) { s.Pay = 105; });
  small.Sponsor("Crunch", [](Sponsor& s) { s.Pay = 95; });
  return small;
}

int ImageAfter(World world) {
  RivalShows(world);
  return Named(world.Promotions(), "NEW").Image;
}

// At Cult size a quality of 48 lifts an Event by 2 and television by 1; 47 takes 1 off.
TEST(RivalShows, WeighTheRosterForAnEvent) {
  std::vector<Post> people = {
      {kMainEvent, 60},        {kUpperMidcard, 40},  {kMidcard, 40}, {kNonWrestler, 44},
      {kManager, 44},          {kLowerMidcard, 100}, {kOpener, 0},   {kJobber, 100},
      {kDevelopmentDeal, 100}, {kTrainingCamp, 100}, {81, 100}};
  EXPECT_EQ(ImageAfter(Rival(kCult, people).Game("CWA", kLastSunday)), 52);
  people[3].Over = 43;
  EXPECT_EQ(ImageAfter(Rival(kCult, people).Game("CWA", kLastSunday)), 49);
}

TEST(RivalShows, WeighTheRosterForTelevision) {
  std::vector<Post> people = {{kMainEvent, 60},       {kUpperMidcard, 40}, {kMidcard, 40},
                              {kLowerMidcard, 44},    {kMidcard, 44},      {kNonWrestler, 0},
                              {kManager, 100},        {kOpener, 0},        {kJobber, 100},
                              {kDevelopmentDeal, 100}};
  EXPECT_EQ(ImageAfter(Rival(kCult, people).Game("CWA", kFriday)), 51);
  people[3].Over = 43;
  EXPECT_EQ(ImageAfter(Rival(kCult, people).Game("CWA", kFriday)), 49);
}

TEST(RivalShows, HoldAnEventThatNobodyHadPlanned) {
  const std::vector<Post> people(6, {kMidcard, 70});
  World world = Rival(kCult, people).Game("CWA", kLastSunday);
  ScriptDraws(world, {{50, 20}});
  RivalShows(world);
  const Promotion& rival = Named(world.Promotions(), "NEW");
  ASSERT_EQ(world.Events().Count(), 1);
  EXPECT_EQ(world.Events()[1].Name.View(), "NEW in March");
  EXPECT_EQ(rival.Image, 54);
  EXPECT_EQ(rival.ThisMonth.SponsorIncome, 200000);
  EXPECT_EQ(rival.ThisMonth.TicketIncome, 820 * 30);
  EXPECT_EQ(rival.ThisMonth.ProductionCost, 25000);
  EXPECT_EQ(rival.Money, 5000000 + 200000 + 24600 - 25000);
  EXPECT_EQ(rival.Merchandising, 60) << "and spends by its standing";
  EXPECT_EQ(NewsOf(world),
            "NEW News: NEW in March was attended by 820 people!\n"
            "They made $24600 from ticket sales.\n");
  EXPECT_EQ(Named(world.Shows(), "New Sunday").Rating3, 0) << "no television on an Event's day";
  EXPECT_EQ(world.Player().Money, 2000000) << "the player's own show is another step's";
}

TEST(RivalShows, SellAPayPerView) {
  World world = Rival(kGlobal, std::vector<Post>(3, {kMainEvent, 85})).Game("CWA", kLastSunday);
  ScriptDraws(world, {{4, 2}, {1000, 500}});
  RivalShows(world);
  const Promotion& rival = Named(world.Promotions(), "NEW");
  EXPECT_EQ(rival.Image, 54);
  EXPECT_EQ(rival.ThisMonth.PpvIncome, 144 * 25000);
  EXPECT_EQ(rival.Money, 20000000 + 200000 + 3600000 + 15500 * 60 - 1500000);
  EXPECT_EQ(NewsOf(world),
            "NEW News: NEW got a 1.44 buy rate for 'NEW in March'!\n"
            "The event was attended by 15500 people.\n"
            "They made $3600000 from pay-per-view revenue.\n"
            "They made $930000 from ticket sales.\n");
}

TEST(RivalShows, RunTelevisionWithTheThirdPersonsWords) {
  World world = Rival(kCult, std::vector<Post>(6, {kMidcard, 70})).Game("CWA", kFriday);
  Promotion& rival = Named(world.Promotions(), "NEW");
  rival.Risk = 61;
  ScriptDraws(world, {{10, 5}, {20, 12}});
  RivalShows(world);
  EXPECT_EQ(rival.Image, 52);
  EXPECT_EQ(rival.ThisMonth.SponsorIncome, 35000);
  EXPECT_EQ(rival.Money, 5000000 + 35000 + 412 * 30);
  const Show& show = Named(world.Shows(), "New Hour");
  EXPECT_EQ(show.Rating3, 225);
  EXPECT_EQ(show.Rating4, 1) << "a strike, and no mail to the player";
  EXPECT_EQ(NewsOf(world),
            "NEW News: NEW got a 2.25 television rating for 'New Hour'!\n"
            "The event was attended by 412 people.\nThey made $12360 from ticket sales.\n");
}

TEST(RivalShows, AreCalledOffWithTooFewPeople) {
  const std::vector<Post> people(5, {kMidcard, 70});
  World event = Rival(kNational, people).Game("CWA", kLastSunday);
  ScriptDraws(event, {});
  RivalShows(event);
  EXPECT_EQ(Named(event.Promotions(), "NEW").Image, 35);
  EXPECT_EQ(Named(event.Promotions(), "NEW").Money, 10000000 - 1000000);
  EXPECT_EQ(NewsOf(event), "NEW News: NEW were forced to cancel their last show.\n");

  World tv = Rival(kNational, people).Game("CWA", kFriday);
  ScriptDraws(tv, {});
  RivalShows(tv);
  EXPECT_EQ(Named(tv.Promotions(), "NEW").Image, 35);
  EXPECT_EQ(Named(tv.Promotions(), "NEW").Money, 10000000);
  EXPECT_EQ(Named(tv.Shows(), "New Hour").Rating4, 1);
  EXPECT_EQ(NewsOf(tv), "NEW News: NEW were forced to cancel their last television show.\n");

  for (const Day day : {kLastSunday, kFriday}) {
    World untold = Rival(kNational, people).Game("CWA", day);
    untold.Game().MailShows = untold.Game().MailTvShow = 2;
    RivalShows(untold);
    EXPECT_EQ(NewsOf(untold), "");
  }
}

}  // namespace
}  // namespace grapplemont::test
