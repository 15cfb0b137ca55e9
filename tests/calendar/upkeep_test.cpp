#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// The player's promotion with one worker.
World One(const Change<Worker>& change, std::string_view name = "Bram Okafor") {
  return SmallWorld().Promotion("CWA").Worker(name, kMidcard, 50, change).Game("CWA");
}

void Unhappy(Worker& worker) {
  worker.ContractType = "Non";
  worker.Behaviour = 79;
  worker.Morale = 9;
  worker.Condition = 50;
}
void Hopeless(Worker& worker) {
  worker.Behaviour = 74;
  worker.Morale = 0;
  worker.Condition = 50;
}

TEST(DailyUpkeep, LetsTheUnhappyWalkOutAndTheHopelessSitOut) {
  const struct {
    const char* Name;
    void (*Change)(Worker&);
    bool Leaves;
    const char* Says;
  } kCases[] = {
      {"Bram Okafor", Unhappy, true,
       "I'm not happy in this promotion, so i am leaving to work elsewhere."},
      {"Maul Gantry", Unhappy, true,
       "Brother, I'm not happy in this promotion, so i am leaving to take Maulamania elsewhere!"},
      {"Bram Okafor", Hopeless, false,
       "I've had enough with this promotion, i refuse to wrestle for you again."},
      {"Maul Gantry", Hopeless, false,
       "Dude, I've had enough with this promotion, i refuse to wrestle for you again, brother!"},
      // Neither verbal nor written: a code that only another program writes.
      {"Bram Okafor",
       [](Worker& worker) {
         Hopeless(worker);
         worker.ContractType = "???";
       },
       true, "I've had enough with this promotion and the way i've been treated, i'm leaving."}};
  for (const auto& c : kCases) {
    World world = SmallWorld()
                      .Promotion("CWA")
                      .Worker(c.Name, kMidcard, 50, c.Change)
                      .Game("CWA")
                      .BuildUnchecked();
    ScriptDraws(world, c.Leaves ? std::vector<ScriptedDraw>{{3, 2}, {5, 4}}
                                : std::vector<ScriptedDraw>{{5, 4}});
    DailyWorkerUpkeep(world);
    const Worker& worker = world.Workers()[1];
    EXPECT_EQ(worker.Employer == 0, c.Leaves);
    EXPECT_EQ(worker.Status.View(), c.Leaves ? "Nor" : "Hom");
    EXPECT_EQ(worker.Loyalty == 0, c.Change != Unhappy);
    EXPECT_EQ(worker.Condition, 54) << "whoever leaves still recovers that morning";
    EXPECT_EQ(NewsOf(world), std::string(c.Name) + ": " + c.Says + "\n");
    if (c.Leaves) continue;
    ScriptDraws(world, {{5, 1}});
    DailyWorkerUpkeep(world);
    EXPECT_EQ(world.News().Count(), 1) << "they say so once";
  }
}

TEST(DailyUpkeep, HoldsWhomNothingLetsGo) {
  const Change<Worker> kReasons[] = {
      [](Worker& w) { w.ContractType = "Wri"; },
      [](Worker& w) { w.Status = "Inj", w.StatusMonths = 2, w.InjuryName = "Broken Arm"; },
      [](Worker& w) { w.Unsackable = true, w.ContractMonths = kNoEnd; },
      [](Worker& w) { w.Behaviour = 80; },
      [](Worker& w) { w.Morale = 10; },
      [](Worker& w) { Hopeless(w), w.Behaviour = 75, w.ContractType = "Wri"; },
      [](Worker& w) { Hopeless(w), w.Morale = 1, w.ContractType = "Wri"; }};
  int number = 0;
  for (const Change<Worker>& reason : kReasons) {
    World world = One([&](Worker& worker) {
      Unhappy(worker);
      reason(worker);
    });
    ScriptDraws(world, {{5, 1}});
    DailyWorkerUpkeep(world);
    EXPECT_NE(world.Workers()[1].Employer, 0) << number++;
    EXPECT_NE(world.Workers()[1].Status.View(), "Hom");
    EXPECT_EQ(NewsOf(world), "");
  }
}

TEST(DailyUpkeep, MovesTheMoodOfThoseKeptAway) {
  const struct {
    int Position, Age;
    std::vector<int> Draws;  // after the Condition's
    int Morale;              // from 50
  } kCases[] = {
      {kDevelopmentDeal, 25, {2}, 51},    {81, 18, {1}, 50},     {kDevelopmentDeal, 26, {}, 50},
      {kDevelopmentDeal, 27, {2, 1}, 51}, {86, 34, {1, 2}, 49},  {kDevelopmentDeal, 35, {}, 50},
      {kTrainingCamp, 20, {}, 50},        {kMidcard, 20, {}, 50}};
  for (const auto& c : kCases) {
    World world = One([&](Worker& worker) {
      worker.Position = c.Position;
      worker.Age = c.Age;
      worker.Morale = 50;
    });
    std::vector<int> script{1};
    script.insert(script.end(), c.Draws.begin(), c.Draws.end());
    ScriptDraws(world, script);
    DailyWorkerUpkeep(world);
    EXPECT_EQ(world.Workers()[1].Morale, c.Morale) << c.Position << " at " << c.Age;
  }
}

TEST(EconomyDrift, MovesByItsBands) {
  const struct {
    int Before;
    bool Rising;
    std::vector<int> Draws;
    int After;
    bool RisingAfter;
  } kCases[] = {
      {50, true, {8}, 51, true},   {50, false, {8}, 49, false},       {50, true, {9}, 50, true},
      {20, false, {1}, 19, false}, {80, true, {1}, 81, true},         {81, true, {}, 82, true},
      {19, true, {}, 26, true},    {99, true, {}, 100, false},        {7, false, {}, 0, true},
      {5, false, {}, -2, false},   {-32765, false, {}, -32768, false}};
  for (const auto& c : kCases) {
    World world = SmallWorld().Promotion("CWA").Game("CWA");
    world.Game().Economy = c.Before;
    world.Game().EconomyRising = c.Rising;
    ScriptDraws(world, c.Draws);
    EconomyDrift(world);
    EXPECT_EQ(world.Game().Economy, c.After) << "from " << c.Before;
    EXPECT_EQ(world.Game().EconomyRising, c.RisingAfter) << "from " << c.Before;
  }
}

/// The player's CWA with a territory under a booker, and "Sol Varga" there.
World Territory(int talent, const Change<Worker>& change = {}) {
  World world = SmallWorld()
                    .Promotion("NEW")
                    .Worker("Al Other", kDevelopmentDeal, 10)
                    .Promotion("CWA")
                    .Staff("Kit Booker", kRoadAgent, talent)
                    .Worker("Sol Varga", kDevelopmentDeal, 40,
                            [&](Worker& worker) {
                              worker.Potential = 70;
                              worker.Charisma = 95;
                              worker.Stiff = 50;
                              if (change) change(worker);
                            })
                    .Game("CWA");
  world.Player().DevName = "Ohio Ring";
  world.Player().DevBooker = Named(world.AllStaff(), "Kit Booker").Uid;
  return world;
}

std::string Improved(const std::string& pieces) {
  return pieces.empty() ? ""
                        : "Development: Sol Varga in Ohio Ring has improved in the following "
                          "areas: " +
                              pieces + "\n";
}

TEST(DevelopmentMonth, LetsTheOutgrownFret) {
  const char* const kWords[] = {"is unhappy about remaining in Ohio Ring.",
                                "doesn't want to remain in Ohio Ring.",
                                "wants to be promoted to the full roster.",
                                "feels that Ohio Ring isn't helping her career much.",
                                "is not happy about being stuck in Ohio Ring."};
  for (int mail = 1; mail <= 5; ++mail) {
    World world = Territory(99, [&](Worker& worker) {
      worker.Over = 70;
      worker.Gender = false;
      worker.Behaviour = 50;
      worker.Morale = 60;
    });
    world.Game().MailDev = 2;
    ScriptDraws(world, {{2, 2}, {5, 4}, {5, mail}});
    DevelopmentMonth(world);
    const Worker& sol = Named(world.Workers(), "Sol Varga");
    EXPECT_EQ(sol.Behaviour, 48);
    EXPECT_EQ(sol.Morale, 56);
    EXPECT_EQ(NewsOf(world), std::string("Development: Sol Varga ") + kWords[mail - 1] + "\n");
  }
  World world = Territory(80, [](Worker& worker) { worker.Over = 68; });
  ScriptDraws(world, {{4, 2}, {2, 1}, {5, 1}, {5, 4}});
  DevelopmentMonth(world);
  EXPECT_EQ(NewsOf(world),
            Improved("Over (2 points);") +
                "Development: Sol Varga feels that Ohio Ring isn't helping his career much.\n")
      << "already in the month in which they get there";
}

/// The player's CWA with a camp under a head trainer, and "Sol Varga" in it.
World Camp(int talent, int facilities) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Staff("Pop Grim", kTrainer, talent)
                    .Worker("Sol Varga", kTrainingCamp, 10,
                            [](Worker& worker) {
                              worker.Brawl = 10;
                              worker.Technical = 20;
                              worker.Speed = 30;
                              worker.Sell = 40;
                              worker.Attitude = 50;
                            })
                    .Worker("Al Jobber", kJobber, 10)
                    .Game("CWA");
  world.Player().CampName = "Pump House";
  world.Player().CampFacilities = facilities;
  world.Player().HeadTrainer = Named(world.AllStaff(), "Pop Grim").Uid;
  return world;
}

TEST(TrainingCampMonth, NeedsACampAHeadTrainerAndATrainee) {
  const Change<World> kLacks[] = {[](World& w) { w.Player().HeadTrainer = 0; },
                                  [](World& w) { w.Player().CampName = "None"; },
                                  [](World& w) { w.Workers()[1].Employer = 99; }};
  for (const Change<World>& lacks : kLacks) {
    World world = Camp(99, 4);
    lacks(world);
    ScriptDraws(world, {});
    const World before = CopyOf(world);
    TrainingCampMonth(world);
    ExpectSame(world, before);
  }
}

}  // namespace
}  // namespace grapplemont::test
