#include "business/networks.h"

#include <gtest/gtest.h>

#include "records/severing.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

Change<Network> Grave(int audience, int risk = 60, bool generic = false) {
  return [=](Network& n) { n.GraveAudience = audience, n.GraveRisk = risk, n.Generic = generic; };
}

/// The player "CWA" has the uid 4, so that the rival "NEW" can be any of the others.
SmallWorld RivalOf(int uid, int size) {
  SmallWorld small;
  small.Network("Nine", Grave(10));
  for (int other = 1; other <= 5; ++other)
    small.Promotion(other == 4     ? "CWA"
                    : other == uid ? "NEW"
                                   : "P" + std::to_string(other),
                    other == uid ? size : kRegional,
                    [](Promotion& p) { p.Risk = 60, p.Image = 50; });
  small.Game("CWA");
  return small;
}

void AddShows(World& world, int owner, const std::vector<const char*>& days, const char* slot,
              int network = 1) {
  for (const char* day : days) {
    Show show;
    show.Name = std::to_string(owner) + " on " + day;
    show.Owner = owner;
    show.Day = day;
    show.Slot = slot;
    show.Network = network;
    show.ContractWeeks = 10;
    world.Shows().Append(show);
  }
}

using Draws = std::vector<ScriptedDraw>;
const Draws kSigned = {{6, 2}, {100, 50}, {7, 3}, {7, 5}, {7, 4}};

// A Cult rival of image 50 could draw 320: eight tenths of 401 are 320, of 402 they are 321.
TEST(RivalNewTvShows, AskInThisOrder) {
  const struct {
    const char* What;
    int Audience, Risk, Shows;
    bool Generic;
    Draws Script;
    bool Signs;
  } kCases[] = {
      {"too risky draws nothing", 10, 59, 0, false, {}, false},
      {"full draws nothing", 10, 60, 28, false, {}, false},
      {"full but generic", 10, 60, 28, true, kSigned, true},
      {"over-full", 10, 60, 29, false, kSigned, true},
      {"just enough draw", 401, 60, 0, false, kSigned, true},
      {"too few draw, after the draw", 402, 60, 0, false, {{6, 2}}, false},
      {"no interest on 1", 10, 60, 0, false, {{6, 1}}, false},
  };
  for (const auto& c : kCases) {
    World world = RivalOf(5, kCult);
    Grave(c.Audience, c.Risk, c.Generic)(world.Networks()[1]);
    AddShows(world, 0, std::vector<const char*>(static_cast<std::size_t>(c.Shows), "Monday"), "E");
    ScriptDraws(world, c.Script);
    RivalNewTvShows(world);
    ASSERT_EQ(world.Shows().Count(), c.Shows + (c.Signs ? 1 : 0)) << c.What;
    if (!c.Signs) continue;
    const Show& show = world.Shows()[c.Shows + 1];
    EXPECT_EQ(show.Slot.View(), "G");
    EXPECT_EQ(show.ContractWeeks, 12);
    EXPECT_EQ(NewsOf(world), "TV News: NEW have a new TV show on Thursdays!\n");
  }
}

TEST(RivalNewTvShows, AreForOthersOfCultSizeAndAbove) {
  for (const int size : {kRegional, kBackyard}) {
    World world = RivalOf(5, size);
    world.Player().Size = kGlobal;
    ScriptDraws(world, Draws{});
    RivalNewTvShows(world);
    EXPECT_EQ(world.Shows().Count(), 0);
  }
  World world = RivalOf(5, kGlobal);
  world.Promotions()[5].Name = kToBeDeleted;
  ScriptDraws(world, Draws{});
  RivalNewTvShows(world);
  world.Promotions()[5].Name = "NEW Wrestling";
  AddShows(world, 5, {"Monday", "Tuesday", "Friday"}, "P");
  ScriptDraws(world, Draws{{6, 2}, {100, 9}});
  RivalNewTvShows(world);
  EXPECT_EQ(world.Shows().Count(), 3) << "nobody has a fourth";
}

TEST(RivalNewTvShows, GoToTheBiggestNetworkATieToTheEarlier) {
  for (const auto& [first, second, third, network] :
       {std::tuple(50, 40, 1, 1), {50, 41, 1, 2}, {1, 1, 100, 4}}) {
    World world = SmallWorld()
                      .Network("Nine", Grave(100))
                      .Network("Ten", Grave(110))
                      .Network("Shut", Grave(390, 10))
                      .Network("Eleven", Grave(90))
                      .Promotion("CWA")
                      .Promotion("NEW", kCult)
                      .Game("CWA");
    ScriptDraws(world, Draws{{6, 2},
                             {100, first},
                             {6, 2},
                             {100, second},
                             {6, 2},
                             {100, third},
                             {7, 1},
                             {7, 1},
                             {7, 1}});
    RivalNewTvShows(world);
    ASSERT_EQ(world.Shows().Count(), 1);
    EXPECT_EQ(world.Shows()[1].Network, network);
  }
}

TEST(RivalNewTvShows, FindADayAndAName) {
  // Saturday is the rival's own, Monday to Wednesday and Sunday are the network's.
  const struct {
    std::vector<int> Days;
    bool Generic;
    const char* Day;
  } kCases[] = {{{1, 6, 7}, false, "Friday"},    // no hit: the last free one
                {{4, 1, 2}, false, "Thursday"},  // the first
                {{4, 5, 3}, false, "Friday"},    // of two the last
                {{1, 5, 4}, false, "Thursday"},
                {{2, 2, 6}, true, "Tuesday"}};
  for (const auto& c : kCases) {
    World world = RivalOf(5, kCult);
    world.Networks()[1].Generic = c.Generic;
    AddShows(world, 5, {"Saturday"}, "P");
    AddShows(world, 3, {"Monday", "Tuesday", "Wednesday", "Sunday"}, "G");
    AddShows(world, 2, {"Thursday"}, "P");
    AddShows(world, 2, {"Friday"}, "G", 99);
    world.Shows()[1].Name = "NEW Friday";
    world.Shows()[2].Name = "NEW Friday 2";
    ScriptDraws(world, Draws{{6, 2}, {100, 9}, {7, c.Days[0]}, {7, c.Days[1]}, {7, c.Days[2]}});
    RivalNewTvShows(world);
    const Show& show = world.Shows()[world.Shows().Count()];
    EXPECT_EQ(show.Day.View(), c.Day);
    EXPECT_EQ(show.Name.Str(), "NEW " + show.Day.Str() + (show.Day == "Friday" ? " 3" : ""));
  }
}

/// "NEW", a rival, and "CWA", the player's; each with a show that the network is content with.
World TwoShows() {
  const auto rated = [](Show& s) { s.Rating1 = s.Rating3 = 400; };
  return SmallWorld()
      .Network("Nine", [](Network& n) { n.PrimeAudience = n.LateAudience = 405; })
      .Promotion("NEW", kRegional, [](Promotion& p) { p.Risk = 60; })
      .Show("New Hour", "Friday", "Nine", rated)
      .Promotion("CWA", kRegional)
      .Show("Our Hour", "Monday", "Nine", rated)
      .Game("CWA");
}

TEST(TvContractReview, RenewsARivalsShowAtTwoWeeks) {
  // Seven tenths of 405 are 283, eight tenths 324; the graveyard wants 100.
  constexpr struct {
    int Risk, Rating, Weeks;
    const char* Slot = "P";
  } kCases[] = {{60, 282, 2},  {60, 283, 20}, {60, 324, 20},
                {60, 325, 27}, {61, 400, 2},  {60, 99, 27, "G"}};
  for (const auto& c : kCases) {
    World world = TwoShows();
    for (Show& show : world.Shows()) {
      show.ContractWeeks = 3;
      show.Rating3 = c.Rating;
      show.Slot = c.Slot;
    }
    world.Promotions()[1].Risk = c.Risk;
    TvContractReview(world);
    EXPECT_EQ(world.Shows()[1].ContractWeeks, c.Weeks) << c.Rating << " at " << c.Risk;
    EXPECT_EQ(world.Shows()[2].ContractWeeks, 2) << "never the player's";
    EXPECT_EQ(NewsOf(world), c.Weeks == 2
                                 ? ""
                                 : "TV News: NEW's New Hour has been renewed for a further " +
                                       std::to_string(c.Weeks - 2) + " weeks!\n");
  }
}

TEST(TvContractReview, EndsShows) {
  constexpr struct {
    int Weeks, Strikes;
    const char* Told;  // nullptr: the show goes on
  } kCases[] = {{1, 0, " has not been renewed by Nine!"},
                {9, 3, " has been dropped by Nine!"},
                {1, 3, " has not been renewed by Nine!"},
                {9, 2, nullptr},
                {9, 4, nullptr}};
  for (const auto& c : kCases)
    for (const int number : {1, 2}) {
      SCOPED_TRACE(std::to_string(c.Weeks) + " " + std::to_string(c.Strikes));
      World world = TwoShows();
      world.Game().MailTv = number == 2 ? 2 : 1;  // they always hear of their own
      Show& show = world.Shows()[number];
      const std::string name = show.Name.Str();
      show.ContractWeeks = c.Weeks;
      show.Rating4 = c.Strikes;
      TvContractReview(world);
      EXPECT_EQ(show.ContractWeeks, c.Weeks - 1);
      EXPECT_EQ(NewsOf(world), c.Told ? "TV News: " + name + c.Told + "\n" : "");
      SweepDeadShows(world);
      EXPECT_EQ(world.Shows().Count(), c.Told ? 1 : 2);
    }
}

}  // namespace
}  // namespace grapplemont::test
