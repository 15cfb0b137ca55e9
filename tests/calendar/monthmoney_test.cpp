#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "support/newsof.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

World Borrowed(int amount, int months, int money, int difficulty, bool isPlayers = true) {
  World world = SmallWorld()
                    .Promotion("CWA", kRegional,
                               [&](Promotion& promotion) {
                                 promotion.LoanAmount = amount;
                                 promotion.LoanMonths = months;
                                 promotion.Money = money;
                               })
                    .Promotion("NEW")
                    .Game(isPlayers ? "CWA" : "NEW", kGameStart,
                          [&](GameInfo& game) { game.Difficulty = difficulty; });
  return world;
}

TEST(Loans, AreRepaidToTheirLastPaymentAtEveryDifficulty) {
  struct Case {
    int Difficulty, Amount, Months, Repayment, Payments;
  };
  // What has been paid with interest counts towards the sum, so that dear loans end early.
  constexpr Case kCases[] = {{kEasy, 1000000, 12, 83333, 13},   {kMedium, 1000000, 12, 103333, 10},
                             {kHard, 1000000, 12, 133333, 8},   {kRockHard, 1000000, 12, 163333, 7},
                             {kEasy, 1250000, 10, 120000, 11},  {kMedium, 250000, 6, 37333, 7},
                             {kRockHard, 300000, 1, 324000, 1}, {kRockHard, 100000, 12, 16333, 7}};
  for (const Case& c : kCases)
    for (const bool isPlayers : {true, false}) {
      World world = Borrowed(c.Amount, c.Months, 5000000, c.Difficulty, isPlayers);
      Promotion& promotion = Named(world.Promotions(), "CWA");
      std::string expected;
      for (int payment = 1; payment <= c.Payments; ++payment) {
        EXPECT_EQ(promotion.LoanRepaid, c.Repayment * (payment - 1));
        LoanRepayments(world);
        EXPECT_EQ(promotion.Money, 5000000 - c.Repayment * payment);
        expected += "Finance Dept.: We have made this month's loan repayment of $" +
                    std::to_string(c.Repayment) + ".\n";
      }
      EXPECT_EQ(promotion.LoanAmount, 0) << c.Difficulty << " " << c.Amount;
      EXPECT_EQ(promotion.LoanMonths, 0);
      EXPECT_EQ(promotion.LoanRepaid, 0);
      EXPECT_EQ(promotion.LoanMissed, 0);
      expected += "Finance Dept.: Our loan repayment is now complete.\n";
      EXPECT_EQ(NewsOf(world), isPlayers ? expected : "");
      LoanRepayments(world);
      EXPECT_EQ(promotion.Money, 5000000 - c.Repayment * c.Payments) << "and that was all";
    }
}

TEST(Loans, NeedTheWholeRepaymentInHand) {
  for (const auto& [money, paid] : {std::pair(103333, true), {103332, false}, {-5, false}}) {
    World world = Borrowed(1000000, 12, money, kMedium);
    LoanRepayments(world);
    EXPECT_EQ(world.Player().Money, paid ? 0 : money);
    EXPECT_EQ(world.Player().LoanMissed, paid ? 0 : 1);
  }
}

TEST(Loans, EndACareerWhenThreePaymentsAreMissed) {
  World world = Borrowed(1000000, 12, 0, kMedium);
  LoanRepayments(world);
  LoanRepayments(world);
  EXPECT_EQ(world.Game().EndCode, 0);
  LoanRepayments(world);
  EXPECT_EQ(world.Game().EndCode, 1);
  EXPECT_EQ(NewsOf(world),
            "Finance Dept.: The bank have given us a verbal warning as we could not make this "
            "month's loan repayment.\n"
            "Finance Dept.: The bank have given us a written warning as we could not make this "
            "month's loan repayment.\n");
  EXPECT_EQ(world.Player().Name.View(), "CWA Wrestling");
}

TEST(Loans, EndARivalWhenThreePaymentsAreMissed) {
  for (const bool told : {true, false}) {
    World world = Borrowed(1000000, 12, 0, kMedium, false);
    world.Game().MailOtherFed = told ? 1 : 2;
    for (int month = 0; month < 3; ++month) LoanRepayments(world);
    EXPECT_EQ(NewsOf(world), told ? "CWA News: CWA are experiencing financial problems.\n"
                                    "CWA News: CWA are experiencing major financial problems.\n"
                                    "CWA News: CWA have gone out of business!\n"
                                  : "");
    EXPECT_EQ(world.Promotions()[1].Name.View(), kToBeDeleted);
    EXPECT_EQ(world.Game().EndCode, 0);
  }
}

TEST(Merchandise, SellsByTheTableTheCapAndTheEconomy) {
  struct Case {
    int Size, Image, Level, Economy, Dollars;
  };
  constexpr Case kCases[] = {{kGlobal, 80, 100, 60, 2400000},  // 4000000 under a cap of 2400000
                             {kCult, 19, 60, 60, 1200000},      {kCult, 20, 60, 60, 1400000},
                             {kCult, 39, 60, 60, 1400000},      {kCult, 40, 60, 60, 1440000},
                             {kRegional, 59, 99, 60, 600000},   {kRegional, 60, 99, 60, 800000},
                             {kRegional, 79, 99, 60, 800000},   {kRegional, 80, 99, 60, 1000000},
                             {kRegional, 100, 99, 60, 1000000}, {kRegional, 50, 10, 60, 240000},
                             {kSmall, 0, 50, 60, 10000},        {kBackyard, 99, 50, 60, 0},
                             {kRegional, 50, 99, 90, 720000},   {kRegional, 50, 99, 89, 660000},
                             {kRegional, 50, 99, 81, 660000},   {kRegional, 50, 99, 80, 600000},
                             {kRegional, 50, 99, 20, 600000},   {kRegional, 50, 99, 19, 510000},
                             {kRegional, 50, 99, 10, 510000},   {kRegional, 50, 99, 9, 450000},
                             {kRegional, 50, 99, -4, 450000}};
  for (const Case& c : kCases) {
    World world = SmallWorld().Promotion("CWA", c.Size).Promotion("NEW", c.Size).Game("CWA");
    world.Game().Economy = c.Economy;
    for (Promotion& promotion : world.Promotions()) {
      promotion.Image = c.Image;
      promotion.Merchandising = c.Level;
      promotion.Money = 1000;
    }
    MerchandiseIncome(world);
    for (const Promotion& promotion : world.Promotions()) {
      EXPECT_EQ(promotion.Money, 1000 + c.Dollars) << c.Size << " " << c.Image << " " << c.Economy;
      EXPECT_EQ(promotion.ThisMonth.MerchIncome, c.Dollars);
    }
    EXPECT_EQ(NewsOf(world), "Finance Dept.: We made $" + std::to_string(c.Dollars) +
                                 " off merchandise this month.\n");
  }
  World none = SmallWorld().Promotion("CWA").Game("CWA");
  MerchandiseIncome(none);
  EXPECT_EQ(NewsOf(none), "") << "without merchandise there is nothing to tell";
}

TEST(MonthlyCosts, AreChargedAndBooked) {
  World world = SmallWorld().Promotion("CWA").Promotion("NEW").Game("CWA");
  for (Promotion& promotion : world.Promotions()) {
    promotion.Money = 3000000;
    promotion.Advertising = 40;
    promotion.Merchandising = 30;
    promotion.Production = 41;
  }
  MonthlyCosts(world);
  for (const Promotion& promotion : world.Promotions()) {
    EXPECT_EQ(promotion.ThisMonth.AdvertisingCost, 400000);
    EXPECT_EQ(promotion.ThisMonth.MerchCost, 600000);
    EXPECT_EQ(promotion.ThisMonth.ProductionCost, 410000);
    EXPECT_EQ(promotion.Money, 3000000 - 1410000);
  }
  EXPECT_EQ(NewsOf(world), "");
  // Production at the edges of its bands, thousands of dollars.
  constexpr int kProduction[][2] = {{0, 0},    {1, 1},     {20, 20},   {21, 105},
                                    {40, 200}, {41, 410},  {60, 600},  {61, 732},
                                    {80, 960}, {81, 1782}, {100, 2200}};
  for (const auto& [level, thousands] : kProduction) {
    World costs = SmallWorld().Promotion("CWA").Game("CWA");
    costs.Player().Production = level;
    MonthlyCosts(costs);
    EXPECT_EQ(costs.Player().ThisMonth.ProductionCost, thousands * 1000) << level;
  }
}

TEST(CloseMonthBooks, LeavesAnEntryOfEveryPromotionThatLives) {
  constexpr Day kMarch{std::chrono::year{2026} / 3 / 1}, kApril{std::chrono::year{2026} / 4 / 1};
  World world = SmallWorld()
                    .Promotion("CWA", kCult)
                    .Promotion("NEW", kSmall)
                    .Promotion("OLD", kSmall)
                    .Game("CWA", kApril);
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
  world.Player().Image = 64;
  world.Player().Money = 95000000;
  world.Player().ThisMonth = {};
  int book = 1;
  MonthBooks& books = world.Player().ThisMonth;
  for (Cash* entry : {&books.TicketIncome, &books.MerchIncome, &books.PpvIncome,
                      &books.SponsorIncome, &books.WrestlerWages, &books.StaffWages,
                      &books.ProductionCost, &books.AdvertisingCost, &books.MerchCost}) {
    *entry = book;
    book *= 2;
  }
  CloseMonthBooks(world);
  ASSERT_EQ(world.History().Count(), 6 + 2);
  const HistoryEntry& own = world.History()[7];
  EXPECT_EQ(Day(own.On), kApril);
  EXPECT_EQ(own.Kind, kPastMonth);
  EXPECT_EQ(own.Promotion, player);
  EXPECT_EQ(own.Name, world.Player().Name);
  EXPECT_EQ(own.Attendance, 200 + 3000) << "of March, and the player's shows alone";
  EXPECT_EQ(own.Income, 1 + 2 + 4 + 8);
  EXPECT_EQ(own.Costs, 16 + 32 + 64 + 128 + 256);
  EXPECT_EQ(own.Money, 90000000) << "as the close held it";
  EXPECT_EQ(own.Size, kCult);
  EXPECT_EQ(own.Image, 64);
  EXPECT_EQ(world.History()[8].Promotion, rival);
  EXPECT_EQ(world.History()[8].Income, 0);
  EXPECT_EQ(world.History()[8].Attendance, 0);
}

/// The player's CWA is Regional with image 50: a standing of 250, and $2000000.
World Reviewed(const std::array<int, 4>& ranks, const std::array<int, 4>& money, bool owned) {
  SmallWorld small;
  small.Promotion("CWA").Promotion("NEW").Owner("Lou Hart");
  World world = small.Game("CWA");
  if (owned) {
    world.AllStaff()[1].Employer = world.PlayerUid();
  }
  for (std::size_t i = 0; i < 4; ++i) {
    world.Player().Rank[i] = ranks[i];
    world.Player().MoneyBefore[i] = money[i];
  }
  MonthlyReview(world);
  return world;
}

constexpr std::array<int, 4> kNone = {-1, -1, -1, -1};

TEST(MonthlyReview, MovesTheHistoriesOfEverybody) {
  World world = Reviewed({240, 230, 220, 210}, {40, 30, 20, 10}, false);
  constexpr int kRanks[] = {250, 240, 230, 220, 210}, kMoney[] = {2000000, 40, 30, 20, 10};
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(world.Player().Rank[i], kRanks[i]);
    EXPECT_EQ(world.Player().MoneyBefore[i], kMoney[i]);
  }
  EXPECT_EQ(Named(world.Promotions(), "NEW").Rank[0], 250);
  EXPECT_EQ(Named(world.Promotions(), "NEW").Rank[1], 250);
  EXPECT_EQ(Named(world.Promotions(), "NEW").MoneyBefore[0], 2000000);
}

struct TrendCase {
  std::array<int, 4> Before;  // the last month ends, the latest first
  const char* Says;
};

TEST(MonthlyReview, TellsTheTrendOfTheImage) {
  const TrendCase kCases[] = {
      {kNone, ""},
      {{250, -1, -1, -1}, ""},
      {{240, -1, -1, -1}, ""},
      {{250, 240, 230, 220}, ""},  // the same as last month: no trend
      {{240, 241, -1, -1}, ""},
      {{240, 240, 230, -1}, ""},
      {{240, 230, -1, -1}, "Good work, our public image is rising nicely."},
      {{240, 230, 230, 220}, "Good work, our public image is rising nicely."},
      {{240, 230, 231, 100}, "Good work, our public image is rising nicely."},
      {{240, 230, 220, -1},
       "Great work, this is the fourth consecutive month that our public image has risen."},
      {{240, 230, 220, 220},
       "Great work, this is the fourth consecutive month that our public image has risen."},
      {{240, 230, 220, 210}, "Superb work, our public image is improving every month."},
      {{260, 270, -1, -1},
       "Our public image seems to be falling...what are you going to do about it?"},
      {{260, 270, 280, -1},
       "This is the fourth month running that our public image has dropped. I hope you have a plan "
       "to turn things around!"},
      {{251, 252, 253, 254}, "What are you doing? Our public image is dropping at a rapid rate!"},
  };
  for (const TrendCase& c : kCases)
    for (const bool owned : {false, true}) {
      const std::string says = c.Says;
      const std::string expected =
          says.empty() ? "" : (owned ? "Lou Hart: " : "The Board: ") + says + "\n";
      EXPECT_EQ(NewsOf(Reviewed(c.Before, kNone, owned)), expected) << c.Before[0];
    }
}

TEST(MonthlyReview, TellsTheTrendOfTheMoney) {
  constexpr int kNow = 2000000;
  const TrendCase kCases[] = {
      {{kNow - 1, -1, -1, -1}, ""},
      {{kNow, kNow - 1, kNow - 2, kNow - 3}, ""},
      {{kNow - 1, kNow - 2, -1, -1}, "Good work chief, our money is increasing nicely."},
      {{kNow - 1, kNow - 2, kNow - 3, -1},
       "Great work boss, we've been making money for four months running."},
      {{kNow - 1, kNow - 2, kNow - 3, kNow - 4}, "We're making money every month, this is great!"},
      {{kNow + 1, kNow + 2, kNow + 1, -1},
       "We've lost money for three months running now...maybe you should cut some costs?"},
      {{kNow + 1, kNow + 2, kNow + 3, kNow + 3},
       "Our money is going down, and has been for four months in a row. Uh-oh."},
      {{kNow + 1, kNow + 2, kNow + 3, kNow + 4},
       "We're losing money too fast, we need to find a way to cut costs ASAP!!!"},
  };
  for (const TrendCase& c : kCases) {
    const std::string says = c.Says;
    EXPECT_EQ(NewsOf(Reviewed(kNone, c.Before, true)),
              says.empty() ? "" : "Finance Dept.: " + says + "\n")
        << c.Before[0] - kNow;
  }
}

TEST(PoorFormMorale, TakesTheHeartOutOfALosingPromotion) {
  struct Case {
    std::array<int, 4> Ranks;
    bool Suffers;
  };
  constexpr Case kCases[] = {{{250, -1, -1, -1}, false},    {{240, 250, -1, -1}, false},
                             {{240, 250, 250, 260}, false}, {{240, 250, 260, -1}, true},
                             {{240, 250, 260, 270}, true},  {{250, 250, 260, 270}, false},
                             {{240, 250, 260, 200}, true},  {{260, 250, 260, 270}, false}};
  for (const Case& c : kCases)
    for (const bool isPlayers : {true, false}) {
      World world = SmallWorld()
                        .Promotion("CWA")
                        .Worker("Bram Okafor")
                        .Worker("Already Low", [](Worker& worker) { worker.Morale = 4; })
                        .Promotion("NEW")
                        .Worker("Ilya Marsh")
                        .Game(isPlayers ? "CWA" : "NEW");
      for (std::size_t i = 0; i < 4; ++i) Named(world.Promotions(), "CWA").Rank[i] = c.Ranks[i];
      PoorFormMorale(world);
      EXPECT_EQ(Named(world.Workers(), "Bram Okafor").Morale, c.Suffers ? 70 : 80) << c.Ranks[1];
      EXPECT_EQ(Named(world.Workers(), "Already Low").Morale, c.Suffers ? 0 : 4);
      EXPECT_EQ(Named(world.Workers(), "Ilya Marsh").Morale, 80);
      EXPECT_EQ(NewsOf(world),
                c.Suffers && isPlayers
                    ? "Maeve: Our poor performance is affecting the worker's morale.\n"
                    : "");
    }
}

}  // namespace
}  // namespace grapplemont::test
