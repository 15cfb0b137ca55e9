#include <gtest/gtest.h>

#include "show/attendance.h"
#include "show/ratings.h"
#include "show/showresults.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// All figures of a table's row in two numbers, by size: each counts as often as the image it
/// stands for.
template <class Table>
std::vector<std::string> SumsOf(Table table) {
  std::vector<std::string> sums;
  for (int size = kGlobal; size <= kBackyard; ++size) {
    int base = 0, draw = 0;
    for (int image = 0; image <= 100; ++image) {
      const BaseAndDraw found = table(size, image);
      base += (image + 1) * found.Base;
      draw += (image + 1) * found.Draw;
    }
    sums.push_back(std::to_string(base) + " " + std::to_string(draw));
  }
  return sums;
}

TEST(Crowds, AreWhatTheTablesSayAtEveryImage) {
  using BySize = std::vector<std::string>;  // from Global
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
  for (const int type : {0, 5}) EXPECT_EQ(EventCrowd(type, 1, 50).Base, 0);
  EXPECT_EQ(SumsOf(TvCrowd), (BySize{"40322500 257550", "11968000 52060", "2204100 103020",
                                     "936960 51235", "370350 51235", "5151 46359"}));
  EXPECT_EQ(SumsOf(BuyRateBase),
            (BySize{"821346 20604", "328086 20604", "162091 17364", "51046 17364", "0 0", "0 0"}));
  EXPECT_EQ(SumsOf(TvRatingBase), (BySize{"3557840 51510", "2307550 51510", "1247940 51510",
                                          "497390 51510", "69416 24267", "5151 10302"}));
}

TEST(Crowds, FollowTheEconomy) {
  // Economy, what comes of 995 people at an Event and a television show, then the buy rate of 79
  // and the television rating of 125.
  constexpr int kCases[][5] = {{91, 1094, 1194, 79, 150}, {90, 1094, 1094, 79, 137},
                               {85, 995, 1094, 79, 137},  {30, 995, 995, 79, 125},
                               {19, 796, 796, 63, 112},   {-5, 696, 696, 55, 100}};
  for (const auto& [economy, event, tv, buys, rating] : kCases) {
    EXPECT_EQ(EventGate(995, {kCult, 30, economy}), event) << economy;
    EXPECT_EQ(TvGate(995, {kCult, 30, economy}), tv) << economy;
    World world = SmallWorld().Promotion("CWA", kNational).Game("CWA");
    world.Player().Image = 80;
    world.Game().Economy = economy;
    ScriptDraws(world, {{4, 3}, {10, 5}, {2, 2}});
    EXPECT_EQ(BuyRate(world, world.Player()), buys) << economy;
    EXPECT_EQ(TvBaseRating(world, kRegional, 81), rating) << economy;
    EXPECT_EQ(TvBaseRating(world, kBackyard, 81), 3) << economy;
  }
}

TEST(Crowds, FollowThePriceStepByStep) {
  // Dollars from the fair price, then what comes of 997 people.
  constexpr int kCases[][2] = {{-11, 1370}, {-10, 1096}, {-5, 997}, {5, 997},  {6, 897},
                               {11, 717},   {16, 501},   {21, 300}, {26, 150}, {31, 60}};
  for (const auto& [off, people] : kCases) {
    EXPECT_EQ(EventGate(997, {kNational, 40 + off, 60}), people) << off;
    EXPECT_EQ(TvGate(997, {kGlobal, 60 + off, 60}), people) << off;
  }
  constexpr int kNobody[][2] = {{kCult, 71}, {kRegional, 51}, {kSmall, 26}, {kBackyard, 16}};
  for (const auto& [size, limit] : kNobody) {
    EXPECT_EQ(TvGate(10000, {size, limit, 60}), 0) << size;
    EXPECT_GT(EventGate(10000, {size, limit - 1, 60}), 0) << size;
  }
  EXPECT_GT(EventGate(10000, {kNational, 1000, 60}), 0);
}

TEST(Crowds, TellSizeLuckEconomyAndPriceApart) {
  World world = SmallWorld().Promotion("CWA", kNational).Game("CWA");
  world.Player().Image = 80;
  world.Player().TicketPrice = 40;
  world.Game().Economy = 60;
  ScriptDraws(world, {{10, 7}});
  EXPECT_EQ(WhyText("people", TvAttendance(world, world.Player())),
            "3000: National with an image of 80%\n+7 luck of the day, 1 to 10\n+0 economy 60\n"
            "+0 tickets at the fair price\n= 3007 people");
}

constexpr Day kFriday{std::chrono::year{2026} / 3 / 6};

TEST(EventReport, OfAPayPerViewNeedsASizeThatHoldsOne) {
  for (const auto& [size, draws, news] :
       {std::tuple(kNational, std::vector{4, 150},
                   "PPV report: We got a 0.80 buy rate for 'Spectacle'!\n"
                   "The attendance was 8650 people.\n"
                   "We made $2000000 from pay-per-view revenue.\n"
                   "We made $346000 from ticket sales.\n"),
        {kSmall,
         {},
         "Show report: Spectacle was attended by 0 people!\nWe made $0 from ticket sales.\n"}}) {
    World world = SmallWorld().Promotion("CWA", size).Game("CWA");
    world.Player().Image = 80;
    ScriptDraws(world, draws);
    Event spectacle;
    spectacle.Name = "Spectacle";
    EventReport(world, world.Player(), spectacle, 1);
    EXPECT_EQ(NewsOf(world), news);
  }
}

TEST(TvReport, CutsToTheSlotsAudienceAndComplainsBelowItsFloor) {
  // A Cult promotion at image 50 draws of 10 on top of 200. Its rival is worth 40, but no viewers
  // that the slot does not reach.
  constexpr int kCases[][3] = {
      {150, 150, 0}, {220, 220, 0}, {408, 245, 0}, {409, 245, 0}, {410, 245, 1}};
  for (const auto& [audience, rating, complains] : kCases) {
    const auto network = [](int viewers) { return [=](Network& n) { n.PrimeAudience = viewers; }; };
    World world = SmallWorld()
                      .Network("Nine", network(audience))
                      .Network("Ten", network(3))
                      .Promotion("CWA", kCult)
                      .Show("Fire", "Friday", "Nine")
                      .Promotion("NEW", kSmall)
                      .Show("Rival Hour", "Friday", "Ten")
                      .Game("CWA", kFriday);
    ScriptDraws(world, {{10, 5}, {5, 1}, {20, 1}});
    TvReport(world, world.Player());
    EXPECT_EQ(world.Shows()[1].Rating3, rating) << audience;
    EXPECT_EQ(
        NewsOf(world).find("Nine: The ratings for Fire need to improve.\n") != std::string::npos,
        complains != 0)
        << audience;
  }
}

TEST(HeadToHead, KeepsItsLimitsAndGaps) {
  const std::string worst =
      "Maeve: Going head-to-head with Rival Hour cost us a lot of viewers, we came out worst!\n";
  const std::string close =
      "Maeve: Our ratings battle with Rival Hour is so close that neither show is gaining a clear "
      "advantage!\n";
  const struct {
    int Lead;  // of the rival, whose network reaches 500
    int Change;
    std::string News;
  } kContests[] = {
      {78, 0, close},
      {-78, 0, close},
      {80, 0, ""},
      {81, -40, worst},
      {199, -40, worst},
      {201, -80,
       "Maeve: Competing with Rival Hour is hurting us, they're taking most of our viewers!\n"},
      {-81, 20, "Maeve: We won the head-to-head with Rival Hour in the ratings!\n"},
      {-201, 40,
       "Maeve: Rival Hour are trying to compete with us, but are being destroyed in the "
       "ratings.\n"},
      {-400, 0, ""}};
  for (const auto& c : kContests)
    for (const bool isPlayers : {true, false}) {
      World world = SmallWorld()
                        .Network("Nine")
                        .Network("Ten")
                        .Promotion("CWA", kCult)
                        .Show("Fire", "Friday", "Nine")
                        .Promotion("NEW", kGlobal)
                        .Show("Rival Hour", "Friday", "Ten")
                        .Show("Other Day", "Monday", "Nine")
                        .Show("Other Slot", "Friday", "Nine", [](Show& show) { show.Slot = "E"; })
                        .Promotion("OTH")
                        .Game(isPlayers ? "CWA" : "OTH", kFriday);
      ScriptDraws(world, {{10, 3}});
      Score rating;
      rating.Add(500 - c.Lead, "on its own");
      HeadToHead(world, world.Shows()[1], rating);
      EXPECT_EQ(int(rating), 500 - c.Lead + c.Change);
      if (c.Change != 0) {
        EXPECT_EQ(rating.Steps().back().Why, "Rival Hour at the same hour");
      }
      EXPECT_EQ(NewsOf(world), isPlayers ? c.News : "") << c.Lead;
    }
}

}  // namespace
}  // namespace grapplemont::test
