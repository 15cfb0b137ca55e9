#include <gtest/gtest.h>

#include "rivals/faults.h"
#include "rivals/founding.h"
#include "rivals/newpromotionnames.h"
#include "rivals/rivals.h"
#include "rivals/staffmarket.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"
#include "words/promotions.h"

// New promotions, sponsors, bankruptcy.

namespace grapplemont::test {
namespace {

std::string Initials(int number) {
  return "P" + std::to_string(number);
}

/// So many promotions, the first of them the player's.
World Crowd(int count, int size = kRegional) {
  SmallWorld small;
  for (int i = 1; i <= count; ++i) small.Promotion(Initials(i), size);
  World world = small.Game("P1");
  world.Game().MailOtherFed = 0;
  return world;
}

TEST(NewPromotions, OpenOnATwoOfThreeOrOfFive) {
  struct Row {
    int Count, Of, Draw;
    bool Opens;
  };
  for (const Row& row : {Row{15, 3, 2, true}, Row{15, 3, 1, false}, Row{16, 5, 2, true},
                         Row{29, 5, 2, true}, Row{30, 5, 2, false}}) {
    SCOPED_TRACE(row.Count);
    World world = Crowd(row.Count);
    std::vector<ScriptedDraw> draws{{row.Of, row.Draw}};
    if (row.Opens) draws.insert(draws.end(), {{40, 31}, {5, 4}, {60, 60}, {4, 4}, {70, 70}});
    ScriptDraws(world, draws);
    NewPromotionCheck(world);
    ASSERT_EQ(world.Promotions().Count(), row.Count + row.Opens);
    if (!row.Opens) continue;
    const Promotion& opened = world.Promotions()[row.Count + 1];
    EXPECT_EQ(opened.Initials.Str(), "HGC");
    EXPECT_EQ(opened.Size, kSmall);
    EXPECT_EQ(opened.Money, 1000000);
    EXPECT_EQ(opened.Image, 80);
    EXPECT_EQ(opened.Momentum, 4);
    EXPECT_EQ(opened.Risk, 90);
    EXPECT_EQ(opened.TicketPrice, 10);
    EXPECT_EQ(opened.Rank[0], StandingScore(opened));
    EXPECT_EQ(NewsOf(world),
              "New Promotion: A new promotion, Hollyweird Grappling Company, has opened.\n");
    EXPECT_EQ(FaultsOf(world), "");
  }
}

TEST(NewPromotions, DrawAgainWhileNameOrInitialsAreTaken) {
  World world = Crowd(3);
  world.Promotions()[2].Name = "Old School Dojo";
  world.Promotions()[3].Initials = "LATPF";
  ScriptDraws(world, {{3, 2}, {40, 8}, {40, 40}, {40, 39}, {5, 5}, {60, 1}, {4, 1}, {70, 1}});
  NewPromotionCheck(world);
  EXPECT_EQ(world.Promotions()[4].Initials.Str(), "DAVE");
}

TEST(NewPromotions, StopWhenTheNamesHaveRunOut) {
  World world = Crowd(20);
  for (int i = 1; i <= 20; ++i) {
    const auto row = static_cast<std::size_t>(i - 1);
    world.Promotions()[i].Name = kNewPromotionNames[row].Name;
    world.Promotions()[i].Initials = kNewPromotionNames[row + 20].Initials;
  }
  ScriptDraws(world, {{5, 2}});
  NewPromotionCheck(world);
  EXPECT_EQ(world.Promotions().Count(), 20);
  world.Promotions()[5].Name = "Something Else";
  ScriptDraws(world, {{5, 2}, {40, 4}, {40, 5}, {5, 5}, {60, 1}, {4, 1}, {70, 1}});
  NewPromotionCheck(world);
  EXPECT_EQ(world.Promotions()[21].Name.Str(), "Atlanta Gold Combat");
}

TEST(NewPromotions, FoundTwoTitlesOnceTheirRosterHasEight) {
  for (const int count : {7, 8}) {
    World world = SmallWorld().Promotion("CWA").Promotion("XWF", kBackyard).Crew(count).Game("CWA");
    for (int week = 1; week <= 2; ++week) RosterSizeReview(world);
    ASSERT_EQ(world.Titles().Count(), count == 8 ? 2 : 0);
    EXPECT_EQ(FaultsOf(world), "");
  }
}

// The name is given again; one that somebody holds is not.
TEST(NewPromotions, TakeUpTheTitlesThatAnotherHasLeftBehind) {
  for (const bool left : {true, false}) {
    World world = SmallWorld()
                      .Promotion("CWA")
                      .Title("XWF Crown")
                      .Promotion("XWF", kBackyard)
                      .Crew(8)
                      .Game("CWA");
    Title& old = world.Titles()[1];
    if (left) old.Owner = kNoEnd;
    old.Suspended = true;
    old.Lightweight = true;
    old.Reigns[1].Holder = "Old Bones";
    RosterSizeReview(world);
    ASSERT_EQ(world.Titles().Count(), left ? 2 : 3);
    const Title& crown = world.Titles()[left ? 1 : 2];
    EXPECT_EQ(crown.Name.Str(), left ? "XWF Crown" : "XWF Crown II");
    EXPECT_EQ(crown.Owner, 2);
    EXPECT_EQ(crown.Image, 10);
    EXPECT_EQ(crown.Reigns[1].Holder == "Old Bones", left);
    EXPECT_FALSE(crown.Suspended || crown.Lightweight);
    EXPECT_EQ(FaultsOf(world), "");
  }
}

/// The player has been Global at five month ends, beside whoever else.
World AloneAtTheTop() {
  World world = SmallWorld().Promotion("CWA", kGlobal).Promotion("XWF", kNational).Game("CWA");
  for (auto& rank : world.Player().Rank) rank = 520;
  return world;
}

TEST(Challenge, ComesToWhoeverHasLongBeenAloneAtTheTop) {
  World world = AloneAtTheTop();
  ScriptDraws(world, std::vector<int>{});
  ScriptLife(world, {{6, 2}, {6, 1}});
  AwaitStranger(world);
  EXPECT_EQ(world.Game().EndCode, 0);
  AwaitStranger(world);
  EXPECT_EQ(world.Game().EndCode, kStrangerWaits);

  const std::pair<const char*, Change<World>> kReasons[] = {
      {"a month end ago", [](World& w) { w.Player().Rank[4] = 499; }},
      {"a rival was there", [](World& w) { w.Promotions()[2].Rank[3] = 505; }},
      {"a rival is there", [](World& w) { w.Promotions()[2].Size = kGlobal; }},
      {"the player has fallen", [](World& w) { w.Player().Size = kNational; }},
      {"the career is over", [](World& w) { w.Game().EndCode = 2; }},
  };
  for (const auto& [why, change] : kReasons) {
    World quiet = AloneAtTheTop();
    change(quiet);
    const int code = quiet.Game().EndCode;
    ScriptLife(quiet, {});
    AwaitStranger(quiet);
    EXPECT_EQ(quiet.Game().EndCode, code) << why;
  }
}

TEST(Challenge, FoundsARivalOfTheStrangersOwn) {
  World world = AloneAtTheTop();
  for (int visits = 1; visits <= 4; ++visits) {
    world.Game().EndCode = kStrangerWaits;
    ScriptLife(world, visits <= 3 ? std::vector<ScriptedDraw>{{12, 4}, {6, 6}}
                                  : std::vector<ScriptedDraw>{});
    MeetStranger(world);
    EXPECT_EQ(world.Game().EndCode, 0);
    EXPECT_EQ(world.Promotions().Count(), 2 + std::min(visits, 3));
    EXPECT_EQ(FaultsOf(world), "");
  }
  const Promotion& opened = world.Promotions()[3];
  EXPECT_EQ(opened.Size, kNational);
  EXPECT_EQ(opened.Money, 40000000);
  EXPECT_EQ(opened.Risk, 20) << "by their style";
  EXPECT_EQ(world.AllStaff()[1].Employer, opened.Uid);
  EXPECT_EQ(world.AllStaff()[1].Name.Str(), "Lysander Pinkney");
  EXPECT_EQ(world.AllStaff()[1].Position, kOwner);
}

TEST(Challenge, BuysStarsWhereverTheyWork) {
  SmallWorld small;
  small.Promotion("CWA", kGlobal).Worker("Safe", kMainEvent, 96, [](Worker& star) {
    star.Unsackable = true;
    star.ContractMonths = kNoEnd;
  });
  for (int over = 95; over >= 91; --over)
    small.Worker("Mine " + std::to_string(over), kMainEvent, over);
  small.Promotion("XWF", kNational).Worker("Theirs", kMidcard, 70).Worker("Plain", kMidcard, 50);
  small.OnTheMarket().Worker("Corner", kManager, 80).Worker("Asked", kMidcard, 60);
  World world = small.Game("CWA");
  world.Game().EndCode = kStrangerWaits;
  // The owner; whom the new promotion may sign by itself, which is nobody bound; then the stars.
  ScriptDraws(world, std::vector<ScriptedDraw>(10, {10, 2}));
  ScriptLife(world, {{12, 1}, {6, 1}, {4, 1}, {4, 2}, {4, 1}, {4, 1}, {4, 1}, {4, 4}});
  MeetStranger(world);
  const int uid = world.Promotions()[3].Uid;
  for (const char* name : {"Mine 95", "Mine 93", "Mine 92", "Theirs"})
    EXPECT_EQ(Named(world.Workers(), name).Employer, uid) << name;
  for (const char* name : {"Safe", "Mine 94", "Mine 91", "Plain", "Corner", "Asked"})
    EXPECT_NE(Named(world.Workers(), name).Employer, uid) << name;
  EXPECT_EQ(FaultsOf(world), "");
}

}  // namespace
}  // namespace grapplemont::test
