#include "rivals/ownership.h"

#include <gtest/gtest.h>

#include "rivals/faults.h"
#include "rivals/rivals.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

World WithOwners(int size, std::initializer_list<int> talents) {
  SmallWorld small;
  small.Promotion("CWA").Owner("Ruth Vane").Promotion("XWF", size).OnTheMarket();
  for (const int talent : talents) small.Staff("Rich " + std::to_string(talent), kOwner, talent);
  World world = small.Game("CWA");
  world.Game().MailOwners = 0;
  return world;
}

TEST(OwnerlessPromotions, LookOnOneDayInFourteen) {
  World world = WithOwners(kRegional, {50});
  ScriptDraws(world, {{14, 2}});
  OwnerlessPromotions(world);
  EXPECT_EQ(world.AllStaff()[2].Employer, 0);
  ScriptDraws(world, {{14, 1}, {2, 1}});
  OwnerlessPromotions(world);
  EXPECT_EQ(world.AllStaff()[2].Employer, 2);
  EXPECT_EQ(NewsOf(world), "News Desk: Rich 50 has taken over control of XWF Wrestling!\n");
  EXPECT_EQ(FaultsOf(world), "");
  ScriptDraws(world, std::vector<int>{});
  OwnerlessPromotions(world);
}

TEST(OwnerlessPromotions, TakeOwnersByTheBandsOfTheirSize) {
  // Of how many the draw is; 0 where there is none.
  struct Row {
    int Size, Talent, Of;
  };
  const Row kRows[] = {{1, 100, 2}, {1, 76, 2}, {1, 75, 0}, {1, 0, 0},  {2, 86, 3}, {2, 85, 2},
                       {2, 51, 2},  {2, 50, 0}, {3, 86, 4}, {3, 85, 2}, {3, 41, 2}, {3, 40, 0},
                       {4, 76, 0},  {4, 75, 2}, {4, 41, 2}, {4, 40, 3}, {4, 16, 3}, {4, 15, 0},
                       {5, 66, 0},  {5, 65, 3}, {5, 31, 3}, {5, 30, 2}, {5, 0, 2},  {6, 46, 0},
                       {6, 45, 3},  {6, 16, 3}, {6, 15, 2}, {6, 0, 2}};
  for (const Row& row : kRows)
    for (const bool takes : {true, false}) {
      SCOPED_TRACE(std::to_string(row.Size) + " and " + std::to_string(row.Talent));
      World world = WithOwners(row.Size, {row.Talent});
      std::vector<ScriptedDraw> draws{{14, 1}};
      if (row.Of != 0) draws.push_back({row.Of, takes ? 1 : 2});
      ScriptDraws(world, draws);
      OwnerlessPromotions(world);
      EXPECT_EQ(world.AllStaff()[2].Employer, row.Of != 0 && takes ? 2 : 0);
    }
}

TEST(OwnerlessPromotions, PassOnToTheNextWhoSuits) {
  World world = WithOwners(kRegional, {90, 50, 30, 60});
  ScriptDraws(world, {{14, 1}, {2, 2}, {3, 1}});
  OwnerlessPromotions(world);
  EXPECT_EQ(Named(world.AllStaff(), "Rich 30").Employer, 2);
  EXPECT_EQ(Named(world.AllStaff(), "Rich 60").Employer, 0);
}

TEST(OwnerlessPromotions, MakeARivalAsRiskyAsItsNewOwnersStyle) {
  const int kRisks[8] = {55, 70, 30, 10, 40, 85, 20, 55};
  for (int style = 0; style < 8; ++style)
    for (const bool own : {false, true}) {
      World world = WithOwners(kRegional, {50});
      world.AllStaff()[2].Wage = style < 7 ? style : 8;
      world.Promotions()[2].Risk = 55;
      if (own) world.Game().PlayerPromotion = 2;
      world.AllStaff()[2].Unsackable = true;
      ScriptDraws(world, {{14, 1}, {2, 1}});
      OwnerlessPromotions(world);
      EXPECT_EQ(world.Promotions()[2].Risk, own ? 55 : kRisks[style]) << style;
      EXPECT_FALSE(world.AllStaff()[2].Unsackable)
          << "what he was elsewhere does not come with him";
    }
}

TEST(OwnerlessPromotions, BringThePlayerANewBoss) {
  for (const auto& [name, words] :
       {std::pair("Jo Bell",
                  "The company is mine as of today. I want holds, counter-holds and "
                  "people who know why."),
        {"Carl From The Bank",
         "For the avoidance of doubt: this is no longer a debt, it is an "
         "asset. Please keep all receipts. Carl."}}) {
    World world = SmallWorld()
                      .Promotion("CWA", kRegional)
                      .OnTheMarket()
                      .Staff(name, kOwner, 50, [](Staff& owner) { owner.Wage = 2; })
                      .Game("CWA");
    world.Game().MailOwners = 2;
    ScriptDraws(world, {{14, 1}, {2, 1}});
    OwnerlessPromotions(world);
    EXPECT_EQ(NewsOf(world), "News Desk: " + std::string(name) +
                                 " has taken over control of CWA Wrestling!\n" + name + ": " +
                                 words + "\n");
  }
}

TEST(Owners, DecideWhereThereAreAny) {
  World world = SmallWorld().Promotion("CWA").Owner("Ruth Vane").Promotion("XWF").Build();
  EXPECT_EQ(WhoDecides(world, world.Promotions()[1]), "CWA owner Ruth Vane");
  EXPECT_EQ(WhoDecides(world, world.Promotions()[2]), "The XWF board");
}

}  // namespace
}  // namespace grapplemont::test
