#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "calendar/mentions.h"
#include "roster/names.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"
#include "words/names.h"

namespace grapplemont::test {
namespace {

/// Always the highest number; notes of how many.
class HighDraws : public Draws {
 public:
  explicit HighDraws(std::vector<int>& asked) : asked_(asked) {}
  int Draw(int n) override {
    asked_.push_back(n);
    return n;
  }

 private:
  std::vector<int>& asked_;
};

/// The player's promotion with one worker.
World One(const Change<Worker>& change, std::string_view name = "Bram Okafor") {
  return SmallWorld().Promotion("CWA").Worker(name, kMidcard, 50, change).Game("CWA");
}

TEST(DailyUpkeep, RestsThePlayersPeopleAsTheMedicsCan) {
  struct Case {
    int Roster, Medics, Draw;
  };
  constexpr Case kCases[] = {{1, 0, 5},  {30, 0, 5}, {31, 1, 2}, {31, 2, 5}, {55, 1, 2},
                             {55, 2, 5}, {56, 2, 2}, {56, 3, 5}, {90, 3, 5}};
  for (const Case& c : kCases) {
    SmallWorld small;
    small.Promotion("CWA").Crew(c.Roster).Staff("Bell Ringer", kReferee);
    for (int i = 0; i < c.Medics; ++i) small.Staff("Medic " + std::to_string(i), kMedical);
    World world = small.Promotion("NEW").Staff("Rival Medic", kMedical).Game("CWA");
    for (Worker& worker : world.Workers()) worker.Condition = 40;
    std::vector<int> asked;
    world.SetChance(std::make_unique<HighDraws>(asked));
    DailyWorkerUpkeep(world);
    EXPECT_EQ(asked, std::vector<int>(static_cast<std::size_t>(c.Roster), c.Draw))
        << c.Roster << " with " << c.Medics;
    EXPECT_EQ(world.Workers()[1].Condition, 40 + c.Draw);
  }
}

TEST(DailyUpkeep, LeavesOthersToThemselves) {
  struct Case {
    bool Employed;
    int Morale, Condition, Draw, MoraleAfter, ConditionAfter;
  };
  constexpr Case kCases[] = {{true, 64, 50, 1, 65, 50},
                             {true, 65, 50, 2, 65, 51},
                             {true, 0, 100, 2, 1, 100},
                             {false, 30, 0, 1, 30, 0},
                             {false, 70, 99, 2, 70, 100}};
  for (const Case& c : kCases) {
    SmallWorld small;
    small.Promotion("CWA").Promotion("NEW");
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
    EXPECT_EQ(NewsOf(world), "");
  }
}

void Unhappy(Worker& worker) {
  worker.ContractType = "Non";
  worker.Behaviour = 79;
  worker.Morale = 9;
  worker.Condition = 50;
}

TEST(DailyUpkeep, LetsTheUnhappyWalkOutOfAVerbalAgreement) {
  World world = One(Unhappy);
  ScriptDraws(world, {{3, 2}, {5, 4}});
  DailyWorkerUpkeep(world);
  EXPECT_EQ(world.Workers()[1].Employer, 0);
  EXPECT_EQ(world.Workers()[1].ContractMonths, 0);
  EXPECT_EQ(world.Workers()[1].Condition, 54);
  EXPECT_EQ(NewsOf(world),
            "Bram Okafor: I'm not happy in this promotion, so i am leaving to work elsewhere.\n");

  World legend = One(Unhappy, "Maul Gantry");
  ScriptDraws(legend, {{3, 2}, {5, 4}});
  DailyWorkerUpkeep(legend);
  EXPECT_EQ(NewsOf(legend),
            "Maul Gantry: Brother, I'm not happy in this promotion, so i am leaving to take "
            "Maulamania elsewhere!\n");
}

TEST(DailyUpkeep, HoldsWhomNothingLetsGo) {
  const Change<Worker> kReasons[] = {
      [](Worker& w) { w.ContractType = "Wri"; }, [](Worker& w) { w.Status = "Inj"; },
      [](Worker& w) { w.Unsackable = true, w.ContractMonths = kNoEnd; },
      [](Worker& w) { w.Behaviour = 80; }, [](Worker& w) { w.Morale = 10; }};
  int number = 0;
  for (const Change<Worker>& reason : kReasons) {
    World world = One([&](Worker& worker) {
      Unhappy(worker);
      reason(worker);
      if (worker.Status == "Inj") worker.StatusMonths = 2, worker.InjuryName = "Broken Arm";
    });
    ScriptDraws(world, {{5, 1}});
    DailyWorkerUpkeep(world);
    EXPECT_NE(world.Workers()[1].Employer, 0) << number++;
    EXPECT_EQ(NewsOf(world), "");
  }
}

TEST(DailyUpkeep, LetsTheHopelessSitOutAWrittenContract) {
  const auto hopeless = [](Worker& worker) {
    worker.Behaviour = 74;
    worker.Morale = 0;
  };
  World world = One(hopeless);
  ScriptDraws(world, {{5, 1}});
  DailyWorkerUpkeep(world);
  const Worker& worker = world.Workers()[1];
  EXPECT_EQ(worker.Status.View(), "Hom");
  EXPECT_EQ(worker.Loyalty, 0);
  EXPECT_NE(worker.Employer, 0);
  EXPECT_EQ(NewsOf(world),
            "Bram Okafor: I've had enough with this promotion, i refuse to wrestle for you "
            "again.\n");
  ScriptDraws(world, {{5, 1}});
  DailyWorkerUpkeep(world);
  EXPECT_EQ(world.News().Count(), 1) << "he says so once";

  World legend = One(hopeless, "Maul Gantry");
  ScriptDraws(legend, {{5, 1}});
  DailyWorkerUpkeep(legend);
  EXPECT_EQ(NewsOf(legend),
            "Maul Gantry: Dude, I've had enough with this promotion, i refuse to wrestle for you "
            "again, brother!\n");

  for (const Change<Worker>& reason :
       {Change<Worker>([](Worker& w) { w.Behaviour = 75; }), {[](Worker& w) { w.Morale = 1; }}}) {
    World held = One([&](Worker& w) {
      hopeless(w);
      reason(w);
    });
    ScriptDraws(held, {{5, 1}});
    DailyWorkerUpkeep(held);
    EXPECT_EQ(held.Workers()[1].Status.View(), "Nor");
  }
}

TEST(DailyUpkeep, LetsTheHopelessBreakAnyOtherContract) {
  // Neither verbal nor written: a code that only another program writes.
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Worker("Bram Okafor",
                            [](Worker& worker) {
                              worker.ContractType = "???";
                              worker.Behaviour = 74;
                              worker.Morale = 0;
                              worker.Condition = 50;
                            })
                    .Game("CWA")
                    .BuildUnchecked();
  ScriptDraws(world, {{3, 3}, {5, 2}});
  DailyWorkerUpkeep(world);
  const Worker& worker = world.Workers()[1];
  EXPECT_EQ(worker.Employer, 0);
  EXPECT_EQ(worker.Status.View(), "Nor");
  EXPECT_EQ(worker.Morale, 80);
  EXPECT_EQ(worker.Loyalty, 0);
  EXPECT_EQ(NewsOf(world),
            "Bram Okafor: I've had enough with this promotion and the way i've been treated, i'm "
            "leaving.\n");
}

TEST(DailyUpkeep, MovesTheMoodOfThoseKeptAway) {
  struct Case {
    int Position, Age;
    std::vector<int> Draws;  // after the Condition's
    int Morale;              // from 50
  };
  const Case kCases[] = {{kDevelopmentDeal, 25, {2}, 51},
                         {kDevelopmentDeal, 25, {1}, 50},
                         {81, 18, {2}, 51},
                         {kDevelopmentDeal, 26, {}, 50},
                         {kDevelopmentDeal, 27, {2, 1}, 51},
                         {86, 34, {1, 2}, 49},
                         {kDevelopmentDeal, 30, {2, 2}, 50},
                         {kDevelopmentDeal, 35, {}, 50},
                         {kTrainingCamp, 20, {}, 50},
                         {kMidcard, 20, {}, 50}};
  for (const Case& c : kCases) {
    World world = One([&](Worker& worker) {
      worker.Position = c.Position;
      worker.Age = c.Age;
      worker.Morale = 50;
      worker.TurnPending = true;
    });
    std::vector<int> script{1};
    script.insert(script.end(), c.Draws.begin(), c.Draws.end());
    ScriptDraws(world, script);
    DailyWorkerUpkeep(world);
    EXPECT_EQ(world.Workers()[1].Morale, c.Morale) << c.Position << " at " << c.Age;
  }
}

using Script = std::vector<ScriptedDraw>;

Script Then(Script first, const Script& next) {
  first.insert(first.end(), next.begin(), next.end());
  return first;
}

/// "Pen Ward" of the age, whose birthday it is.
World WithStaff(std::string_view employer, int position, int age, int option = 0) {
  SmallWorld small;
  small.Promotion("NEW", kBackyard).Promotion("CWA");
  if (employer == "NEW") small = SmallWorld(), small.Promotion("CWA").Promotion("NEW", kBackyard);
  if (employer.empty()) small.OnTheMarket();
  World world =
      small
          .Staff("Pen Ward", position, 50,
                 [&](Staff& staff) {
                   staff.BirthMonth = 2;
                   staff.Age = age;
                 })
          .Game("CWA", kGameStart, [&](GameInfo& game) { game.MailStaffRetire = option; });
  world.Session.StartSize = world.Player().Size;
  return world;
}

/// Name, age, talent, wage of an Owner, backstage, birthday, booker, morale, loyalty.
Script Newcomer(int position) {
  Script script{{300, 1}, {192, 162}, {35, 5}, {100, 60}};
  if (position == kOwner) script.push_back({6, 3});
  return Then(script,
              {{65, 10}, {12, 11}, {position == kAnnouncer ? 5 : 35, 1}, {40, 40}, {30, 1}});
}

TEST(StaffRetirement, IsDrawnByAgeAndAtOnce) {
  struct Case {
    int AgeBefore;
    Script Draws;
    bool Retires;
  };
  const Case kCases[] = {{48, {}, false},       {49, {{10, 1}}, true}, {49, {{10, 2}}, false},
                         {58, {{10, 1}}, true}, {59, {{3, 1}}, true},  {64, {{3, 3}}, false},
                         {65, {{2, 1}}, true},  {72, {{2, 2}}, false}, {73, {}, true},
                         {90, {}, true}};
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.AgeBefore);
    World world = WithStaff("CWA", kMedical, c.AgeBefore, 2);
    const int uid = world.AllStaff()[1].Uid;
    ScriptDraws(world, c.Retires ? Then(c.Draws, Newcomer(kMedical)) : c.Draws);
    AgeAndRetire(world);
    const Staff& there = world.AllStaff()[1];
    EXPECT_EQ(world.AllStaff().Count(), 1);
    EXPECT_EQ(there.Uid, c.Retires ? uid + 1 : uid);
    EXPECT_EQ(there.Age, c.Retires ? 30 : c.AgeBefore + 1);
    EXPECT_EQ(NewsOf(world),
              c.Retires ? "Retirement!: Staff member Pen Ward has retired from CWA!\n" : "");
  }
}

TEST(StaffRetirement, PutsSomebodyNewForThePostIntoTheRecord) {
  for (const int position : {int(kOwner), int(kAnnouncer), int(kTrainer)}) {
    SCOPED_TRACE(position);
    World world = WithStaff("CWA", position, 80);
    const int uid = world.AllStaff()[1].Uid;
    world.Player().HeadTrainer = uid;
    world.Player().DevBooker = uid;
    Show show;
    show.Name = "Friday Fire";
    show.Announcer = uid;
    show.Colour = uid;
    for (const char* owner : {"CWA", "NEW"}) {
      show.Owner = Named(world.Promotions(), owner).Uid;
      world.Shows().Append(show);
    }
    show.ColourIsWorker = true;
    show.Announcer = 0;
    world.Shows().Append(show);
    ScriptDraws(world, Newcomer(position));
    AgeAndRetire(world);
    const Staff& fresh = world.AllStaff()[1];
    EXPECT_EQ(fresh.Name.Str(), std::string(StaffFirstNames[161]) + " " + std::string(Surnames[0]));
    EXPECT_FALSE(fresh.Gender);
    EXPECT_EQ(fresh.Position, position);
    EXPECT_EQ(fresh.Employer, 0);
    EXPECT_EQ(fresh.ContractMonths, position == kOwner ? int(kNoEnd) : 0);
    EXPECT_EQ(fresh.Wage, position == kOwner ? 3 : 13);
    EXPECT_EQ(fresh.BirthMonth, 11);
    EXPECT_TRUE(fresh.Booker);
    EXPECT_EQ(fresh.Morale, 100);
    EXPECT_EQ(fresh.Loyalty, 71);
    EXPECT_FALSE(fresh.Unsackable);
    EXPECT_EQ(Mentions(world, Refers::Staff, uid), "");
    EXPECT_EQ(Mentions(world, Refers::Commentator, uid), "tv.dat Colour\n")
        << "a worker of the same number speaks on";
  }
}

}  // namespace
}  // namespace grapplemont::test
