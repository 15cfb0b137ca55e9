#include <gtest/gtest.h>

#include "business/finance.h"
#include "calendar/advanceday.h"
#include "session/newgame.h"
#include "support/defaultworld.h"
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
  struct Case {
    int Difficulty, Amount, Months, Repayment, Payments;
  };
  // What has been paid with interest counts towards the sum, so that dear loans end early.
  constexpr Case kCases[] = {{kEasy, 1000000, 12, 83333, 13},
                             {kMedium, 250000, 6, 37333, 7},
                             {kRockHard, 300000, 1, 324000, 1}};
  for (const Case& c : kCases)
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

TEST(MonthEnd, SellsChargesAndBooks) {
  World world = SmallWorld().Promotion("CWA").Promotion("NEW").Game("CWA");
  MerchandiseIncome(world);
  EXPECT_EQ(NewsOf(world), "") << "without merchandise there is nothing to tell";
  for (Promotion& promotion : world.Promotions()) {
    promotion.Money = 3000000;
    promotion.Advertising = 40;
    promotion.Merchandising = 30;
    promotion.Production = 41;
  }
  MerchandiseIncome(world);
  MonthlyCosts(world);
  for (const Promotion& promotion : world.Promotions()) {
    EXPECT_EQ(promotion.ThisMonth.MerchIncome, 600000);
    EXPECT_EQ(promotion.ThisMonth.AdvertisingCost, 400000);
    EXPECT_EQ(promotion.ThisMonth.MerchCost, 600000);
    EXPECT_EQ(promotion.ThisMonth.ProductionCost, 410000);
    EXPECT_EQ(promotion.Money, 3000000 + 600000 - 1410000);
  }
  EXPECT_EQ(NewsOf(world), "Finance Dept.: We made $600000 off merchandise this month.\n");
}

TEST(CloseMonthBooks, LeavesAnEntryOfEveryPromotionThatLives) {
  constexpr Day kMarch{std::chrono::year{2026} / 3 / 1}, kApril{std::chrono::year{2026} / 4 / 1};
  World world =
      SmallWorld().Promotion("CWA", kCult).Promotion("NEW").Promotion("OLD").Game("CWA", kApril);
  Named(world.Promotions(), "OLD").Name = kToBeDeleted;
  struct Crowd {
    int Days, Kind, Promotion, People;  // days from the first of March
  };
  const int player = world.PlayerUid(), rival = Named(world.Promotions(), "NEW").Uid;
  for (const Crowd& crowd : {Crowd{-1, kPastTv, player, 1000},
                             {0, kPastTv, player, 200},
                             {7, kPastMonth, player, 5000},
                             {7, kPastTv, rival, 40},
                             {28, kPastEvent, player, 3000},
                             {31, kPastTv, player, 9000}}) {
    HistoryEntry entry{};
    entry.On = kMarch + std::chrono::days{crowd.Days};
    entry.Kind = crowd.Kind;
    entry.Promotion = crowd.Promotion;
    entry.Attendance = crowd.People;
    entry.Size = kCult;
    world.History().Append(entry);
  }
  world.Player().Money = 95000000;
  world.Player().ThisMonth.MerchCost = 7;
  CloseMonthBooks(world);
  ASSERT_EQ(world.History().Count(), 6 + 2);
  const HistoryEntry& own = world.History()[7];
  EXPECT_EQ(own.Promotion, player);
  EXPECT_EQ(own.Attendance, 200 + 3000) << "of March, and the player's shows alone";
  EXPECT_EQ(own.Costs, 7);
  EXPECT_EQ(own.Money, 90000000) << "as the close held it";
  EXPECT_EQ(world.Player().ThisMonth.MerchCost, 0);
  EXPECT_EQ(world.History()[8].Promotion, rival);
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
  struct Case {
    std::array<int, 4> Before;  // the last month ends, the latest first, less what is now
    const char *OfImage, *OfMoney;
  };
  const Case kCases[] = {
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
  for (const Case& c : kCases)
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
  struct Case {
    std::array<int, 4> Ranks;
    bool Suffers;
  };
  constexpr Case kCases[] = {{{240, 250, -1, -1}, false},  {{240, 250, 250, 260}, false},
                             {{240, 250, 260, -1}, true},  {{240, 250, 260, 270}, true},
                             {{240, 250, 260, 200}, true}, {{260, 250, 260, 270}, false}};
  for (const Case& c : kCases)
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

// Whatever the player's money does in a year of shows, wages and costs stands in a book.
TEST(Money, MovesThroughTheBooksAlone) {
  World world = CopyOf(DefaultWorld());
  world.SetChance(std::make_unique<SeededDraws>(7));
  NewGameChoice choice;
  choice.PlayerName = "Pat Lee";
  choice.PromotionUid = 8;
  choice.Difficulty = kMedium;
  choice.Start = kGameStart;
  choice.SaveName = "First";
  NewGame(world, choice);
  while (world.Today() < Day{std::chrono::year{2026} / 9 / 2}) {
    const Promotion before = world.Player();
    world.Session.ShowRating = 55;
    long long books = 0, moved = 0;
    AdvanceDay(world, false, [&](std::string_view step) {
      if (step != "CloseMonthBooks") return;
      moved = world.Player().Money - before.Money;
      books = Balance(world.Player().ThisMonth) - Balance(before.ThisMonth);
    });
    world.Game().EndCode = 0;  // the books go on, whatever the board thinks
    if (!IsFirstOfMonth(world.Today())) {
      moved = world.Player().Money - before.Money;
      books = Balance(world.Player().ThisMonth) - Balance(before.ThisMonth);
    }
    ASSERT_EQ(moved, books) << IsoDate(world.Today());
  }
}

}  // namespace
}  // namespace grapplemont::test
