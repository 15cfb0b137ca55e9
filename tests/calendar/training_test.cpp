#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

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

TEST(DevelopmentMonth, TeachesByTheBookersTalentWhatCanStillBeTaught) {
  struct Case {
    int Talent, Charisma, Stiff;
    std::vector<ScriptedDraw> Draws;  // Over, charisma, stiffness
    int Over, CharismaAfter, StiffAfter;
    const char* Pieces;
  };
  const Case kCases[] = {
      {40, 89, 24, {}, 40, 89, 24, ""},
      {41, 89, 24, {{2, 2}, {2, 1}, {2, 2}}, 41, 89, 25, "Over (1 point); Stiffness (1 point);"},
      {60, 89, 24, {{3, 3}, {3, 2}, {3, 1}}, 42, 90, 24, "Over (2 points); Charisma (1 point);"},
      {75,
       89,
       24,
       {{4, 4}, {3, 1}, {3, 3}},
       44,
       90,
       27,
       "Over (4 points); Charisma (1 point); Stiffness (3 points);"},
      {95,
       89,
       24,
       {{5, 5}, {4, 4}, {4, 4}},
       45,
       93,
       28,
       "Over (5 points); Charisma (4 points); Stiffness (4 points);"},
      // The charismatic, and those who are neither soft nor stiff, learn no more of it.
      {94, 90, 25, {{4, 1}}, 41, 90, 25, "Over (1 point);"},
      {80, 90, 75, {{4, 1}}, 41, 90, 75, "Over (1 point);"},
      {80, 90, 76, {{4, 1}, {3, 3}}, 41, 90, 73, "Over (1 point); Stiffness (3 points);"}};
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.Talent);
    World world = Territory(c.Talent, [&](Worker& worker) {
      worker.Charisma = c.Charisma;
      worker.Stiff = c.Stiff;
    });
    ScriptDraws(world, c.Draws);
    DevelopmentMonth(world);
    const Worker& sol = Named(world.Workers(), "Sol Varga");
    EXPECT_EQ(sol.Over, c.Over);
    EXPECT_EQ(sol.Charisma, c.CharismaAfter);
    EXPECT_EQ(sol.Stiff, c.StiffAfter);
    EXPECT_EQ(NewsOf(world), Improved(c.Pieces));
  }
}

TEST(DevelopmentMonth, DropsAGainThatLeadsPastThePotential) {
  struct Case {
    int Over, Potential, Drawn, After;
  };
  constexpr Case kCases[] = {{68, 70, 3, 68}, {68, 70, 1, 69}, {98, 100, 4, 98}};
  for (const Case& c : kCases) {
    World world = Territory(80, [&](Worker& worker) {
      worker.Over = c.Over;
      worker.Potential = c.Potential;
    });
    ScriptDraws(world, {{4, c.Drawn}});
    DevelopmentMonth(world);
    EXPECT_EQ(Named(world.Workers(), "Sol Varga").Over, c.After);
    EXPECT_EQ(NewsOf(world), Improved(c.After > c.Over ? "Over (1 point);" : ""));
  }
}

TEST(DevelopmentMonth, IsForThePlayersPeopleThere) {
  struct Case {
    int Position;
    bool Learns;
  };
  constexpr Case kCases[] = {
      {kDevelopmentDeal, true}, {80, true}, {86, true}, {kJobber, false}, {kTrainingCamp, false}};
  for (const Case& c : kCases) {
    World world = Territory(80);
    Named(world.Workers(), "Sol Varga").Position = c.Position;
    ScriptDraws(world, c.Learns ? std::vector<ScriptedDraw>{{4, 2}} : std::vector<ScriptedDraw>{});
    DevelopmentMonth(world);
    EXPECT_EQ(Named(world.Workers(), "Sol Varga").Over, c.Learns ? 42 : 40) << c.Position;
    EXPECT_EQ(Named(world.Workers(), "Al Other").Over, 10) << "a rival's";
  }
  for (const bool hasTerritory : {false, true}) {
    World world = Territory(80);
    if (hasTerritory)
      world.Player().DevBooker = 0;
    else
      world.Player().DevName = "None";
    ScriptDraws(world, {});
    const World before = CopyOf(world);
    DevelopmentMonth(world);
    ExpectSame(world, before);
  }
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
      << "already in the month in which he gets there";
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

TEST(TrainingCampMonth, DrawsByTalentUpToTheFacilities) {
  struct Case {
    int Talent, Facilities, Range;
  };
  constexpr Case kCases[] = {{40, 4, 0}, {41, 4, 1}, {59, 4, 1}, {60, 4, 0},
                             {70, 4, 0}, {71, 4, 2}, {91, 4, 3}, {99, 4, 4},
                             {99, 3, 3}, {99, 2, 2}, {99, 1, 1}, {99, 0, 0}};
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::to_string(c.Talent) + " in " + std::to_string(c.Facilities));
    World world = Camp(c.Talent, c.Facilities);
    const int most = std::max(c.Range, 1);
    ScriptDraws(world, std::vector<ScriptedDraw>{{c.Range, most}, {c.Range, 1}, {c.Range, most}});
    TrainingCampMonth(world);
    const Worker& sol = Named(world.Workers(), "Sol Varga");
    EXPECT_EQ(sol.Brawl, 10 + most);
    EXPECT_EQ(sol.Technical, 21);
    EXPECT_EQ(sol.Speed, 30 + most);
    EXPECT_EQ(sol.Sell, 42);
    EXPECT_EQ(sol.Attitude, 52);
  }
}

TEST(TrainingCampMonth, TellsUnlessNever) {
  for (const int option : {0, 2}) {
    World world = Camp(99, 4);
    world.Game().MailTrain = option;
    ScriptDraws(world, {{4, 1}, {4, 4}, {4, 2}});
    TrainingCampMonth(world);
    EXPECT_EQ(NewsOf(world),
              option == 2 ? ""
                          : "Training Camp: Sol Varga in Pump House has improved in the following "
                            "areas: Selling (2 points); Attitude (2 points); Brawling (1 point); "
                            "Technical (4 points); Speed (2 points);\n");
  }
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
