#include "rivals/workermarket.h"

#include <gtest/gtest.h>

#include "rivals/faults.h"
#include "rivals/rivals.h"
#include "rivals/tuning.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

Change<Worker> Of(int brawl, int over, int wage = 10) {
  return [=](Worker& worker) {
    worker.Brawl = brawl;
    worker.Over = over;
    worker.Wage = wage;
  };
}

/// The player is Cult; a rival of the size stands beside him, and everything is told.
SmallWorld Beside(int size, int playerSize = kCult) {
  SmallWorld small;
  small.Promotion("CWA", playerSize).Promotion("XWF", size).OnTheMarket();
  return small;
}

Change<GameInfo> TellsAll() {
  return [](GameInfo& game) {
    for (Word* option : {&game.MailWorkerHire, &game.MailWorkerFire}) *option = 0;
  };
}

Promotion& Rival(World& world) {
  return Named(world.Promotions(), "XWF");
}

/// Who would go, in their order.
std::string Weakest(World& world, int most) {
  std::string names;
  for (const Worker* worker : FindWeakest(world, Rival(world).Uid, kBrawlers, most))
    names += worker->Name.Str() + ";";
  return names;
}

TEST(RivalSigning, HoldsToTheLimitsOfEachSize) {
  struct Row {
    int Size, Wage, OverMost, OverAbove;
  };
  const Row kRows[] = {{1, 300, 100, 50}, {2, 100, 100, 50}, {3, 80, 80, 40},
                       {4, 60, 60, 20},   {5, 30, 40, 5},    {6, 20, 20, 0}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.Size);
    Worker worker;
    worker.Wage = row.Wage;
    worker.Over = row.OverMost;
    EXPECT_TRUE(IsWithinLimits(worker, row.Size));
    worker.Wage = row.Wage + 1;
    EXPECT_FALSE(IsWithinLimits(worker, row.Size));
    worker.Wage = 0;
    worker.Over = row.OverAbove + 1;
    EXPECT_TRUE(IsWithinLimits(worker, row.Size));
    worker.Over = row.OverAbove;
    EXPECT_FALSE(IsWithinLimits(worker, row.Size));
    worker.Over = row.OverMost + 1;
    EXPECT_EQ(IsWithinLimits(worker, row.Size), row.OverMost == 100) << "nobody has more than 100";
  }
}

TEST(RivalSigning, StealsByBehaviourAndTheDistanceInSize) {
  // The biggest number of a size that can have somebody who works for a promotion of size 5.
  for (const auto& [behaviour, most] :
       {std::pair(0, 4), {59, 4}, {60, 3}, {90, 3}, {91, 2}, {100, 2}}) {
    World world = SmallWorld()
                      .Promotion("CWA", kSmall)
                      .Worker("Bram Okafor",
                              [&](Worker& worker) {
                                worker.Behaviour = behaviour;
                                worker.ContractType = "Non";
                              })
                      .Build();
    Worker& worker = world.Workers()[1];
    for (int size = kGlobal; size <= kBackyard; ++size)
      EXPECT_EQ(IsOpenTo(world, worker, size), size <= most) << behaviour << " at " << size;
    worker.ContractType = "Wri";
    EXPECT_FALSE(IsOpenTo(world, worker, kGlobal)) << "a written contract binds";
    worker.ContractType = "Non";
    worker.Unsackable = true;
    EXPECT_FALSE(IsOpenTo(world, worker, kGlobal));
  }
}

TEST(RivalSigning, LooksAtOneInTenOfAllButItsOwn) {
  World world = Beside(kRegional)
                    .Worker("Good Far", Of(90, 50))
                    .Worker("Too Popular", Of(99, 61))
                    .Worker("Better", Of(80, 50))
                    .Worker("Worse", Of(70, 50))
                    .Worker("As Good", Of(80, 50))
                    .Game("CWA");
  ScriptDraws(world, {{10, 2}, {10, 1}, {10, 1}, {10, 1}, {10, 1}});
  EXPECT_EQ(FindCandidate(world, Rival(world), kBrawlers)->Name.Str(), "Better");
  ScriptDraws(world, {{10, 2}, {10, 1}, {10, 10}, {10, 3}, {10, 4}});
  EXPECT_EQ(FindCandidate(world, Rival(world), kBrawlers), nullptr);
  Named(world.Workers(), "Good Far").Employer = Rival(world).Uid;
  ScriptDraws(world, {{10, 2}, {10, 2}, {10, 1}, {10, 2}});
  EXPECT_EQ(FindCandidate(world, Rival(world), kBrawlers)->Name.Str(), "Worse");
}

TEST(RivalSigning, GivesAContractByItsSize) {
  struct Row {
    int Size, Months;
    const char* Type;
    int Rise;
  };
  const Row kRows[] = {{1, 24, "Wri", 10}, {2, 24, "Wri", 8}, {3, 12, "Wri", 6},
                       {4, 12, "Non", 4},  {5, 6, "Non", 0},  {6, 6, "Non", 0}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.Size);
    World world = Beside(row.Size).Worker("Bram Okafor", Of(50, 58)).Game("CWA");
    world.Game().MailWorkerHire = 0;
    Worker& worker = world.Workers()[1];
    worker.Morale = 90;
    worker.Debuted = false;
    SignFor(world, Rival(world), worker);
    EXPECT_EQ(worker.Employer, Rival(world).Uid);
    EXPECT_EQ(worker.ContractMonths, row.Months);
    EXPECT_EQ(worker.ContractType.Str(), row.Type);
    EXPECT_EQ(worker.Wage, 10 + row.Rise);
    EXPECT_EQ(worker.Morale, 100);
    EXPECT_TRUE(worker.Debuted);
    EXPECT_EQ(NewsOf(world), "XWF News: XWF have signed Bram Okafor!\n");
    worker.Wage = 295;
    SignFor(world, Rival(world), worker);
    EXPECT_EQ(worker.Wage, std::min(295 + row.Rise, 300));
  }
}

TEST(RivalSigning, TakesThePlayersPeopleOutOfAllTheyWereIn) {
  World world = SmallWorld()
                    .Promotion("XWF", kGlobal)
                    .Network("Nine")
                    .Promotion("CWA", kSmall)
                    .Worker("Bram Okafor", Of(90, 60))
                    .Worker("Ilya Marsh")
                    .Worker("Cal Drift", [](Worker& client) { client.Manager = 1; })
                    .Stable("The Firm", {"Bram Okafor"})
                    .Title("CWA Crown", "Bram Okafor")
                    .Show("Slam", "Monday", "Nine",
                          [](Show& show) {
                            show.Colour = 1;
                            show.ColourIsWorker = true;
                          })
                    .Game("CWA")
                    .Feud("Bram Okafor", "Ilya Marsh")
                    .BuildUnchecked();
  Worker& worker = Named(world.Workers(), "Bram Okafor");
  worker.Position = kManager;
  worker.ContractType = "Non";
  worker.TurnPending = true;
  ASSERT_EQ(FaultsOf(world), "");
  world.Game().MailWorkerHire = 0;
  SignFor(world, Rival(world), worker);
  EXPECT_EQ(NewsOf(world), "XWF News: XWF have stolen Bram Okafor from CWA!\n");
  EXPECT_EQ(FaultsOf(world), "");
  EXPECT_EQ(worker.Position, kManager);
  EXPECT_FALSE(worker.TurnPending);
  EXPECT_EQ(worker.Stable.Str(), "None");
  EXPECT_EQ(Named(world.Titles(), "CWA Crown").Holder, 0);
  EXPECT_EQ(world.Feuds()[1].Worker1, 0);
  EXPECT_EQ(world.Shows()[1].Colour, 0);
  EXPECT_EQ(Named(world.Workers(), "Cal Drift").Manager, 0);
}

TEST(RivalFiring, LetsTheLowestScoreGo) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Promotion("XWF")
                    .Worker("Camper", kTrainingCamp, 1, Of(1, 1))
                    .Worker("Trainee", kDevelopmentDeal, 1, Of(1, 1))
                    .Worker("Away", kSentToDevelopment + kJobber, 1, Of(1, 1))
                    .Worker("Strong", Of(80, 50))
                    .Worker("Weak", Of(20, 50))
                    .Worker("As Weak", Of(20, 50))
                    .Game("CWA", kGameStart, TellsAll());
  EXPECT_EQ(Weakest(world, 9), "Weak;As Weak;Strong;");
  Worker& weak = Named(world.Workers(), "Weak");
  weak.Unsackable = true;
  EXPECT_EQ(Weakest(world, 2), "As Weak;Strong;");
  EXPECT_EQ(Weakest(world, 3), "As Weak;Strong;Weak;")
      << "the unsackable go when nobody else is left";

  weak.Morale = 15;
  FireFrom(world, Rival(world), {&weak});
  EXPECT_EQ(weak.Employer, 0);
  EXPECT_EQ(weak.ContractMonths, 0);
  EXPECT_EQ(weak.ContractType.Str(), "Non");
  EXPECT_FALSE(weak.Unsackable);
  EXPECT_EQ(weak.Morale, 0);
  Worker& verbal = Named(world.Workers(), "As Weak");
  verbal.ContractType = "Non";
  FireFrom(world, Rival(world), {&verbal});
  EXPECT_EQ(NewsOf(world),
            "XWF News: XWF have fired Weak!\nXWF News: XWF have released As Weak!\n");
}

TEST(RivalFiring, MeasuresManagersAndNonWrestlersToo) {
  const auto with = [](int charisma, int skill) {
    return [=](Worker& worker) {
      worker.Charisma = charisma;
      worker.Brawl = skill;
      worker.Technical = skill;
      worker.Speed = skill;
    };
  };
  struct Row {
    int Position, Charisma, Skill, Over;
    bool Goes;
  };
  // Against a wrestler whose score is 50.
  for (const Row& row : {Row{kManager, 50, 99, 49, true}, Row{kManager, 53, 0, 49, false},
                         Row{kNonWrestler, 99, 49, 49, true}, Row{kNonWrestler, 0, 51, 51, false},
                         Row{kTrainingCamp, 0, 0, 0, false}, Row{kDevelopmentDeal, 0, 0, 0, false},
                         Row{kSentToDevelopment + kOpener, 0, 0, 0, false}}) {
    World world = SmallWorld()
                      .Promotion("CWA")
                      .Promotion("XWF")
                      .Worker("Plain", kMidcard, 50, with(50, 50))
                      .Worker("Other", row.Position, row.Over, with(row.Charisma, row.Skill))
                      .BuildUnchecked();
    EXPECT_EQ(Weakest(world, 1), row.Goes ? "Other;" : "Plain;")
        << row.Position << " " << row.Charisma;
  }
}

TEST(RivalFiring, TellsOfTheShortlistWhateverTheOption) {
  for (const bool noted : {false, true}) {
    World world = SmallWorld().Promotion("CWA").Promotion("XWF").Worker("Bram Okafor").Game("CWA");
    world.Game().MailWorkerFire = 2;
    if (noted) world.Game().Shortlist[14] = world.Workers()[1].Uid;
    FireFrom(world, Rival(world), {&world.Workers()[1]});
    EXPECT_EQ(NewsOf(world), noted ? "XWF News: XWF have fired Bram Okafor!\n" : "");
  }
}

TEST(RivalWorkerHiring, SignsTenInARowAtMostAndNoneAfterAFailure) {
  SmallWorld small = Beside(kBackyard);
  for (int i = 1; i <= 12; ++i) small.Worker("Free " + std::to_string(i), Of(50, 10));
  World world = small.Game("CWA");
  std::vector<ScriptedDraw> always;
  for (int signing = 0; signing < 10; ++signing)
    for (int left = 12 - signing; left > 0; --left) always.push_back({10, 1});
  ScriptDraws(world, always);
  RivalWorkerHiring(world);
  EXPECT_EQ(Rosters(world).Of(Rival(world).Uid), 10);

  World unlucky = Beside(kBackyard).Worker("A", Of(50, 10)).Worker("B", Of(50, 10)).Game("CWA");
  ScriptDraws(unlucky, {{10, 1}, {10, 2}, {10, 2}});
  RivalWorkerHiring(unlucky);
  EXPECT_EQ(Rosters(unlucky).Of(Rival(unlucky).Uid), 1) << "the second try found nobody";
}

TEST(RivalWorkerHiring, FiresWhatStandsAboveItsBandTheWeakestFirst) {
  const int most = tuning::kRosters[kBackyard - 1].Most;
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Promotion("XWF", kBackyard)
                    .Crew(most + 2)
                    .Worker("Corner", kManager, 1, [](Worker& worker) { worker.Charisma = 1; })
                    .Game("CWA", kGameStart, TellsAll());
  const int corner = Named(world.Workers(), "Corner").Uid;
  for (Worker& worker : world.Workers())
    if (worker.Uid != corner) worker.Manager = corner;
  ScriptDraws(world, std::vector<int>{});
  RivalWorkerHiring(world);
  EXPECT_EQ(Rosters(world).Of(Rival(world).Uid), most);
  EXPECT_EQ(NewsOf(world),
            "XWF News: XWF have fired Corner!\nXWF News: XWF have fired XWF Hand 6!\n"
            "XWF News: XWF have fired XWF Hand 12!\n");
  for (const Worker& worker : world.Workers()) EXPECT_EQ(worker.Manager, 0) << worker.Name.Str();
  EXPECT_EQ(FaultsOf(world), "");
}

TEST(RivalWorkerHiring, LeavesThePlayerAndTheDyingAlone) {
  World world = SmallWorld()
                    .Promotion("CWA", kBackyard)
                    .Promotion("XWF", kBackyard, [](Promotion& gone) { gone.Name = kToBeDeleted; })
                    .OnTheMarket()
                    .Worker("Free", Of(50, 10))
                    .Game("CWA")
                    .BuildUnchecked();
  ScriptDraws(world, std::vector<int>{});
  RivalWorkerHiring(world);
  EXPECT_EQ(world.Workers()[1].Employer, 0);
}

TEST(RivalPositions, FollowPopularityForRivalsAlone) {
  World world = SmallWorld()
                    .Promotion("CWA", kRegional)
                    .Worker("Mine", kJobber, 90)
                    .Promotion("XWF", kRegional)
                    .Worker("Star", kJobber, 56)
                    .Worker("Camper", kTrainingCamp, 36)
                    .Worker("Corner", kManager, 90)
                    .Worker("Voice", kNonWrestler, 90)
                    .Game("CWA");
  RivalPositions(world);
  const std::pair<const char*, int> kPlaces[] = {{"Mine", kJobber},
                                                 {"Star", kMainEvent},
                                                 {"Camper", kMidcard},
                                                 {"Corner", kManager},
                                                 {"Voice", kNonWrestler}};
  for (const auto& [name, position] : kPlaces)
    EXPECT_EQ(Named(world.Workers(), name).Position, position) << name;
}

TEST(RivalPositions, BringWhoeverWasSentAwayBackToTheCard) {
  for (const int over : {10, 81, 100}) {
    World world = SmallWorld()
                      .Promotion("CWA")
                      .Promotion("XWF", kGlobal)
                      .Worker("Away", kSentToDevelopment + kMidcard, over)
                      .Game("CWA");
    RivalPositions(world);
    EXPECT_EQ(world.Workers()[1].Position, over == 10   ? kJobber
                                           : over == 81 ? kUpperMidcard
                                                        : kMainEvent);
  }
}

}  // namespace
}  // namespace grapplemont::test
