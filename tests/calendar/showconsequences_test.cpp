#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

constexpr Day kLastSunday{year{2026} / 3 / 29};
constexpr Day kFriday{year{2026} / 3 / 6};

SmallWorld Company(int size = kCult) {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA", size).Crew(6).Show("Friday Fire", "Friday", "Nine");
  small.Show("Sunday Slam", "Sunday", "Nine");
  small.Sponsor("Gulp", [](Sponsor& s) { s.Pay = 105; });
  small.Sponsor("Crunch", [](Sponsor& s) { s.Pay = 95; });
  return small;
}

/// The one entry of the day: what it says of the show.
struct Remembered {
  int Kind, Rating, Viewers, People, Income, Costs;
};
void ExpectRemembered(const World& world, const char* name, bool calledOff,
                      const Remembered& expected) {
  ASSERT_EQ(world.History().Count(), 1) << name;
  const HistoryEntry& entry = world.History()[1];
  EXPECT_EQ(Day(entry.On), world.Today());
  EXPECT_EQ(entry.Kind, expected.Kind);
  EXPECT_EQ(entry.Name.View(), name);
  EXPECT_EQ(entry.CalledOff, calledOff);
  EXPECT_EQ(entry.Rating, expected.Rating);
  EXPECT_EQ(entry.Viewers, expected.Viewers);
  EXPECT_EQ(entry.Attendance, expected.People);
  EXPECT_EQ(entry.Income, expected.Income);
  EXPECT_EQ(entry.Costs, expected.Costs);
  EXPECT_EQ(entry.Money, world.Player().Money);
  EXPECT_EQ(entry.Image, world.Player().Image);
}

TEST(PlayerShowConsequences, PayTellAndRememberAnEvent) {
  World world = Company().Event(3, 2, "Marchmania").Game("CWA", kLastSunday);
  world.Session.ShowRating = 65;
  world.Session.ExtraCost = 70000;  // was charged when the Event began
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
  ExpectRemembered(world, "Marchmania", false,
                   {kPastEvent, 65, 0, 2250, 200000 + 2250 * 30, 270000});
  EXPECT_EQ(world.Session.ExtraCost, 0) << "the next show has none";
}

TEST(PlayerShowConsequences, PayTellAndRememberTelevision) {
  constexpr const char* kRisky =
      "TV News: Nine are not happy with the risky nature of our last show. They are asking us to "
      "tone it down.\n";
  constexpr const char* kPoor =
      "Nine: We are not happy with the production quality of Friday Fire, please improve your "
      "productions values ASAP.\n";
  struct Case {
    int Risk, Production, Strikes;
    std::string News;
  };
  for (const Case& c : {Case{60, 10, 0, ""},
                        {61, 10, 1, kRisky},
                        {60, 9, 1, kPoor},
                        {61, 9, 2, std::string(kRisky) + kPoor}}) {
    World world = Company().Event(3, 2).Game("CWA", kFriday);
    world.Player().Risk = c.Risk;
    world.Player().Production = c.Production;
    world.Session.ShowRating = 65;
    ScriptDraws(world, {{10, 5}, {20, 12}});
    PlayerShowConsequences(world, false);
    const Promotion& player = world.Player();
    EXPECT_EQ(player.Image, 51);
    EXPECT_EQ(player.ThisMonth.SponsorIncome, 26000 + 9000) << "a quarter and a tenth";
    EXPECT_EQ(player.ThisMonth.TicketIncome, 412 * 30);
    EXPECT_EQ(player.Money, 5000000 + 35000 + 412 * 30);
    EXPECT_EQ(Named(world.Shows(), "Friday Fire").Rating4, c.Strikes);
    EXPECT_EQ(NewsOf(world),
              c.News +
                  "Nine: The ratings for Friday Fire need to improve.\n"
                  "Television report: We got a 2.25 rating for 'Friday Fire'!\n"
                  "The attendance level was 412 people.\nWe made $12360 from ticket sales.\n");
    ExpectRemembered(world, "Friday Fire", false, {kPastTv, 65, 225, 412, 35000 + 412 * 30, 0});
  }
}

TEST(PlayerShowConsequences, CostMoneyAndImageWhenAShowIsNotHeld) {
  struct Case {
    Day On;
    int EventType;  // 0 none
    bool CalledOff;
    int Image, Cost;
  };
  // Goodwill and ratings move nothing then. Without an Event Sunday Slam does not happen either.
  for (const Case& c : {Case{kLastSunday, 1, true, 35, 2000000},
                        {kLastSunday, 2, true, 35, 1000000},
                        {kLastSunday, 3, true, 35, 100000},
                        {kLastSunday, 4, true, 35, 5000},
                        {kLastSunday, 0, false, 40, 0},
                        {kFriday, 0, true, 35, 0}}) {
    SCOPED_TRACE(c.EventType);
    SmallWorld small = Company();
    if (c.EventType != 0) small.Event(3, c.EventType);
    World world = small.Game(
        "CWA", c.On, [](GameInfo& game) { game.Difficulty = kRockHard, game.Reputation = 0; });
    world.Player().Risk = 90;
    world.Session.ShowRating = 95;
    ScriptDraws(world, {});
    PlayerShowConsequences(world, c.CalledOff);
    EXPECT_EQ(world.Player().Image, c.Image);
    EXPECT_EQ(world.Player().Money, 5000000 - c.Cost);
    EXPECT_EQ(world.Player().ThisMonth.ProductionCost, 0) << "outside the books";
    EXPECT_EQ(world.Player().ThisMonth.SponsorIncome, 0);
    EXPECT_EQ(Named(world.Shows(), "Friday Fire").Rating4, c.On == kFriday ? 1 : 0);
    EXPECT_EQ(Named(world.Shows(), "Sunday Slam").Rating4, 0);
    EXPECT_EQ(NewsOf(world), "");
    if (c.CalledOff)
      ExpectRemembered(world, c.EventType == 0 ? "Friday Fire" : "CWA in March", true,
                       {c.EventType == 0 ? kPastTv : kPastEvent, 0, 0, 0, 0, c.Cost});
    else
      EXPECT_EQ(world.History().Count(), 0);
  }
}

TEST(PlayerShowConsequences, FollowDifficultyAndReputation) {
  constexpr struct {
    int Difficulty, Reputation, Event, Tv;
  } kCases[] = {{kEasy, 80, 51, 51},   {kHard, 80, 48, 49},   {kRockHard, 80, 47, 48},
                {kMedium, 25, 50, 50}, {kMedium, 24, 49, 49}, {kMedium, 0, 48, 49}};
  for (const auto& c : kCases)
    for (const bool isEvent : {true, false}) {
      World world = Company(kRegional).Event(3, 3).Game(
          "CWA", isEvent ? kLastSunday : kFriday,
          [&](GameInfo& game) { game.Difficulty = c.Difficulty, game.Reputation = c.Reputation; });
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

struct Post {
  int Position, Over;
};

/// A rival "NEW" with these people, shows on Friday and Sunday, and a player who minds their own.
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

TEST(RivalShows, AreCalledOffWithTooFewPeople) {
  for (const bool isEvent : {true, false})
    for (const bool isTold : {true, false}) {
      World world = Rival(kNational, std::vector<Post>(5, {kMidcard, 70}))
                        .Game("CWA", isEvent ? kLastSunday : kFriday);
      if (!isTold) world.Game().MailShows = world.Game().MailTvShow = 2;
      ScriptDraws(world, {});
      RivalShows(world);
      EXPECT_EQ(Named(world.Promotions(), "NEW").Image, 35);
      EXPECT_EQ(Named(world.Promotions(), "NEW").Money, 10000000 - (isEvent ? 1000000 : 0));
      EXPECT_EQ(Named(world.Shows(), "New Hour").Rating4, isEvent ? 0 : 1);
      EXPECT_EQ(NewsOf(world), !isTold ? ""
                               : isEvent
                                   ? "NEW News: NEW were forced to cancel their last show.\n"
                                   : "NEW News: NEW were forced to cancel their last television "
                                     "show.\n");
    }
}

}  // namespace
}  // namespace grapplemont::test
