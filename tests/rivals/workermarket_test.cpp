#include "rivals/workermarket.h"

#include <gtest/gtest.h>

#include "rivals/faults.h"
#include "rivals/rivals.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

Change<Worker> Of(int brawl, int over, int wage = 10) {
  return [=](Worker& worker) { worker.Brawl = brawl, worker.Over = over, worker.Wage = wage; };
}

/// The player is Cult; a rival of the size stands beside them, and everything is told.
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
  for (const Worker* worker : FindWeakest(world, Rosters(world), Rival(world).Uid, kBrawlers, most))
    names += worker->Name.Str() + ";";
  return names;
}

TEST(RivalSigning, StealsByBehaviourAndTheDistanceInSize) {
  // The biggest number of a size that can have somebody who works for a promotion of size 5.
  for (const auto& [behaviour, most] : {std::pair(59, 4), {60, 3}, {90, 3}, {91, 2}}) {
    World world = SmallWorld().Promotion("CWA", kSmall).Worker("Bram Okafor").Build();
    Worker& worker = world.Workers()[1];
    EXPECT_FALSE(IsOpenTo(world, worker, kGlobal)) << "a written contract binds";
    worker.Behaviour = behaviour;
    worker.ContractType = "Non";
    for (int size = kGlobal; size <= kBackyard; ++size)
      EXPECT_EQ(IsOpenTo(world, worker, size), size <= most) << behaviour << " at " << size;
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
                          [](Show& show) { show.Colour = 1, show.ColourIsWorker = true; })
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

}  // namespace
}  // namespace grapplemont::test
