#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

World Borrowed(int amount, int months, int money, int difficulty, bool isPlayers = true) {
  return SmallWorld()
      .Promotion("CWA", kRegional,
                 [&](Promotion& promotion) {
                   promotion.LoanAmount = amount;
                   promotion.LoanMonths = months;
                   promotion.Money = money;
                 })
      .Promotion("NEW")
      .Game(isPlayers ? "CWA" : "NEW", kGameStart,
            [&](GameInfo& game) { game.Difficulty = difficulty; });
}

TEST(Loans, AreRepaidToTheirLastPaymentAtEveryDifficulty) {
  // What has been paid with interest counts towards the sum, so that dear loans end early.
  constexpr struct {
    int Difficulty, Amount, Months, Repayment, Payments;
  } kCases[] = {{kEasy, 1000000, 12, 83333, 13},
                {kMedium, 250000, 6, 37333, 7},
                {kRockHard, 300000, 1, 324000, 1}};
  for (const auto& c : kCases)
    for (const bool isPlayers : {true, false}) {
      World world = Borrowed(c.Amount, c.Months, c.Repayment * c.Payments, c.Difficulty, isPlayers);
      Promotion& promotion = Named(world.Promotions(), "CWA");
      promotion.LoanMissed = 1;
      std::string expected;
      for (int payment = 1; payment <= c.Payments; ++payment) {
        EXPECT_EQ(promotion.LoanRepaid, c.Repayment * (payment - 1));
        LoanRepayments(world);
        expected += "Finance Dept.: We have made this month's loan repayment of $" +
                    std::to_string(c.Repayment) + ".\n";
      }
      EXPECT_EQ(promotion.Money, 0) << "the last needs no dollar more";
      for (const int left : {int(promotion.LoanAmount), int(promotion.LoanMonths),
                             int(promotion.LoanRepaid), int(promotion.LoanMissed)})
        EXPECT_EQ(left, 0) << c.Difficulty;
      LoanRepayments(world);
      expected += "Finance Dept.: Our loan repayment is now complete.\n";
      EXPECT_EQ(NewsOf(world), isPlayers ? expected : "");
    }
}

TEST(Loans, EndACareerOrARivalWhenThreePaymentsAreMissed) {
  struct Case {
    bool IsPlayers;
    int Option;
    const char* News;
  };
  constexpr const char* kOwn =
      "Finance Dept.: The bank have given us a verbal warning as we could not make this month's "
      "loan repayment.\n"
      "Finance Dept.: The bank have given us a written warning as we could not make this month's "
      "loan repayment.\n";
  constexpr const char* kRivals =
      "CWA News: CWA are experiencing financial problems.\n"
      "CWA News: CWA are experiencing major financial problems.\n"
      "CWA News: CWA have gone out of business!\n";
  for (const Case& c : {Case{true, 2, kOwn}, {false, 1, kRivals}, {false, 2, ""}}) {
    World world = Borrowed(1000000, 12, 103332, kMedium, c.IsPlayers);
    world.Game().MailOtherFed = c.Option;
    for (int month = 1; month <= 3; ++month) {
      EXPECT_EQ(world.Game().EndCode, 0);
      EXPECT_EQ(world.Promotions()[1].Name.View(), "CWA Wrestling");
      LoanRepayments(world);
    }
    EXPECT_EQ(world.Promotions()[1].Money, 103332) << "a dollar less than the repayment";
    EXPECT_EQ(NewsOf(world), c.News);
    EXPECT_EQ(world.Game().EndCode, c.IsPlayers ? kEndLoan : 0);
    EXPECT_EQ(world.Promotions()[1].Name.View(), c.IsPlayers ? "CWA Wrestling" : kToBeDeleted);
  }
}

/// The player's CWA is Regional with image 50: a standing of 250, and $2000000.
World Reviewed(const std::array<int, 4>& ranks, const std::array<int, 4>& money, bool owned) {
  SmallWorld small;
  small.Promotion("CWA").Promotion("NEW").Owner("Lou Hart");
  World world = small.Game("CWA");
  if (owned) world.AllStaff()[1].Employer = world.PlayerUid();
  for (std::size_t i = 0; i < 4; ++i) {
    world.Player().Rank[i] = ranks[i];
    world.Player().MoneyBefore[i] = money[i];
  }
  MonthlyReview(world);
  return world;
}

TEST(MonthlyReview, MovesTheHistoriesAndTellsTheTrends) {
  constexpr std::array<int, 4> kNone = {-1, -1, -1, -1};
  const struct {
    std::array<int, 4> Before;  // the last month ends, the latest first, less what is now
    const char *OfImage, *OfMoney;
  } kCases[] = {
      {kNone, "", ""},
      {{-10, -1000, -1000, -1000}, "", ""},
      {{0, -10, -20, -30}, "", ""},  // the same as last month: no trend
      {{-10, -10, -20, -1000}, "", ""},
      {{-10, -20, -19, -150},
       "Good work, our public image is rising nicely.",
       "Good work chief, our money is increasing nicely."},
      {{-10, -20, -30, -30},
       "Great work, this is the fourth consecutive month that our public image has risen.",
       "Great work boss, we've been making money for four months running."},
      {{-10, -20, -30, -40},
       "Superb work, our public image is improving every month.",
       "We're making money every month, this is great!"},
      {{10, 20, -1000, -1000},
       "Our public image seems to be falling...what are you going to do about it?",
       "We've lost money for three months running now...maybe you should cut some costs?"},
      {{10, 20, 30, 30},
       "This is the fourth month running that our public image has dropped. I hope you have a plan "
       "to turn things around!",
       "Our money is going down, and has been for four months in a row. Uh-oh."},
      {{1, 2, 3, 4},
       "What are you doing? Our public image is dropping at a rapid rate!",
       "We're losing money too fast, we need to find a way to cut costs ASAP!!!"},
  };
  for (const auto& c : kCases)
    for (const bool owned : {false, true}) {
      std::array<int, 4> ranks = kNone, money = kNone;
      for (std::size_t i = 0; i < 4 && c.Before != kNone; ++i) {
        if (c.Before[i] == -1000) continue;
        ranks[i] = 250 + c.Before[i];
        money[i] = 2000000 + c.Before[i];
      }
      const World world = Reviewed(ranks, money, owned);
      const std::string from = owned ? "Lou Hart: " : "The Board: ";
      EXPECT_EQ(NewsOf(world),
                *c.OfImage == 0 ? "" : from + c.OfImage + "\nFinance Dept.: " + c.OfMoney + "\n");
      EXPECT_EQ(world.Player().Rank[0], 250);
      EXPECT_EQ(world.Player().MoneyBefore[0], 2000000);
      for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(world.Player().Rank[i + 1], ranks[i]);
        EXPECT_EQ(world.Player().MoneyBefore[i + 1], money[i]);
      }
      EXPECT_EQ(world.Promotions()[2].MoneyBefore[0], 2000000) << "a rival's history moves, too";
    }
}

TEST(PoorFormMorale, TakesTheHeartOutOfALosingPromotion) {
  constexpr struct {
    std::array<int, 4> Ranks;
    bool Suffers;
  } kCases[] = {{{240, 250, -1, -1}, false},  {{240, 250, 250, 260}, false},
                {{240, 250, 260, -1}, true},  {{240, 250, 260, 270}, true},
                {{240, 250, 260, 200}, true}, {{260, 250, 260, 270}, false}};
  for (const auto& c : kCases)
    for (const bool isPlayers : {true, false}) {
      World world = SmallWorld()
                        .Promotion("CWA")
                        .Worker("Bram Okafor")
                        .Promotion("NEW")
                        .Worker("Ilya Marsh")
                        .Game(isPlayers ? "CWA" : "NEW");
      for (std::size_t i = 0; i < 4; ++i) Named(world.Promotions(), "CWA").Rank[i] = c.Ranks[i];
      PoorFormMorale(world);
      EXPECT_EQ(Named(world.Workers(), "Bram Okafor").Morale, c.Suffers ? 70 : 80) << c.Ranks[1];
      EXPECT_EQ(Named(world.Workers(), "Ilya Marsh").Morale, 80);
      EXPECT_EQ(NewsOf(world),
                c.Suffers && isPlayers
                    ? "Maeve: Our poor performance is affecting the worker's morale.\n"
                    : "");
    }
}

/// "Bram Okafor" and "Pat Bell" at the player's CWA or at the rival NEW (both have $2000000), with
/// this many months left.
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

TEST(Contracts, EndAtARivals) {
  constexpr struct {
    int Option;
    bool Listed, Small, WorkerTold, StaffTold;
  } kCases[] = {{0, false, true, true, true},   {1, false, false, true, true},
                {1, false, true, false, false}, {2, false, false, false, false},
                {2, true, true, true, false},   {1, true, true, true, false}};
  for (const auto& c : kCases) {
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
