#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// "Bram Okafor" with so many months at the player's CWA or the rival NEW (both Regional,
/// $2000000).
World Contract(bool isPlayers, int months, const Change<Worker>& change = {},
               const Change<GameInfo>& options = {}) {
  SmallWorld small;
  small.Promotion("CWA").Promotion("NEW");
  if (isPlayers) small = SmallWorld(), small.Promotion("NEW").Promotion("CWA");
  return small
      .Worker("Bram Okafor", kMidcard, 72,
              [&](Worker& worker) {
                worker.ContractMonths = months;
                worker.Wage = 12;
                if (change) change(worker);
              })
      .Game("CWA", kGameStart, options);
}

TEST(Wages, ArePaidAndTakeAMonthOff) {
  for (const bool isPlayers : {true, false}) {
    World world = Contract(isPlayers, 8);
    ScriptDraws(world, {});
    PayWagesAndContracts(world);
    const Promotion& payer = Named(world.Promotions(), isPlayers ? "CWA" : "NEW");
    EXPECT_EQ(world.Workers()[1].ContractMonths, 7);
    EXPECT_EQ(payer.Money, 2000000 - 12000);
    EXPECT_EQ(payer.ThisMonth.WrestlerWages, 12000);
    EXPECT_EQ(NewsOf(world), "");
  }
}

TEST(Wages, AreNotPaidToWhoSitsOutOrIsUnsackableOrFree) {
  World home = Contract(true, 8, [](Worker& worker) { worker.Status = "Hom"; });
  PayWagesAndContracts(home);
  EXPECT_EQ(home.Workers()[1].ContractMonths, 7) << "the contract runs all the same";
  EXPECT_EQ(home.Player().Money, 2000000);
  EXPECT_EQ(home.Player().ThisMonth.WrestlerWages, 0);

  for (const bool isFree : {true, false}) {
    World world = Contract(true, isFree ? 0 : int(kNoEnd), [&](Worker& worker) {
      worker.Unsackable = !isFree;
      if (isFree) worker.Employer = 0;
      if (isFree) worker.ContractType = "Non";
    });
    const World before = CopyOf(world);
    PayWagesAndContracts(world);
    ExpectSame(world, before);
  }
}

TEST(Contracts, AreRemindedOfAtThreeMonthsAndAtOne) {
  struct Case {
    int Before;
    bool IsMan;
    const char* News;
  };
  constexpr Case kCases[] = {
      {5, true, ""},
      {4, true, "Human Resources: Bram Okafor has 3 months left on his contract.\n"},
      {4, false, "Human Resources: Bram Okafor has 3 months left on her contract.\n"},
      {3, true, ""},
      {2, true, "Human Resources: Bram Okafor has 1 month left on his contract.\n"},
      {2, false, "Human Resources: Bram Okafor has 1 month left on her contract.\n"}};
  for (const Case& c : kCases) {
    World own = Contract(true, c.Before, [&](Worker& worker) { worker.Gender = c.IsMan; });
    PayWagesAndContracts(own);
    EXPECT_EQ(NewsOf(own), c.News) << c.Before;
    World rivals = Contract(false, c.Before);
    PayWagesAndContracts(rivals);
    EXPECT_EQ(NewsOf(rivals), "") << c.Before;
  }
}

TEST(Contracts, ThatStoodAtNothingArePaidOnceMoreAndHaveNoEndFromThenOn) {
  for (const bool isPlayers : {true, false}) {
    World world = Contract(isPlayers, 0);
    ScriptDraws(world, {});
    for (int month = 1; month <= 2; ++month) PayWagesAndContracts(world);
    const Promotion& payer = Named(world.Promotions(), isPlayers ? "CWA" : "NEW");
    EXPECT_EQ(world.Workers()[1].ContractMonths, kNoEnd);
    EXPECT_EQ(world.Workers()[1].Employer, payer.Uid);
    EXPECT_EQ(payer.Money, 2000000 - 12000);
    EXPECT_EQ(NewsOf(world), "");
  }
}

TEST(Contracts, EndAtThePlayersThroughTheRelease) {
  World world = Contract(true, 1, [](Worker& worker) { worker.Status = "Hom"; });
  ScriptDraws(world, {{3, 2}});
  PayWagesAndContracts(world);
  EXPECT_EQ(NewsOf(world), "Human Resources: Bram Okafor has now left the promotion.\n");
  EXPECT_EQ(world.Workers()[1].Employer, 0);
  EXPECT_EQ(world.Workers()[1].Status.View(), "Nor");
  EXPECT_TRUE(world.Workers()[1].Debuted);
}

TEST(Contracts, EndAtARivals) {
  struct Case {
    int Position, After;
  };
  // With Over 72.
  constexpr Case kCases[] = {{kMainEvent, kMainEvent},
                             {83, kMidcard},
                             {kDevelopmentDeal, kMidcard},
                             {kTrainingCamp, kMidcard},
                             {kManager, kManager}};
  for (const Case& c : kCases) {
    World world = Contract(false, 1, [&](Worker& worker) {
      worker.Position = c.Position;
      worker.Status = "Hom";
      worker.Morale = 5;
      worker.TurnPending = true;
    });
    world.Workers()[1].Manager = 1;
    ScriptDraws(world, {});
    PayWagesAndContracts(world);
    const Worker& worker = world.Workers()[1];
    EXPECT_EQ(worker.Position, c.After);
    EXPECT_EQ(worker.Employer, 0);
    EXPECT_EQ(worker.Status.View(), "Nor");
    EXPECT_EQ(worker.Morale, 80);
    EXPECT_EQ(worker.ContractMonths, 0);
    EXPECT_EQ(worker.ContractType.View(), "Non");
    EXPECT_EQ(worker.Stable.View(), "None");
    EXPECT_EQ(worker.Manager, 0);
    EXPECT_FALSE(worker.TurnPending);
    EXPECT_EQ(NewsOf(world), "NEW News: Bram Okafor has left NEW.\n");
  }
}

TEST(Contracts, OfRivalsAreNewsByTheOptionOrTheShortlist) {
  struct Case {
    int Option;
    bool Listed, Small, News;
  };
  constexpr Case kCases[] = {{0, false, true, true},  {1, false, false, true},
                             {1, false, true, false}, {2, false, false, false},
                             {2, true, true, true},   {1, true, true, true}};
  for (const Case& c : kCases) {
    World world = Contract(false, 1, {}, [&](GameInfo& game) {
      game.MailWorkerFire = c.Option;
      if (c.Listed) game.Shortlist[14] = 1;
    });
    if (c.Small) Named(world.Promotions(), "NEW").Size = kSmall;
    PayWagesAndContracts(world);
    EXPECT_EQ(world.News().Count(), c.News ? 1 : 0) << c.Option << c.Listed << c.Small;
  }
}

World StaffContract(bool isPlayers, int months, bool isMan = true, int position = kReferee) {
  SmallWorld small;
  if (isPlayers)
    small.Promotion("NEW").Promotion("CWA");
  else
    small.Promotion("CWA").Promotion("NEW");
  return small
      .Staff("Pat Bell", position, 50,
             [&](Staff& staff) {
               staff.ContractMonths = months;
               staff.Gender = isMan;
               staff.Wage = 7;
             })
      .Game("CWA");
}

TEST(StaffContracts, ArePaidRemindedOfAndEnded) {
  struct Case {
    int Before;
    bool IsMan;
    const char* News;
  };
  constexpr Case kCases[] = {
      {9, true, ""},
      {4, true, "Human Resources: Staff member Pat Bell has 3 months left on his contract.\n"},
      {4, false, "Human Resources: Staff member Pat Bell has 3 months left on her contract.\n"},
      {2, false, "Human Resources: Staff member Pat Bell has 1 month left on her contract.\n"},
      {1, true,
       "Human Resources: Staff member Pat Bell is now no longer under contract with us.\n"}};
  for (const Case& c : kCases) {
    World world = StaffContract(true, c.Before, c.IsMan);
    PayWagesAndContracts(world);
    EXPECT_EQ(NewsOf(world), c.News);
    EXPECT_EQ(world.Player().Money, 2000000 - 7000);
    EXPECT_EQ(world.Player().ThisMonth.StaffWages, 7000);
    EXPECT_EQ(world.AllStaff()[1].ContractMonths, c.Before - 1);
    EXPECT_EQ(world.AllStaff()[1].Employer, c.Before == 1 ? 0 : world.PlayerUid());
  }
  World owner = StaffContract(true, kNoEnd, true, kOwner);
  const World before = CopyOf(owner);
  PayWagesAndContracts(owner);
  ExpectSame(owner, before);
}

TEST(StaffContracts, EmptyTheirChairsWhenTheyEnd) {
  for (const bool isPlayers : {true, false}) {
    World world = StaffContract(isPlayers, 1);
    for (const bool isWorker : {false, true}) {
      Show show;
      show.Owner = world.AllStaff()[1].Employer;
      show.Announcer = show.Colour = 1;
      show.ColourIsWorker = isWorker;
      world.Shows().Append(show);
    }
    PayWagesAndContracts(world);
    EXPECT_EQ(world.Shows()[1].Announcer, 0);
    EXPECT_EQ(world.Shows()[1].Colour, 0);
    EXPECT_EQ(world.Shows()[2].Colour, 1) << "a worker of the same number speaks on";
  }
}

TEST(StaffContracts, OfRivalsEndUnderTheOption) {
  for (const auto& [option, told] : {std::pair(0, true), {1, true}, {2, false}}) {
    World world = StaffContract(false, 1);
    world.Game().MailStaffFire = option;
    PayWagesAndContracts(world);
    EXPECT_EQ(NewsOf(world), told ? "NEW News: Pat Bell has left the staff of NEW.\n" : "");
    EXPECT_EQ(world.AllStaff()[1].Employer, 0);
    EXPECT_EQ(world.AllStaff()[1].ContractMonths, 0);
    EXPECT_EQ(Named(world.Promotions(), "NEW").ThisMonth.StaffWages, 7000);
  }
}

}  // namespace
}  // namespace grapplemont::test
