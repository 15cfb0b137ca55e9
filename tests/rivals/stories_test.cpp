#include <gtest/gtest.h>

#include <algorithm>

#include "records/modWresCheck.h"
#include "rivals/faults.h"
#include "rivals/rivals.h"
#include "rivals/troupe.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"
#include "words/stories.h"

// Teams, stables, managers, Titles and names of rivals.

namespace grapplemont::test {
namespace {

/// Six at the rival, or more: Over 80 to 30, one a place of the card.
SmallWorld Six(int crew = 6) {
  SmallWorld small;
  small.Promotion("CWA").Worker("Mine", kMainEvent, 90).Worker("Ours", kMainEvent, 80);
  small.Team("The Own", "Mine", "Ours").Promotion("XWF", kCult).Crew(crew);
  return small;
}

const Promotion& XWF(const World& world) {
  return world.Promotions()[2];
}

Troupe TroupeOf(World& world) {
  return TroupesOf(world)[XWF(world).Uid];
}

DeedKind LastDeed(const World& world) {
  return static_cast<DeedKind>(int(world.Deeds()[world.Deeds().Count()].Kind));
}

TEST(RivalTeams, FormFromNeighboursUnderANameThatIsFree) {
  World world = Six().Game("CWA");
  Worker &third = Named(world.Workers(), "XWF Hand 3"),
         &fourth = Named(world.Workers(), "XWF Hand 4");
  third.Disposition = "H";  // nobody cheered stands by them, and they by nobody
  world.Teams()[1].Name = "The " + std::string(StoryEpithets[0]) + " " + std::string(TeamNouns[0]);
  Troupe troupe = TroupeOf(world);
  ScriptLife(world, {{2, 1}, {3, 2}, {60, 1}, {60, 1}, {60, 1}, {60, 2}, {40, 3}});
  FormTeam(world, XWF(world), troupe);
  ASSERT_EQ(world.Teams().Count(), 2);
  const Team& team = world.Teams()[2];
  EXPECT_EQ(team.Name.Str(),
            "The " + std::string(StoryEpithets[0]) + " " + std::string(TeamNouns[1]));
  EXPECT_EQ(std::pair(int(team.Worker1), int(team.Worker2)),
            std::pair(int(fourth.Uid), int(fourth.Uid) + 1));
  EXPECT_EQ(team.Finisher.Str(), TeamMoves[2]);
  EXPECT_EQ(LastDeed(world), kDeedTeamed);
  ScriptLife(world, {});
  FormTeam(world, XWF(world), troupe);  // six want one team
  EXPECT_EQ(FaultsOf(world), "");
}

TEST(RivalTeams, SplitIntoAGrudgeAndATurn) {
  World world = Six().Team("The Pair", "XWF Hand 1", "XWF Hand 2").Game("CWA");
  ScriptLife(world, {{150, 2}});
  PartTeams(world);
  EXPECT_EQ(world.Teams().Count(), 2) << "the player's stay together whatever comes";
  ScriptLife(world, {{150, 1}, {2, 2}});
  PartTeams(world);
  EXPECT_EQ(world.Teams().Count(), 1);
  EXPECT_EQ(Named(world.Workers(), "XWF Hand 1").Disposition.Str(), "F");
  EXPECT_EQ(Named(world.Workers(), "XWF Hand 2").Disposition.Str(), "H");
  ASSERT_EQ(world.Grudges().Count(), 1);
  EXPECT_EQ(world.Grudges()[1].Why, kGrudgeSplit);
  EXPECT_EQ(FaultsOf(world), "");
}

TEST(RivalTeams, StayWhileTheyAreChampionsAndAreForgottenApart) {
  World world = Six()
                    .Team("The Pair", "XWF Hand 1", "XWF Hand 2")
                    .Team("The Past", "XWF Hand 3", "XWF Hand 4")
                    .Title("XWF Tag Titles", "XWF Hand 1", "XWF Hand 2")
                    .Game("CWA");
  Named(world.Workers(), "XWF Hand 4").Employer = 0;
  ScriptLife(world, {{150, 1}, {40, 1}});
  PartTeams(world);
  ASSERT_EQ(world.Teams().Count(), 2);
  EXPECT_EQ(world.Teams()[2].Name.Str(), "The Pair");
}

TEST(RivalStables, BeginTakeInFallOutAndEnd) {
  World world = Six(24).Game("CWA");
  const Worker& leader = Named(world.Workers(), "XWF Hand 1");
  ScriptLife(world, {{4, 1}, {16, 1}, {2, 1}});
  MoveStables(world, XWF(world), TroupeOf(world));
  ASSERT_EQ(world.Stables().Count(), 1);
  const std::string name = leader.ShortName + "'s " + std::string(Followings[0]);
  EXPECT_EQ(world.Stables()[1].Name.Str(), name);
  EXPECT_EQ(leader.Stable.Str(), name);
  const auto members = [&] {
    return std::ranges::count_if(world.Workers(), [&](auto& w) { return w.Stable == name; });
  };
  EXPECT_EQ(members(), 3);
  ScriptLife(world, {{200, 2}, {10, 1}, {4, 2}});
  MoveStables(world, XWF(world), TroupeOf(world));
  EXPECT_EQ(members(), 4);
  ScriptLife(world, {{200, 2}, {4, 1}, {16, 1}, {2, 2}, {60, 1}, {24, 1}});
  MoveStables(world, XWF(world), TroupeOf(world));
  ASSERT_EQ(world.Stables().Count(), 2);
  ScriptLife(world, {{200, 2}, {200, 2}, {10, 2}, {12, 1}, {2, 1}, {1, 1}});
  MoveStables(world, XWF(world), TroupeOf(world));
  ASSERT_EQ(world.Grudges().Count(), 1);
  EXPECT_EQ(world.Grudges()[1].Why, kGrudgeStable);
  Named(world.Workers(), "XWF Hand 7").Position = kDevelopmentDeal;  // a member all the same
  ScriptLife(world, {{200, 1}, {200, 2}, {10, 2}});
  MoveStables(world, XWF(world), TroupeOf(world));
  EXPECT_EQ(members(), 0);
  EXPECT_EQ(world.Stables().Count(), 1);
  EXPECT_EQ(FaultsOf(world), "");
}

/// A week of the rival in which nothing happens but what the draws before its end say.
void Week(World& world, std::vector<ScriptedDraw> draws) {
  ScriptLife(world, draws);
  RivalStories(world);
}

TEST(RivalStories, GiveManagersClientsWhoCannotTalk) {
  World world = Six().Worker("Mouth", kManager, 60).Game("CWA");
  Worker& quiet = Named(world.Workers(), "XWF Hand 5");
  for (Worker& worker : world.Workers()) worker.Charisma = &worker == &quiet ? 5 : 50;
  Week(world, {{2, 2}, {4, 1}, {6, 1}, {6, 2}, {12, 2}, {300, 2}});
  EXPECT_EQ(quiet.Manager, Named(world.Workers(), "Mouth").Uid);
  EXPECT_EQ(LastDeed(world), kDeedManaged);
}

TEST(RivalStories, MakeManagersOfTheOldWhoCanTalk) {
  World world = Six(20).Game("CWA");
  Worker& old = Named(world.Workers(), "XWF Hand 8");
  old.Age = 40;
  old.Charisma = 70;
  // A team is wanted, and a stable; neither comes about.
  Week(world, {{2, 2}, {4, 2}, {8, 1}, {6, 2}, {12, 2}, {300, 2}});
  EXPECT_EQ(old.Position, kManager);
  EXPECT_EQ(LastDeed(world), kDeedManager);
  EXPECT_EQ(FaultsOf(world), "");
}

TEST(RivalStories, MakeTitlesForWhomThereIsAndLetThemRest) {
  World world = Six().Game("CWA");
  for (Worker& worker : world.Workers())
    if (worker.Employer == XWF(world).Uid) worker.Gender = false;
  Week(world, {{2, 2}, {6, 1}, {12, 2}, {300, 2}});
  ASSERT_EQ(world.Titles().Count(), 1);
  Title& title = world.Titles()[1];
  EXPECT_EQ(title.Name.Str(), "XWF Women's Belt");
  EXPECT_TRUE(title.Woman && title.Singles);
  Week(world, {{2, 2}, {6, 1}, {12, 2}, {300, 2}});
  EXPECT_EQ(world.Titles().Count(), 1) << "one is enough";
  EXPECT_FALSE(title.Suspended);
  for (Worker& worker : world.Workers()) worker.Gender = true;
  Week(world, {{2, 2}, {6, 1}, {12, 2}, {300, 2}});
  EXPECT_TRUE(title.Suspended);
  EXPECT_EQ(FaultsOf(world), "");
}

TEST(RivalStories, ChangeMovesAndNames) {
  World world = Six().Game("CWA");
  Worker& last = Named(world.Workers(), "XWF Hand 6");
  last.Name = "Bram Okafor";
  last.Brawl = 90;
  const int uid = last.Uid;
  Week(world, {{2, 2}, {6, 2}, {12, 1}, {6, 6}, {2, 1}, {0, 1}, {300, 1}, {6, 6}, {40, 1}});
  EXPECT_NE(last.Finisher1.Str(), "Backbreaker");
  EXPECT_EQ(last.Name.Str(), std::string(Nicknames[0]) + " Okafor");
  ASSERT_EQ(world.RingNames().Count(), 1);
  EXPECT_EQ(world.RingNames()[1].Name.Str(), "Bram Okafor");
  EXPECT_EQ(world.RingNames()[1].Worker, uid);
  Worker& first = Named(world.Workers(), "XWF Hand 1");
  Week(world, {{2, 2}, {6, 2}, {12, 2}, {300, 1}, {6, 1}});
  EXPECT_EQ(first.Name.Str(), "XWF Hand 1") << "whom everybody knows keeps the name";
}

}  // namespace
}  // namespace grapplemont::test
