#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// The player's CWA with a territory under a booker, and "Sol Varga" there.
World Territory(int talent, const Change<Worker>& change = {},
                const Change<Promotion>& promotion = {}, const Change<GameInfo>& options = {}) {
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
                    .Game("CWA", kGameStart, options);
  Promotion& player = world.Player();
  player.DevName = "Ohio Ring";
  player.DevBooker = Named(world.AllStaff(), "Kit Booker").Uid;
  if (promotion) promotion(player);
  return world;
}

std::string Improved(const std::string& pieces) {
  return pieces.empty() ? ""
                        : "Development: Sol Varga in Ohio Ring has improved in the following "
                          "areas: " +
                              pieces + "\n";
}

TEST(DevelopmentMonth, GainsByTheBookersTalent) {
  struct Case {
    int Talent;
    std::vector<ScriptedDraw> Draws;  // Over, charisma, stiffness
    int Over, Charisma, Stiff;
    const char* Pieces;
  };
  // A soft and plain worker learns all three.
  const Case kCases[] = {
      {0, {}, 40, 89, 24, ""},
      {40, {}, 40, 89, 24, ""},
      {41, {{2, 2}, {2, 1}, {2, 2}}, 41, 89, 25, "Over (1 point); Stiffness (1 point);"},
      {59, {{2, 1}, {2, 1}, {2, 1}}, 40, 89, 24, ""},
      {60, {{3, 3}, {3, 2}, {3, 1}}, 42, 90, 24, "Over (2 points); Charisma (1 point);"},
      {74, {{3, 1}, {3, 3}, {3, 3}}, 40, 91, 26, "Charisma (2 points); Stiffness (2 points);"},
      {75,
       {{4, 4}, {3, 1}, {3, 3}},
       44,
       90,
       27,
       "Over (4 points); Charisma (1 point); Stiffness (3 points);"},
      {94,
       {{4, 1}, {3, 3}, {3, 1}},
       41,
       92,
       25,
       "Over (1 point); Charisma (3 points); Stiffness (1 point);"},
      {95,
       {{5, 5}, {4, 4}, {4, 4}},
       45,
       93,
       28,
       "Over (5 points); Charisma (4 points); Stiffness (4 points);"}};
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.Talent);
    World world = Territory(c.Talent, [](Worker& worker) {
      worker.Charisma = 89;
      worker.Stiff = 24;
    });
    ScriptDraws(world, c.Draws);
    DevelopmentMonth(world);
    const Worker& sol = Named(world.Workers(), "Sol Varga");
    EXPECT_EQ(sol.Over, c.Over);
    EXPECT_EQ(sol.Charisma, c.Charisma);
    EXPECT_EQ(sol.Stiff, c.Stiff);
    EXPECT_EQ(NewsOf(world), Improved(c.Pieces));
  }
}

TEST(DevelopmentMonth, DrawsOnlyForWhatCanStillBeTaught) {
  struct Case {
    int Charisma, Stiff;
    std::vector<ScriptedDraw> Draws;
    int CharismaAfter, StiffAfter;
  };
  const Case kCases[] = {{90, 25, {{4, 1}}, 90, 25},
                         {90, 75, {{4, 1}}, 90, 75},
                         {90, 76, {{4, 1}, {3, 3}}, 90, 73},
                         {89, 76, {{4, 1}, {3, 2}, {3, 1}}, 91, 75},
                         {90, 0, {{4, 1}, {3, 2}}, 90, 2}};
  for (const Case& c : kCases) {
    World world = Territory(80, [&](Worker& worker) {
      worker.Charisma = c.Charisma;
      worker.Stiff = c.Stiff;
    });
    ScriptDraws(world, c.Draws);
    DevelopmentMonth(world);
    const Worker& sol = Named(world.Workers(), "Sol Varga");
    EXPECT_EQ(sol.Charisma, c.CharismaAfter);
    EXPECT_EQ(sol.Stiff, c.StiffAfter);
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
      {kDevelopmentDeal, true}, {80, true},       {81, true}, {86, true}, {kJobber, false},
      {kTrainingCamp, false},   {kManager, false}};
  for (const Case& c : kCases) {
    World world = Territory(80);
    Named(world.Workers(), "Sol Varga").Position = c.Position;
    ScriptDraws(world, c.Learns ? std::vector<ScriptedDraw>{{4, 2}} : std::vector<ScriptedDraw>{});
    DevelopmentMonth(world);
    EXPECT_EQ(Named(world.Workers(), "Sol Varga").Over, c.Learns ? 42 : 40) << c.Position;
    EXPECT_EQ(Named(world.Workers(), "Al Other").Over, 10) << "a rival's";
  }
  World none = Territory(80, {}, [](Promotion& player) { player.DevName = "None"; });
  ScriptDraws(none, {});
  DevelopmentMonth(none);
  World leaderless = Territory(80, {}, [](Promotion& player) { player.DevBooker = 0; });
  ScriptDraws(leaderless, {});
  DevelopmentMonth(leaderless);
  EXPECT_EQ(Named(leaderless.Workers(), "Sol Varga").Over, 40);
}

TEST(DevelopmentMonth, LetsTheOutgrownFret) {
  const char* const kMails[][2] = {{"is unhappy about remaining in Ohio Ring.", nullptr},
                                   {"doesn't want to remain in Ohio Ring.", nullptr},
                                   {"wants to be promoted to the full roster.", nullptr},
                                   {"feels that Ohio Ring isn't helping his career much.",
                                    "feels that Ohio Ring isn't helping her career much."},
                                   {"is not happy about being stuck in Ohio Ring.", nullptr}};
  for (int mail = 1; mail <= 5; ++mail)
    for (const bool isMan : {true, false}) {
      const auto& words = kMails[mail - 1];
      World world = Territory(
          99,
          [&](Worker& worker) {
            worker.Over = 70;
            worker.Gender = isMan;
            worker.Behaviour = isMan ? 50 : 1;
            worker.Morale = isMan ? 60 : 3;
          },
          {}, [](GameInfo& game) { game.MailDev = 2; });
      ScriptDraws(world, {{2, 2}, {5, 4}, {5, mail}});
      DevelopmentMonth(world);
      const Worker& sol = Named(world.Workers(), "Sol Varga");
      EXPECT_EQ(sol.Behaviour, isMan ? 48 : 0);
      EXPECT_EQ(sol.Morale, isMan ? 56 : 0);
      EXPECT_EQ(NewsOf(world), std::string("Development: Sol Varga ") +
                                   (isMan || !words[1] ? words[0] : words[1]) + "\n");
    }
}

TEST(DevelopmentMonth, LetsHimFretInTheMonthInWhichHeGetsThere) {
  World world = Territory(80, [](Worker& worker) { worker.Over = 68; });
  ScriptDraws(world, {{4, 2}, {2, 1}, {5, 1}, {5, 3}});
  DevelopmentMonth(world);
  EXPECT_EQ(NewsOf(world), Improved("Over (2 points);") +
                               "Development: Sol Varga wants to be promoted to the full roster.\n");
}

/// The player's CWA with a camp under a head trainer, and "Sol Varga" in it.
World Camp(int talent, int facilities, const Change<Worker>& change = {},
           const Change<GameInfo>& options = {}) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Staff("Pop Grim", kTrainer, talent)
                    .Worker("Sol Varga", kTrainingCamp, 10,
                            [&](Worker& worker) {
                              worker.Brawl = 10;
                              worker.Technical = 20;
                              worker.Speed = 30;
                              worker.Sell = 40;
                              worker.Attitude = 50;
                              if (change) change(worker);
                            })
                    .Worker("Al Jobber", kJobber, 10)
                    .Game("CWA", kGameStart, options);
  world.Player().CampName = "Pump House";
  world.Player().CampFacilities = facilities;
  world.Player().HeadTrainer = Named(world.AllStaff(), "Pop Grim").Uid;
  return world;
}

TEST(TrainingCampMonth, DrawsByTalentUpToTheFacilities) {
  struct Case {
    int Talent, Facilities, Range;
  };
  constexpr Case kCases[] = {{40, 4, 0}, {41, 4, 1}, {59, 4, 1},  {60, 4, 0}, {70, 4, 0},
                             {71, 4, 2}, {90, 4, 2}, {91, 4, 3},  {98, 4, 3}, {99, 4, 4},
                             {99, 3, 3}, {99, 2, 2}, {99, 1, 1},  {91, 2, 2}, {71, 1, 1},
                             {41, 3, 1}, {99, 0, 0}, {100, 4, 4}, {71, 3, 2}};
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

TEST(TrainingCampMonth, TeachesOnlyThePlayersTrainees) {
  for (const int employer : {0, 99}) {
    World world = Camp(99, 4);
    Named(world.Workers(), "Sol Varga").Employer = employer;
    ScriptDraws(world, {});
    const World before = CopyOf(world);
    TrainingCampMonth(world);
    ExpectSame(world, before);
  }
}

TEST(TrainingCampMonth, TellsUnlessNever) {
  for (const int option : {0, 2}) {
    World world = Camp(99, 4, {}, [&](GameInfo& game) { game.MailTrain = option; });
    ScriptDraws(world, {{4, 1}, {4, 4}, {4, 2}});
    TrainingCampMonth(world);
    EXPECT_EQ(NewsOf(world),
              option == 2 ? ""
                          : "Training Camp: Sol Varga in Pump House has improved in the following "
                            "areas: Selling (2 points); Attitude (2 points); Brawling (1 point); "
                            "Technical (4 points); Speed (2 points);\n");
  }
}

TEST(TrainingCampMonth, NeedsACampAndAHeadTrainerAndStopsAtAHundred) {
  for (const bool hasCamp : {true, false}) {
    World world = Camp(99, 4);
    if (hasCamp)
      world.Player().HeadTrainer = 0;
    else
      world.Player().CampName = "None";
    ScriptDraws(world, {});
    const World before = CopyOf(world);
    TrainingCampMonth(world);
    ExpectSame(world, before);
  }
  World full = Camp(99, 4, [](Worker& worker) {
    worker.Brawl = 99;
    worker.Sell = 99;
    worker.Attitude = 100;
  });
  ScriptDraws(full, {4, 1, 1});
  TrainingCampMonth(full);
  const Worker& sol = Named(full.Workers(), "Sol Varga");
  EXPECT_EQ(sol.Brawl, 100);
  EXPECT_EQ(sol.Sell, 100);
  EXPECT_EQ(sol.Attitude, 100);
}

struct StatusCase {
  const char* Status;
  int Months;
  const char* After;
  int MonthsAfter;
  const char* News;
};

TEST(StatusCountdown, EndsEachAbsenceAtItsTime) {
  constexpr StatusCase kCases[] = {
      {"Inj", 1, "Nor", 0, "Roster News: Sol Varga has returned from injury.\n"},
      {"Reh", 1, "Nor", 0, "Roster News: Sol Varga has returned from rehab.\n"},
      {"Sus", 1, "Nor", 0, "Roster News: Sol Varga has returned from suspension.\n"},
      {"Inj", 2, "Inj", 1, ""},
      {"Reh", 6, "Reh", 5, ""},
      {"Sus", 12, "Sus", 11, ""},
      {"Hom", 1, "Hom", 1, ""},
      {"Nor", 1, "Nor", 1, ""},
      {"Inj", 0, "Inj", 0, ""}};
  for (const StatusCase& c : kCases)
    for (const bool isPlayers : {true, false}) {
      SCOPED_TRACE(std::string(c.Status) + std::to_string(c.Months));
      World world = SmallWorld()
                        .Promotion("NEW")
                        .Promotion("CWA")
                        .Worker("Sol Varga")
                        .Game(isPlayers ? "CWA" : "NEW");
      Worker& sol = world.Workers()[1];
      sol.Status = c.Status;
      sol.StatusMonths = c.Months;
      sol.InjuryName = "Broken Leg";
      ScriptDraws(world, {});
      StatusCountdown(world);
      EXPECT_EQ(sol.Status.View(), c.After);
      EXPECT_EQ(sol.StatusMonths, c.MonthsAfter);
      const bool ended = std::string_view(c.After) != c.Status;
      EXPECT_EQ(sol.InjuryName.View(), ended ? "" : "Broken Leg");
      EXPECT_EQ(NewsOf(world), isPlayers ? c.News : "");
    }
}

}  // namespace
}  // namespace grapplemont::test
