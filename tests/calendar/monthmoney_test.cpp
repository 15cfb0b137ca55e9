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

TEST(CloseMonthBooks, MovesTheBooksAndHoldsTheBalance) {
  for (const auto& [money, held] :
       {std::pair(90000000, 90000000), {90000001, 90000000}, {-90000001, -90000000}, {-5, -5}}) {
    World world = SmallWorld().Promotion("CWA").Game("CWA");
    Promotion& player = world.Player();
    player.Money = money;
    int value = 0;
    for (Cash* book : {&player.ThisMonth.TicketIncome, &player.ThisMonth.MerchIncome,
                       &player.ThisMonth.PpvIncome, &player.ThisMonth.SponsorIncome,
                       &player.ThisMonth.WrestlerWages, &player.ThisMonth.StaffWages,
                       &player.ThisMonth.ProductionCost, &player.ThisMonth.AdvertisingCost,
                       &player.ThisMonth.MerchCost})
      *book = ++value;
    CloseMonthBooks(world);
    EXPECT_EQ(player.Money, held);
    value = 0;
    for (const Cash* book : {&player.LastMonth.TicketIncome, &player.LastMonth.MerchIncome,
                             &player.LastMonth.PpvIncome, &player.LastMonth.SponsorIncome,
                             &player.LastMonth.WrestlerWages, &player.LastMonth.StaffWages,
                             &player.LastMonth.ProductionCost, &player.LastMonth.AdvertisingCost,
                             &player.LastMonth.MerchCost})
      EXPECT_EQ(*book, ++value);
    CloseMonthBooks(world);
    EXPECT_EQ(player.LastMonth.MerchCost, 0);
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

}  // namespace
}  // namespace grapplemont::test
