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

TEST(DailyUpkeep, RestsThePlayersPeopleAsTheMedicsCan) {
  struct Case {
    int Roster, Medics, Draw;
  };
  constexpr Case kCases[] = {{30, 0, 5}, {31, 1, 2}, {31, 2, 5}};
  for (const Case& c : kCases) {
    SmallWorld small;
    small.Promotion("CWA").Crew(c.Roster).Staff("Bell Ringer", kReferee);
    for (int i = 0; i < c.Medics; ++i) small.Staff("Medic " + std::to_string(i), kMedical);
    World world = small.Promotion("NEW").Staff("Rival Medic", kMedical).Game("CWA");
    for (Worker& worker : world.Workers()) worker.Condition = 40;
    ScriptDraws(world, std::vector<ScriptedDraw>(static_cast<std::size_t>(c.Roster),
                                                 ScriptedDraw(c.Draw, c.Draw)));
    DailyWorkerUpkeep(world);
    EXPECT_EQ(world.Workers()[1].Condition, 40 + c.Draw);
  }
}

TEST(DailyUpkeep, LeavesOthersToThemselves) {
  struct Case {
    bool Employed;
    int Morale, Condition, Draw, MoraleAfter, ConditionAfter;
  };
  constexpr Case kCases[] = {
      {true, 64, 50, 1, 65, 50}, {true, 65, 50, 2, 65, 51}, {false, 30, 99, 2, 30, 100}};
  for (const Case& c : kCases) {
    SmallWorld small;
    small.Promotion("CWA").Staff("Mine", kReferee).Promotion("NEW").Staff("Theirs", kReferee);
    if (!c.Employed) small.OnTheMarket();
    World world = small
                      .Worker("Bram Okafor",
                              [&](Worker& worker) {
                                worker.Morale = c.Morale;
                                worker.Condition = c.Condition;
                                worker.Behaviour = 0;
                              })
                      .Game("CWA");
    ScriptDraws(world, {{2, c.Draw}});
    DailyWorkerUpkeep(world);
    EXPECT_EQ(world.Workers()[1].Morale, c.MoraleAfter);
    EXPECT_EQ(world.Workers()[1].Condition, c.ConditionAfter);
    EXPECT_EQ(world.AllStaff()[2].Morale, world.AllStaff()[1].Morale + 1);
    EXPECT_EQ(NewsOf(world), "");
  }
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
  struct Case {
    const char* Name;
    void (*Change)(Worker&);
    bool Leaves;
    const char* Says;
  };
  const Case kCases[] = {
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
  for (const Case& c : kCases) {
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
    EXPECT_EQ(world.News().Count(), 1) << "he says so once";
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
  struct Case {
    int Position, Age;
    std::vector<int> Draws;  // after the Condition's
    int Morale;              // from 50
  };
  const Case kCases[] = {
      {kDevelopmentDeal, 25, {2}, 51},    {81, 18, {1}, 50},     {kDevelopmentDeal, 26, {}, 50},
      {kDevelopmentDeal, 27, {2, 1}, 51}, {86, 34, {1, 2}, 49},  {kDevelopmentDeal, 35, {}, 50},
      {kTrainingCamp, 20, {}, 50},        {kMidcard, 20, {}, 50}};
  for (const Case& c : kCases) {
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

TEST(StatusCountdown, EndsEachAbsenceAtItsTime) {
  struct Case {
    const char* Status;
    int Months, MonthsAfter;
    const char* From;  // nullptr: it goes on
  };
  constexpr Case kCases[] = {{"Inj", 1, 0, "injury"},     {"Reh", 1, 0, "rehab"},
                             {"Sus", 1, 0, "suspension"}, {"Sus", 12, 11, nullptr},
                             {"Hom", 1, 1, nullptr},      {"Nor", 1, 1, nullptr}};
  for (const Case& c : kCases)
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
      EXPECT_EQ(sol.Status.View(), c.From ? "Nor" : c.Status);
      EXPECT_EQ(sol.StatusMonths, c.MonthsAfter);
      EXPECT_EQ(sol.InjuryName.View(), c.From ? "" : "Broken Leg");
      EXPECT_EQ(NewsOf(world), isPlayers && c.From ? "Roster News: Sol Varga has returned from " +
                                                         std::string(c.From) + ".\n"
                                                   : "");
    }
}

TEST(EconomyDrift, MovesByItsBands) {
  struct Case {
    int Before;
    bool Rising;
    std::vector<int> Draws;
    int After;
    bool RisingAfter;
  };
  const Case kCases[] = {
      {50, true, {8}, 51, true},   {50, false, {8}, 49, false},       {50, true, {9}, 50, true},
      {20, false, {1}, 19, false}, {80, true, {1}, 81, true},         {81, true, {}, 82, true},
      {19, true, {}, 26, true},    {99, true, {}, 100, false},        {7, false, {}, 0, true},
      {5, false, {}, -2, false},   {-32765, false, {}, -32768, false}};
  for (const Case& c : kCases) {
    World world = SmallWorld().Promotion("CWA").Game("CWA");
    world.Game().Economy = c.Before;
    world.Game().EconomyRising = c.Rising;
    ScriptDraws(world, c.Draws);
    EconomyDrift(world);
    EXPECT_EQ(world.Game().Economy, c.After) << "from " << c.Before;
    EXPECT_EQ(world.Game().EconomyRising, c.RisingAfter) << "from " << c.Before;
  }
}

TEST(WriterWorkload, BringsAMailWhenTheWritersAreTooFew) {
  struct Case {
    int Shows, Writers;
    const char* Mail;
  };
  constexpr Case kCases[] = {
      {0, 0, ""},
      {1, 2, ""},
      {1, 0,
       "Maeve: Our writers can't keep up. For 1 television show we need at least 2 writers, and we "
       "have none. Until we hire more, i can't put any angles on television.\n"},
      {2, 3,
       "Maeve: Our writers can't keep up. For 2 television shows we need at least 4 writers, and "
       "we have 3. Until we hire more, i can't put any angles on television.\n"}};
  constexpr const char* kDays[] = {"Monday", "Tuesday"};
  for (const Case& c : kCases) {
    SmallWorld small;
    small.Network("Nine").Promotion("CWA");
    for (int i = 0; i < c.Shows; ++i) small.Show("Show " + std::to_string(i), kDays[i], "Nine");
    for (int i = 0; i < c.Writers; ++i) small.Staff("Pen " + std::to_string(i), kWriter);
    World world = small.Promotion("NEW").Staff("Rival Pen", kWriter).Game("CWA");
    WriterWorkload(world);
    EXPECT_EQ(NewsOf(world), c.Mail);
  }
}

}  // namespace
}  // namespace grapplemont::test
