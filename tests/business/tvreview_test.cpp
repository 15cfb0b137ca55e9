#include <gtest/gtest.h>

#include "business/businesssteps.h"
#include "records/severing.h"
#include "support/newsof.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// "NEW", a rival, and "CWA", the player's; each with a show that the network is content with.
SmallWorld TwoShows(int rivalSize = kRegional) {
  SmallWorld small;
  small.Network("Nine", [](Network& n) { n.PrimeAudience = 405; })
      .Promotion("NEW", rivalSize, [](Promotion& p) { p.Risk = 60; })
      .Show("New Hour", "Friday", "Nine", [](Show& s) { s.Rating1 = s.Rating3 = 400; })
      .Promotion("CWA", kRegional)
      .Show("Our Hour", "Monday", "Nine", [](Show& s) { s.Rating1 = s.Rating3 = 400; })
      .Game("CWA");
  return small;
}

TEST(TvContractReview, CountsTheWeeksOfEveryShow) {
  World world = TwoShows();
  world.Shows()[1].ContractWeeks = 4;
  world.Shows()[2].ContractWeeks = 500;
  world.Shows()[2].Rating4 = 2;
  TvContractReview(world);
  EXPECT_EQ(world.Shows()[1].ContractWeeks, 3);
  EXPECT_EQ(world.Shows()[2].ContractWeeks, 499);
  EXPECT_EQ(NewsOf(world), "");
}

TEST(TvContractReview, RenewsARivalsShowAtTwoWeeks) {
  struct Case {
    int Risk, Rating, Weeks;
  };
  // Seven tenths of 405 are 283, eight tenths 324.
  constexpr Case kCases[] = {{60, 282, 2},  {60, 283, 20}, {60, 324, 20},
                             {60, 325, 27}, {61, 400, 2},  {0, 0, 2}};
  for (const Case& c : kCases) {
    World world = TwoShows();
    Show& show = world.Shows()[1];
    show.ContractWeeks = 3;
    show.Rating3 = c.Rating;
    world.Promotions()[1].Risk = c.Risk;
    TvContractReview(world);
    EXPECT_EQ(show.ContractWeeks, c.Weeks) << c.Rating << " at " << c.Risk;
    EXPECT_EQ(NewsOf(world), c.Weeks == 2
                                 ? ""
                                 : "TV News: NEW's New Hour has been renewed for a further " +
                                       std::to_string(c.Weeks - 2) + " weeks!\n");
  }
}

TEST(TvContractReview, MeasuresARenewalByTheShowsOwnSlot) {
  for (const auto& [slot, weeks] : {std::pair("L", 27), {"P", 2}, {"G", 2}}) {
    World world = TwoShows();
    world.Networks()[1].PrimeAudience = 900;
    world.Networks()[1].LateAudience = 405;
    world.Networks()[1].LateRisk = 60;
    world.Networks()[1].GraveRisk = 59;
    world.Networks()[1].GraveAudience = 405;
    world.Shows()[1].Slot = slot;
    world.Shows()[1].ContractWeeks = 3;
    TvContractReview(world);
    EXPECT_EQ(world.Shows()[1].ContractWeeks, weeks) << slot;
  }
}

TEST(TvContractReview, NeverRenewsThePlayersShow) {
  World world = TwoShows();
  world.Shows()[2].ContractWeeks = 3;
  TvContractReview(world);
  EXPECT_EQ(world.Shows()[2].ContractWeeks, 2);
  EXPECT_EQ(NewsOf(world), "");
}

struct End {
  const char* What;
  int Weeks, Strikes;
  const char* Told;  // nullptr: the show goes on
};
constexpr End kEnds[] = {
    {"the last week", 1, 0, " has not been renewed by Nine!"},
    {"three strikes", 9, 3, " has been dropped by Nine!"},
    {"both at once", 1, 3, " has not been renewed by Nine!"},
    {"two strikes", 9, 2, nullptr},
    {"four strikes", 9, 4, nullptr},
};

TEST(TvContractReview, EndsShows) {
  for (const End& end : kEnds)
    for (const int number : {1, 2}) {
      World world = TwoShows();
      Show& show = world.Shows()[number];
      const std::string name = show.Name.Str();
      show.ContractWeeks = end.Weeks;
      show.Rating4 = end.Strikes;
      TvContractReview(world);
      EXPECT_EQ(show.Name.Str(), end.Told ? std::string(kToBeDeleted) : name) << end.What;
      EXPECT_EQ(NewsOf(world), end.Told ? "TV News: " + name + end.Told + "\n" : "") << end.What;
      SweepDeadShows(world);
      EXPECT_EQ(world.Shows().Count(), end.Told ? 1 : 2) << end.What;
    }
}

TEST(TvContractReview, TellsOfRivalsAsTheMailOptionHasIt) {
  struct Case {
    int Option, RivalSize;
    bool Told;
  };
  constexpr Case kCases[] = {{0, kSmall, true},    {0, kGlobal, true}, {1, kSmall, false},
                             {1, kRegional, true}, {1, kGlobal, true}, {2, kGlobal, false},
                             {2, kSmall, false}};
  for (const Case& c : kCases)
    for (const auto& [weeks, strikes] : {std::pair(3, 0), {1, 0}, {9, 3}}) {
      World world = TwoShows(c.RivalSize);
      world.Game().MailTv = c.Option;
      world.Shows()[1].ContractWeeks = weeks;
      world.Shows()[1].Rating4 = strikes;
      TvContractReview(world);
      EXPECT_EQ(world.News().Count(), c.Told ? 1 : 0)
          << "option " << c.Option << " size " << c.RivalSize << " weeks " << weeks;
    }
}

TEST(TvContractReview, AlwaysTellsOfThePlayersOwnShow) {
  for (const End& end : kEnds) {
    World world = TwoShows();
    world.Game().MailTv = 2;
    world.Shows()[2].ContractWeeks = end.Weeks;
    world.Shows()[2].Rating4 = end.Strikes;
    TvContractReview(world);
    EXPECT_EQ(world.News().Count(), end.Told ? 1 : 0) << end.What;
  }
}

TEST(TvContractReview, GoesInTheOrderOfTheFile) {
  World world = TwoShows();
  for (Show& show : world.Shows()) show.ContractWeeks = 1;
  TvContractReview(world);
  EXPECT_EQ(NewsOf(world),
            "TV News: New Hour has not been renewed by Nine!\n"
            "TV News: Our Hour has not been renewed by Nine!\n");
}

TEST(TvContractReview, BearsShowsWithoutNetworkOrOwner) {
  World world = TwoShows();
  world.Shows()[1].Network = 9;
  world.Shows()[1].ContractWeeks = 3;
  world.Shows()[2].Owner = 0;
  world.Shows()[2].ContractWeeks = 0;
  TvContractReview(world);
  EXPECT_EQ(world.Shows()[1].ContractWeeks, 2);
  EXPECT_EQ(world.Shows()[2].ContractWeeks, 0);
  EXPECT_EQ(NewsOf(world), "");
}

}  // namespace
}  // namespace grapplemont::test
