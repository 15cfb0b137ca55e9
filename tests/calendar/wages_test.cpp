#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// "Bram Okafor" and "Pat Bell" at the player's CWA or at the rival NEW (both have $2000000), with
/// so many months.
World Contracts(bool isPlayers, int months, const Change<Worker>& worker = {},
                const Change<Staff>& staff = {}) {
  SmallWorld small;
  small.Promotion(isPlayers ? "NEW" : "CWA").Promotion(isPlayers ? "CWA" : "NEW");
  return small
      .Worker("Bram Okafor", kMidcard, 72,
              [&](Worker& w) {
                w.ContractMonths = months;
                w.Wage = 12;
                if (worker) worker(w);
              })
      .Staff("Pat Bell", kReferee, 50,
             [&](Staff& s) {
               s.ContractMonths = months;
               s.Wage = 7;
               if (staff) staff(s);
             })
      .Game("CWA");
}

TEST(Wages, ArePaidByTheMonthAndRemindedOf) {
  struct Case {
    int Before;
    bool IsMan;
    const char* Left;
  };
  constexpr Case kCases[] = {{8, true, nullptr},
                             {4, true, " has 3 months left on his contract.\n"},
                             {3, true, nullptr},
                             {2, false, " has 1 month left on her contract.\n"}};
  for (const Case& c : kCases)
    for (const bool isPlayers : {true, false}) {
      World world = Contracts(
          isPlayers, c.Before, [&](Worker& worker) { worker.Gender = c.IsMan; },
          [&](Staff& staff) { staff.Gender = c.IsMan; });
      ScriptDraws(world, {});
      PayWagesAndContracts(world);
      const Promotion& payer = Named(world.Promotions(), isPlayers ? "CWA" : "NEW");
      EXPECT_EQ(world.Workers()[1].ContractMonths, c.Before - 1);
      EXPECT_EQ(world.AllStaff()[1].ContractMonths, c.Before - 1);
      EXPECT_EQ(payer.Money, 2000000 - 19000);
      EXPECT_EQ(payer.ThisMonth.WrestlerWages, 12000);
      EXPECT_EQ(payer.ThisMonth.StaffWages, 7000);
      const std::string left = c.Left ? c.Left : "";
      EXPECT_EQ(NewsOf(world), isPlayers && c.Left
                                   ? "Human Resources: Bram Okafor" + left +
                                         "Human Resources: Staff member Pat Bell" + left
                                   : "");
    }
}

TEST(Wages, AreNotPaidToWhoSitsOutOrHasNoContract) {
  World home = Contracts(true, 8, [](Worker& worker) { worker.Status = "Hom"; });
  PayWagesAndContracts(home);
  EXPECT_EQ(home.Workers()[1].ContractMonths, 7) << "the contract runs all the same";
  EXPECT_EQ(home.Player().ThisMonth.WrestlerWages, 0);

  for (const bool isFree : {true, false}) {
    World world = Contracts(
        true, isFree ? 0 : int(kNoEnd),
        [&](Worker& worker) {
          worker.Unsackable = !isFree;
          if (isFree) worker.Employer = 0;
          if (isFree) worker.ContractType = "Non";
        },
        [&](Staff& staff) {
          if (isFree) staff.Employer = 0;
          if (isFree) staff.ContractType = "Non";
          if (!isFree) staff.Position = kOwner;
        });
    const World before = CopyOf(world);
    PayWagesAndContracts(world);
    ExpectSame(world, before);
  }
}

TEST(Contracts, ThatStoodAtNothingArePaidOnceMoreAndHaveNoEndFromThenOn) {
  for (const bool isPlayers : {true, false}) {
    World world = Contracts(isPlayers, 0);
    for (int month = 1; month <= 2; ++month) PayWagesAndContracts(world);
    EXPECT_EQ(world.Workers()[1].ContractMonths, kNoEnd);
    EXPECT_NE(world.Workers()[1].Employer, 0);
    EXPECT_EQ(world.Promotions()[2].ThisMonth.WrestlerWages, 12000);
    EXPECT_EQ(NewsOf(world), "");
  }
}

TEST(Contracts, EndAtThePlayersThroughTheRelease) {
  World world = Contracts(true, 1, [](Worker& worker) { worker.Status = "Hom"; });
  ScriptDraws(world, {{3, 2}});
  PayWagesAndContracts(world);
  EXPECT_EQ(NewsOf(world),
            "Human Resources: Bram Okafor has now left the promotion.\n"
            "Human Resources: Staff member Pat Bell is now no longer under contract with us.\n");
  EXPECT_EQ(world.Workers()[1].Employer, 0);
  EXPECT_EQ(world.Workers()[1].Status.View(), "Nor");
  EXPECT_EQ(world.AllStaff()[1].Employer, 0);
}

TEST(Contracts, EndAtARivals) {
  struct Case {
    int Option;
    bool Listed, Small, WorkerTold, StaffTold;
  };
  constexpr Case kCases[] = {{0, false, true, true, true},   {1, false, false, true, true},
                             {1, false, true, false, false}, {2, false, false, false, false},
                             {2, true, true, true, false},   {1, true, true, true, false}};
  for (const Case& c : kCases) {
    World world = Contracts(false, 1, [](Worker& worker) {
      worker.Position = kTrainingCamp;
      worker.Status = "Hom";
      worker.TurnPending = true;
    });
    for (const bool isWorker : {false, true}) {
      Show show;
      show.Owner = world.AllStaff()[1].Employer;
      show.Announcer = show.Colour = 1;
      show.ColourIsWorker = isWorker;
      world.Shows().Append(show);
    }
    world.Workers()[1].Manager = 1;
    world.Game().MailWorkerFire = world.Game().MailStaffFire = c.Option;
    if (c.Listed) world.Game().Shortlist[14] = 1;
    if (c.Small) Named(world.Promotions(), "NEW").Size = kSmall;
    ScriptDraws(world, {});
    PayWagesAndContracts(world);
    const Worker& worker = world.Workers()[1];
    EXPECT_EQ(worker.Position, kMidcard) << "as Over 72 earns it";
    EXPECT_EQ(worker.Employer, 0);
    EXPECT_EQ(worker.Status.View(), "Nor");
    EXPECT_EQ(worker.ContractType.View(), "Non");
    EXPECT_EQ(worker.Manager, 0);
    EXPECT_FALSE(worker.TurnPending);
    EXPECT_EQ(world.AllStaff()[1].Employer, 0);
    EXPECT_EQ(world.Shows()[1].Announcer, 0);
    EXPECT_EQ(world.Shows()[1].Colour, 0);
    EXPECT_EQ(NewsOf(world),
              std::string(c.WorkerTold ? "NEW News: Bram Okafor has left NEW.\n" : "") +
                  (c.StaffTold ? "NEW News: Pat Bell has left the staff of NEW.\n" : ""))
        << c.Option << c.Listed << c.Small;
  }
}

}  // namespace
}  // namespace grapplemont::test
