#include "show/showresults.h"
#include "show/attendance.h"

#include <gtest/gtest.h>

#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

constexpr Day kFriday{year{2026} / 3 / 6};

const Event kSpectacle = [] {
  Event event;
  event.Name = "Spectacle";
  return event;
}();

TEST(EventReport, TellsOfAPayPerViewToTheLetter) {
  World world = SmallWorld().Promotion("CWA", kNational).Game("CWA");
  Promotion& player = world.Player();
  player.Image = 80;
  ScriptDraws(world, {{4, 4}, {200, 150}});
  EventReport(world, player, kSpectacle, 1);
  EXPECT_EQ(NewsOf(world),
            "PPV report: We got a 0.80 buy rate for 'Spectacle'!\n"
            "The attendance was 8650 people.\n"
            "We made $2000000 from pay-per-view revenue.\n"
            "We made $346000 from ticket sales.\n");
  EXPECT_EQ(player.ThisMonth.PpvIncome, 2000000);
  EXPECT_EQ(player.ThisMonth.TicketIncome, 346000);
  EXPECT_EQ(player.ThisMonth.ProductionCost, 1500000);
  EXPECT_EQ(player.Money, 10000000 + 2000000 + 346000 - 1500000);
}

TEST(EventReport, WritesABuyRateWithTwoDigitsBehindThePoint) {
  World world = SmallWorld().Promotion("CWA", kRegional).Game("CWA");
  world.Player().Image = 50;
  ScriptDraws(world, std::vector<int>{1, 1});
  EventReport(world, world.Player(), kSpectacle, 1);
  EXPECT_EQ(NewsOf(world).substr(0, 50), "PPV report: We got a 0.07 buy rate for 'Spectacle'");
}

TEST(EventReport, ChargesEachTypeItsProduction) {
  struct Case {
    int Type, Draw, People, Cost;
  };
  constexpr Case kCases[] = {{2, 100, 2300, 200000}, {3, 50, 850, 25000}, {4, 250, 1000, 1000}};
  for (const Case& c : kCases) {
    World world = SmallWorld().Promotion("CWA", kCult).Game("CWA");
    ScriptDraws(world, {{c.Draw, c.Draw}});
    EventReport(world, world.Player(), kSpectacle, c.Type);
    EXPECT_EQ(world.Player().Money, 5000000 + c.People * 30 - c.Cost) << c.Type;
    EXPECT_EQ(NewsOf(world), "Show report: Spectacle was attended by " + std::to_string(c.People) +
                                 " people!\nWe made $" + std::to_string(c.People * 30) +
                                 " from ticket sales.\n");
  }
}

TEST(EventReport, LetsNobodyComeToAnOverpricedBackyard) {
  World world = SmallWorld().Promotion("CWA", kBackyard).Game("CWA");
  world.Player().TicketPrice = 16;
  ScriptDraws(world, {{5, 5}});
  EventReport(world, world.Player(), kSpectacle, 4);
  EXPECT_EQ(world.Player().ThisMonth.TicketIncome, 0);
  EXPECT_EQ(NewsOf(world),
            "Show report: Spectacle was attended by 0 people!\nWe made $0 from ticket sales.\n");
}

TEST(EventReport, SellsNoPayPerViewThatIsTooBigForItsPromotion) {
  World world = SmallWorld().Promotion("CWA", kSmall).Game("CWA");
  ScriptDraws(world, {});
  EventReport(world, world.Player(), kSpectacle, 1);
  EXPECT_EQ(world.Player().Money, 500000 - 1500000);
  EXPECT_EQ(NewsOf(world),
            "Show report: Spectacle was attended by 0 people!\nWe made $0 from ticket sales.\n");
}

TEST(EventReport, FollowsTicketPriceAndEconomyOneAfterTheOther) {
  World world = SmallWorld().Promotion("CWA", kCult).Game("CWA");
  world.Game().Economy = 25;
  world.Player().TicketPrice = 47;  // 17 too dear: three steps
  ScriptDraws(world, {{100, 33}});
  EventReport(world, world.Player(), kSpectacle, 2);
  // 2233 by 0.9 are 2009; by 0.9 1808, by 0.8 1446, by 0.7 1012.
  EXPECT_EQ(world.Player().ThisMonth.TicketIncome, 1012 * 47);
}

// A Cult promotion at image 50 draws of 10 on top of 200.
SmallWorld OnAir(const Change<Network>& network = {}, const Change<Show>& show = {}) {
  SmallWorld small;
  small.Network("Nine", network).Promotion("CWA", kCult).Show("Fire", "Friday", "Nine", show);
  return small;
}

TEST(TvReport, CutsToTheSlotsAudienceAndComplainsBelowItsFloor) {
  struct Case {
    const char* Slot;
    int Audience;
    int Rating;
    bool Complains;
  };
  constexpr Case kCases[] = {{"E", 150, 150, false}, {"P", 205, 205, false}, {"L", 341, 205, false},
                             {"G", 342, 205, false}, {"G", 343, 205, false}, {"P", 344, 205, true},
                             {"E", 400, 205, true}};
  for (const Case& c : kCases) {
    World world = OnAir(
                      [&](Network& network) {
                        for (Hundredths* audience : {&network.EarlyAudience, &network.PrimeAudience,
                                                     &network.LateAudience, &network.GraveAudience})
                          *audience = 7;
                        (*c.Slot == 'E'   ? network.EarlyAudience
                         : *c.Slot == 'P' ? network.PrimeAudience
                         : *c.Slot == 'L' ? network.LateAudience
                                          : network.GraveAudience) = c.Audience;
                      },
                      [&](Show& show) { show.Slot = c.Slot; })
                      .Game("CWA", kFriday);
    ScriptDraws(world, {{10, 5}, {20, 1}});
    TvReport(world, world.Player());
    EXPECT_EQ(world.Shows()[1].Rating3, c.Rating) << c.Slot << c.Audience;
    EXPECT_EQ(NewsOf(world).rfind("Nine: The ratings for Fire need to improve.\n", 0) == 0,
              c.Complains)
        << c.Slot << c.Audience;
  }
}

TEST(TvReport, KeepsHighestLowestAndLast) {
  struct Case {
    int Before[3];
    int After[3];
  };
  // The show gets 205.
  constexpr Case kCases[] = {{{0, 0, 0}, {205, 205, 205}},
                             {{300, 100, 150}, {300, 100, 205}},
                             {{204, 100, 150}, {205, 100, 205}},
                             {{300, 206, 250}, {300, 205, 205}},
                             {{205, 205, 300}, {205, 205, 205}}};
  for (const Case& c : kCases) {
    World world = OnAir({}, [&](Show& show) {
                    show.Rating1 = c.Before[0];
                    show.Rating2 = c.Before[1];
                    show.Rating3 = c.Before[2];
                  }).Game("CWA", kFriday);
    ScriptDraws(world, {5, 1});
    TvReport(world, world.Player());
    const Show& show = world.Shows()[1];
    EXPECT_EQ(show.Rating1, c.After[0]);
    EXPECT_EQ(show.Rating2, c.After[1]);
    EXPECT_EQ(show.Rating3, c.After[2]);
  }
}

TEST(TvReport, GainsNothingBeyondTheSlotsAudienceByAContestWon) {
  struct Case {
    int Audience;
    int Rating;
  };
  // A Cult show of 205 beats a Small one by more than 200, which is worth 40.
  constexpr Case kCases[] = {{400, 245}, {245, 245}, {244, 244}, {220, 220}, {205, 205}};
  for (const Case& c : kCases) {
    World world = OnAir([&](Network& network) { network.PrimeAudience = c.Audience; },
                        [](Show& show) { show.Slot = "P"; })
                      .Network("Ten", [](Network& network) { network.PrimeAudience = 3; })
                      .Promotion("NEW", kSmall)
                      .Show("Rival Hour", "Friday", "Ten", [](Show& show) { show.Slot = "P"; })
                      .Game("CWA", kFriday);
    ScriptDraws(world, {{10, 5}, {5, 1}, {20, 1}});
    TvReport(world, world.Player());
    EXPECT_EQ(world.Shows()[1].Rating3, c.Rating) << c.Audience;
  }
}

TEST(TvReport, LosesToNothingWorseThanOne) {
  // A Small show against a Cult one loses 80 and more than it has.
  World world = SmallWorld()
                    .Network("Nine")
                    .Network("Ten")
                    .Promotion("CWA", kSmall)
                    .Show("Fire", "Friday", "Nine")
                    .Promotion("NEW", kCult)
                    .Show("Rival Hour", "Friday", "Ten")
                    .Game("CWA", kFriday);
  ScriptDraws(world, {{5, 2}, {10, 10}, {10, 1}});
  TvReport(world, world.Player());
  EXPECT_EQ(world.Shows()[1].Rating3, 1);
}

TEST(TvReport, NeedsANetworkAndAShowToday) {
  World world = OnAir().Game("CWA", kFriday + std::chrono::days{1});
  const World before = CopyOf(world);
  ScriptDraws(world, {});
  TvReport(world, world.Player());
  world.Game().Today = kFriday;
  world.Shows()[1].Network = 99;
  TvReport(world, world.Player());
  world.Game().Today = kFriday + std::chrono::days{1};
  world.Shows()[1].Network = world.Networks()[1].Uid;
  ExpectSame(world, before);
}

/// R against V, through a rival network that reaches V at most.
struct Contest {
  int Lead;  // V - R
  int Change;
  const char* News;
};
constexpr const char* kClose =
    "Maeve: Our ratings battle with Rival Hour is so close that neither show is gaining a clear "
    "advantage!\n";
constexpr const char* kWorst =
    "Maeve: Going head-to-head with Rival Hour cost us a lot of viewers, we came out worst!\n";
constexpr const char* kHurting =
    "Maeve: Competing with Rival Hour is hurting us, they're taking most of our viewers!\n";
constexpr const char* kWon = "Maeve: We won the head-to-head with Rival Hour in the ratings!\n";
constexpr const char* kDestroyed =
    "Maeve: Rival Hour are trying to compete with us, but are being destroyed in the ratings.\n";

TEST(HeadToHead, KeepsItsLimitsAndGaps) {
  constexpr Contest kContests[] = {
      {0, 0, kClose},     {78, 0, kClose},        {-78, 0, kClose},       {79, 0, ""},
      {80, 0, ""},        {-79, 0, ""},           {-80, 0, ""},           {81, -40, kWorst},
      {199, -40, kWorst}, {200, 0, ""},           {201, -80, kHurting},   {399, -80, kHurting},
      {400, 0, ""},       {450, 0, ""},           {-81, 20, kWon},        {-199, 20, kWon},
      {-200, 0, ""},      {-201, 40, kDestroyed}, {-399, 40, kDestroyed}, {-400, 0, ""},
      {-450, 0, ""}};
  constexpr int kRival = 500;  // what the rival's network reaches, well below what it could get
  for (const Contest& c : kContests)
    for (const bool isPlayers : {true, false}) {
      World world = SmallWorld()
                        .Network("Nine")
                        .Network("Ten")
                        .Promotion("CWA", kCult)
                        .Show("Fire", "Friday", "Nine")
                        .Promotion("NEW", kGlobal)
                        .Show("Rival Hour", "Friday", "Ten")
                        .Promotion("OTH")
                        .Game(isPlayers ? "CWA" : "OTH", kFriday);
      ScriptDraws(world, {{10, 3}});
      const int rating = kRival - c.Lead;
      EXPECT_EQ(HeadToHead(world, world.Shows()[1], rating), rating + c.Change) << c.Lead;
      EXPECT_EQ(NewsOf(world), isPlayers ? c.News : "") << c.Lead;
    }
}

TEST(HeadToHead, GoesThroughTheCompetitorsInTheOrderOfTheFile) {
  World world = SmallWorld()
                    .Network("Eight")
                    .Network("Nine")
                    .Network("Ten", [](Network& network) { network.PrimeAudience = 280; })
                    .Promotion("NEW", kGlobal)
                    .Show("First", "Friday", "Eight")
                    .Promotion("CWA", kCult)
                    .Show("Fire", "Friday", "Nine")
                    .Promotion("OTH", kGlobal)
                    .Show("Other Day", "Monday", "Nine")
                    .Show("Other Slot", "Friday", "Nine", [](Show& show) { show.Slot = "E"; })
                    .Show("Second", "Friday", "Ten")
                    .Game("CWA", kFriday);
  ScriptDraws(world, {{10, 1}, {10, 1}});
  // 320 loses 40 to the first, which has 500, and meets the second, which has 280, at 280.
  EXPECT_EQ(HeadToHead(world, Named(world.Shows(), "Fire"), 320), 280);
  EXPECT_EQ(NewsOf(world),
            "Maeve: Going head-to-head with First cost us a lot of viewers, we came out worst!\n"
            "Maeve: Our ratings battle with Second is so close that neither show is gaining a "
            "clear advantage!\n");
}

}  // namespace
}  // namespace grapplemont::test
