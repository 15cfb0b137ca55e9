#include <gtest/gtest.h>
#include <map>

#include "show/attendance.h"
#include "show/ratings.h"
#include "show/showresults.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// All figures of a table's row in two numbers: each counts as often as the image it stands for.
template <class Row>
std::string SumOf(Row row) {
  int base = 0, draw = 0;
  for (int image = 0; image <= 100; ++image) {
    const BaseAndDraw found = row(image);
    base += (image + 1) * found.Base;
    draw += (image + 1) * found.Draw;
  }
  return std::to_string(base) + " " + std::to_string(draw);
}

/// By size, from Global.
using BySize = std::vector<std::string>;

template <class Table>
BySize SumsOf(Table table) {
  BySize sums;
  for (int size = kGlobal; size <= kBackyard; ++size)
    sums.push_back(SumOf([&](int image) { return table(size, image); }));
  return sums;
}

TEST(Crowds, AreWhatTheTablesSayAtEveryImage) {
  const BySize kEvents[] = {
      {"84450000 5151000", "39121500 1030200", "20181200 515100", "12558000 515100", "0 0", "0 0"},
      {"25755000 2575500", "20181200 515100", "12558000 515100", "4811200 474100", "1853125 217200",
       "257550 515100"},
      {"10302000 2575500", "7726500 1287750", "4746950 257550", "2111250 103020", "1088675 51510",
       "370350 51510"},
      {"5151000 1030200", "5151000 515100", "3863250 1287750", "2575500 1030200", "631500 51510",
       "184955 25755"}};
  for (int type = 1; type <= 4; ++type)
    EXPECT_EQ(SumsOf([&](int size, int image) { return EventCrowd(type, size, image); }),
              kEvents[type - 1])
        << type;
  for (const int type : {0, 5, -1}) EXPECT_EQ(EventCrowd(type, 1, 50).Base, 0);
  EXPECT_EQ(SumsOf(TvCrowd), (BySize{"40322500 257550", "11968000 52060", "2204100 103020",
                                     "936960 51235", "370350 51235", "5151 46359"}));
  EXPECT_EQ(SumsOf(BuyRateBase),
            (BySize{"821346 20604", "328086 20604", "162091 17364", "51046 17364", "0 0", "0 0"}));
  EXPECT_EQ(SumsOf(TvRatingBase), (BySize{"3557840 51510", "2307550 51510", "1247940 51510",
                                          "497390 51510", "69416 24267", "5151 10302"}));
}

TEST(Gates, FollowTheEconomy) {
  // Economy, then what comes of 995 people at an Event and at a television show.
  constexpr int kCases[][3] = {
      {100, 1094, 1194}, {91, 1094, 1194}, {90, 1094, 1094}, {86, 1094, 1094}, {85, 995, 1094},
      {81, 995, 1094},   {80, 995, 995},   {30, 995, 995},   {29, 895, 995},   {20, 895, 995},
      {19, 796, 796},    {10, 796, 796},   {9, 696, 696},    {0, 696, 696},    {-5, 696, 696}};
  for (const auto& [economy, event, tv] : kCases) {
    EXPECT_EQ(EventGate(995, {kCult, 30, economy}), event) << economy;
    EXPECT_EQ(TvGate(995, {kCult, 30, economy}), tv) << economy;
  }
}

TEST(Gates, FollowThePriceStepByStep) {
  // Dollars from the fair price, then what comes of 997 people.
  constexpr int kCases[][2] = {{-20, 1370}, {-11, 1370}, {-10, 1096}, {-6, 1096}, {-5, 997},
                               {0, 997},    {5, 997},    {6, 897},    {10, 897},  {11, 717},
                               {15, 717},   {16, 501},   {20, 501},   {21, 300},  {25, 300},
                               {26, 150},   {30, 150},   {31, 60},    {90, 60}};
  for (const auto& [off, people] : kCases) {
    EXPECT_EQ(EventGate(997, {kNational, 40 + off, 60}), people) << off;
    EXPECT_EQ(TvGate(997, {kGlobal, 60 + off, 60}), people) << off;
  }
}

TEST(Gates, StayEmptyAtAPriceThatNobodyPays) {
  constexpr int kLimits[][2] = {{kCult, 71}, {kRegional, 51}, {kSmall, 26}, {kBackyard, 16}};
  for (const auto& [size, limit] : kLimits) {
    EXPECT_EQ(EventGate(10000, {size, limit, 60}), 0) << size;
    EXPECT_EQ(TvGate(10000, {size, limit, 60}), 0) << size;
    EXPECT_GT(EventGate(10000, {size, limit - 1, 60}), 0) << size;
  }
  for (const int size : {kGlobal, kNational})
    EXPECT_GT(EventGate(10000, {size, 1000, 60}), 0) << size;
}

TEST(Gates, TellHowTheirCrowdCameAbout) {
  const Score gate = EventGate(1000, {kRegional, 52, 95});
  std::string told;
  for (const ScoreStep& step : gate.Steps())
    told += step.Why + " " + std::to_string(step.Change) + "\n";
  EXPECT_EQ(told,
            "size and image 1000\neconomy 95 100\ntickets $32 above the fair price -1034\n"
            "nobody pays $52 -66\n");
  EXPECT_EQ(EventGate(1000, {kRegional, 20, 60}).Steps().size(), 1u)
      << "what does nothing is silent";
}

TEST(Attendance, DrawsOnceOnTopOfTheBase) {
  World world = SmallWorld().Promotion("CWA", kCult).Game("CWA");
  Promotion& promotion = world.Player();
  promotion.Image = 47;
  promotion.TicketPrice = 30;
  world.Game().Economy = 25;
  ScriptDraws(world, {{100, 60}, {50, 7}, {20, 20}});
  EXPECT_EQ(EventAttendance(world, promotion, 2), (2000 + 60) * 9 / 10);
  EXPECT_EQ(EventAttendance(world, promotion, 3), (700 + 7) * 9 / 10);
  EXPECT_EQ(TvAttendance(world, promotion), 400);
  promotion.Size = kSmall;
  EXPECT_EQ(EventAttendance(world, promotion, 1), 0) << "and nothing was drawn";
}

struct Band {
  int Low, High, Base, Draw;
};

TEST(BuyRate, FollowsAPoorEconomyOnly) {
  constexpr int kCases[][2] = {{105, 123}, {100, 123}, {30, 123}, {29, 110}, {20, 110},
                               {19, 98},   {10, 98},   {9, 86},   {0, 86},   {-6, 86}};
  for (const auto& [economy, rate] : kCases) EXPECT_EQ(BuyRateByEconomy(123, economy), rate);
}

TEST(BuyRate, DrawsOnceAndPaysByTheHundredth) {
  World world = SmallWorld().Promotion("CWA", kNational).Game("CWA");
  Promotion& promotion = world.Player();
  promotion.Image = 80;
  world.Game().Economy = 15;
  ScriptDraws(world, {{4, 3}});
  EXPECT_EQ(BuyRate(world, promotion), 63) << "79 by 0.8";
  promotion.Size = kSmall;
  EXPECT_EQ(BuyRate(world, promotion), 0);
  EXPECT_EQ(PpvIncome(100), 2'500'000);
}

TEST(TvRating, FollowsTheEconomyAboveTheBackyard) {
  constexpr int kCases[][2] = {{104, 246}, {100, 246}, {91, 246}, {90, 225}, {81, 225}, {80, 205},
                               {20, 205},  {19, 184},  {10, 184}, {9, 164},  {0, 164},  {-3, 164}};
  for (const auto& [economy, rating] : kCases) {
    EXPECT_EQ(TvRatingByEconomy(205, kSmall, economy), rating) << economy;
    EXPECT_EQ(TvRatingByEconomy(205, kBackyard, economy), 205) << economy;
  }
  World world = SmallWorld().Promotion("CWA", kRegional).Game("CWA");
  world.Game().Economy = 5;
  ScriptDraws(world, {{10, 4}, {2, 2}});
  EXPECT_EQ(TvBaseRating(world, kRegional, 81), 99) << "124 by 0.8";
  EXPECT_EQ(TvBaseRating(world, kBackyard, 81), 3);
}

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
