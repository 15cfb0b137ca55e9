#include <gtest/gtest.h>

#include "business/finance.h"
#include "business/past.h"
#include "business/sponsors.h"
#include "calendar/advanceday.h"
#include "support/gameonworld.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

TEST(MerchBase, FollowsSizeAndImage) {
  struct Band {
    int Low, High;
    std::vector<int> BySize;
  };
  const Band kBands[] = {
      {80, 100, {4'000'000, 3'000'000, 2'000'000, 1'000'000, 100'000, 0}},
      {60, 79, {3'800'000, 2'800'000, 1'800'000, 800'000, 75'000, 0}},
      {40, 59, {3'600'000, 2'600'000, 1'600'000, 600'000, 50'000, 0}},
      {20, 39, {3'400'000, 2'400'000, 1'400'000, 400'000, 25'000, 0}},
      {0, 19, {3'200'000, 2'200'000, 1'200'000, 200'000, 10'000, 0}},
  };
  for (const Band& band : kBands)
    for (int size = kGlobal; size <= kBackyard; ++size)
      for (const int image : {band.Low, band.High})
        EXPECT_EQ(MerchBase(size, image), band.BySize[static_cast<std::size_t>(size - 1)])
            << size << " at " << image;
}

TEST(MonthlyCosts, GoByTheLevel) {
  EXPECT_EQ(AdvertisingCost(0), 0);
  EXPECT_EQ(AdvertisingCost(95), 950'000);
  EXPECT_EQ(MerchandisingCost(0), 0);
  EXPECT_EQ(MerchandisingCost(34), 680'000);
  constexpr int kProduction[][2] = {{0, 0},        {1, 1'000},      {20, 20'000},    {21, 105'000},
                                    {40, 200'000}, {41, 410'000},   {60, 600'000},   {61, 732'000},
                                    {80, 960'000}, {81, 1'782'000}, {100, 2'200'000}};
  for (const auto& [level, cost] : kProduction) EXPECT_EQ(ProductionCost(level), cost) << level;
}

TEST(TargetAdvertising, FollowsTheQuartersOfTheImage) {
  constexpr int kHighToLow[][4] = {{100, 95, 90, 85}, {80, 75, 70, 65}, {60, 55, 50, 45},
                                   {40, 35, 30, 25},  {20, 15, 10, 5},  {0, 0, 0, 0}};
  constexpr int kEdges[][2] = {{75, 100}, {50, 74}, {25, 49}, {0, 24}};
  for (int size = kGlobal; size <= kBackyard; ++size)
    for (int quarter = 0; quarter < 4; ++quarter)
      for (const int image : kEdges[quarter])
        EXPECT_EQ(TargetAdvertising(size, image), kHighToLow[size - 1][quarter])
            << size << " at " << image;
}

TEST(Spending, GoesBySizeAlone) {
  constexpr int kMerchandisingProductionPrice[][3] = {{100, 80, 60}, {80, 60, 40}, {60, 40, 30},
                                                      {40, 20, 20},  {20, 10, 10}, {0, 5, 5}};
  for (int size = kGlobal; size <= kBackyard; ++size) {
    const auto& [merchandising, production, price] = kMerchandisingProductionPrice[size - 1];
    EXPECT_EQ(RivalSpendingFor(size).Merchandising, merchandising);
    EXPECT_EQ(RivalSpendingFor(size).Production, production);
    EXPECT_EQ(FairTicketPrice(size), price);
  }
}

TEST(Sponsors, RefuseRiskAndThoseWhoAreTooSmall) {
  Sponsor sponsor;
  sponsor.Morality = 70;
  EXPECT_TRUE(BearsRisk(sponsor, 30));
  EXPECT_FALSE(BearsRisk(sponsor, 31));
  constexpr int kPlayer[][2] = {{1001, 801}, {751, 651}, {576, 476},
                                {401, 301},  {151, 101}, {51, 11}};
  constexpr int kRival[][2] = {{1001, 1001}, {921, 861}, {821, 701},
                               {601, 531},   {451, 321}, {251, 101}};
  for (int size = kGlobal; size <= kBackyard; ++size)
    for (const auto& [image, column] : {std::pair{100, 0}, {51, 0}, {50, 1}, {0, 1}}) {
      EXPECT_EQ(SponsorPayLimit(size, image), kPlayer[size - 1][column]) << size << " " << image;
      EXPECT_EQ(RivalSponsorPayLimit(size, image), kRival[size - 1][column])
          << size << " " << image;
    }
  sponsor.Pay = 99;
  EXPECT_EQ(SponsorPayForTv(sponsor, true), 24);
  EXPECT_EQ(SponsorPayForTv(sponsor, false), 9);
}

World Begun(int money, int difficulty, const Change<Promotion>& change = {}) {
  return SmallWorld()
      .Promotion("CWA", kRegional,
                 [&](Promotion& promotion) {
                   promotion.Money = money;
                   if (change) change(promotion);
                 })
      .Game("CWA", kGameStart, [&](GameInfo& game) { game.Difficulty = difficulty; });
}

struct Case {
  int Steps, Months;
  const char* Term;
  const char* Cost[4];  // by difficulty
};
constexpr Case kCases[] = {
    {1, 12, "1 Year", {"$8333.33", "$10333.33", "$13333.33", "$16333.33"}},
    {10, 12, "1 Year", {"$83333.33", "$103333.33", "$133333.33", "$163333.33"}},
    {6, 12, "1 Year", {"$50000", "$62000", "$80000", "$98000"}},
    {11, 24, "2 Years", {"$45833.33", "$67833.33", "$100833.33", "$133833.33"}},
    {25, 24, "2 Years", {"$104166.67", "$154166.67", "$229166.67", "$304166.67"}},
    {26, 36, "3 Years", {"$72222.22", "$124222.22", "$202222.22", "$280222.22"}},
    {100, 36, "3 Years", {"$277777.78", "$477777.78", "$777777.78", "$1077777.78"}},
};

TEST(frmLoan, QuotesEveryTermAtEveryDifficulty) {
  for (int difficulty = kEasy; difficulty <= kRockHard; ++difficulty) {
    GameOnWorld play(Begun(5'000'000, difficulty));
    play.Desk.Open("frmLoan");
    EXPECT_EQ(play.Desk.Text("txtstatus"), "No Outstanding Loans");
    EXPECT_EQ(play.Desk.Text("cmddoit"), "Apply For Loan");
    for (const Case& c : kCases) {
      play.Desk.Slide("hsamount", c.Steps);
      EXPECT_EQ(play.Desk.Text("lblamount"), "$" + std::to_string(c.Steps * 100) + "000");
      EXPECT_EQ(play.Desk.Text("lblterm"), c.Term);
      EXPECT_EQ(play.Desk.Text("txtcost"), c.Cost[difficulty - 1]) << c.Steps;
    }
  }
}

TEST(frmLoan, ChangesItsTermAtTheEdges) {
  for (const auto& [steps, months] :
       {std::pair(1, 12), {10, 12}, {11, 24}, {25, 24}, {26, 36}, {100, 36}})
    EXPECT_EQ(LoanTerm(steps), months) << steps;
}

TEST(frmLoan, IsGrantedToWhoeverHasAQuarterOfIt) {
  const auto apply = [](int money, int steps) {
    GameOnWorld play(Begun(money, kHard, [](Promotion& promotion) {
      promotion.LoanRepaid = 7;  // left behind by a loan long gone
      promotion.LoanMissed = 2;
    }));
    play.Desk.Open("frmLoan");
    play.Desk.Slide("hsamount", steps);
    play.Desk.ExpectAsk(kAnyText, "Are you sure?", true);
    if (money >= steps * 25'000)
      play.Desk.ExpectSay("Accepted!", "The bank have accepted your loan application!");
    else
      play.Desk.ExpectSay("Rejected!", "The bank have rejected your loan application!");
    play.Desk.Click("cmddoit");
    play.Reopen();
    return CopyOf(play.World());
  };
  for (const auto& [money, steps] : {std::pair(300'000, 12), {25'000, 1}, {2'500'000, 100}}) {
    const World world = apply(money, steps);
    const Promotion& player = world.Player();
    EXPECT_EQ(player.Money, money + steps * 100'000);
    EXPECT_EQ(player.LoanAmount, steps * 100'000);
    EXPECT_EQ(player.LoanMonths, LoanTerm(steps));
    EXPECT_EQ(player.LoanRepaid, 0);
    EXPECT_EQ(player.LoanMissed, 0);
  }
  for (const auto& [money, steps] :
       {std::pair(299'999, 12), {24'999, 1}, {0, 1}, {-5, 1}, {2'499'999, 100}}) {
    const World world = apply(money, steps);
    EXPECT_EQ(world.Player().Money, money);
    EXPECT_EQ(world.Player().LoanAmount, 0);
    EXPECT_EQ(world.Player().LoanMonths, 0);
  }
}

Change<Promotion> Owing(int amount, int repaid) {
  return [=](Promotion& promotion) {
    promotion.LoanAmount = amount;
    promotion.LoanMonths = 24;
    promotion.LoanRepaid = repaid;
    promotion.LoanMissed = 1;
  };
}

TEST(frmLoan, IsPaidOffWithAShareOfTheRest) {
  constexpr int kCost[] = {1'166'667, 1'190'000, 1'225'000, 1'260'000};  // of 1166667
  for (int difficulty = kEasy; difficulty <= kRockHard; ++difficulty)
    for (const int missing : {0, 1}) {
      const int money = kCost[difficulty - 1] - missing;
      GameOnWorld play(Begun(money, difficulty, Owing(2'000'000, 833'333)));
      play.Desk.Open("frmLoan");
      EXPECT_EQ(play.Desk.Value("hsamount"), 20);
      EXPECT_EQ(play.Desk.Text("lblterm"), "2 Years");
      play.Desk.ExpectAsk(kAnyText, "Are you sure?", false);
      play.Desk.Click("cmddoit");
      play.Desk.ExpectAsk(kAnyText, "Are you sure?", true);
      if (missing)
        play.Desk.ExpectSay("Error!", "You cannot afford to repay it!");
      else
        play.Desk.ExpectSay("Done!", "The loan has been repayed");
      play.Desk.Click("cmddoit");
      EXPECT_EQ(play.Desk.Text("cmddoit"), missing ? "Repay Entire Loan" : "Apply For Loan");
      play.Reopen();
      const Promotion& player = play.World().Player();
      EXPECT_EQ(player.Money, missing ? money : 0) << difficulty;
      EXPECT_EQ(player.LoanAmount, missing ? 2'000'000 : 0);
      EXPECT_EQ(player.LoanMonths, missing ? 24 : 0);
      EXPECT_EQ(player.LoanRepaid, missing ? 833'333 : 0);
      EXPECT_EQ(player.LoanMissed, missing ? 1 : 0);
    }
}

struct Band {
  int Low, High;
  int Cost[3];
};
constexpr int kBy[] = {1, 5, 10};
constexpr Band kBands[] = {
    {0, 10, {140, 525, 1'000}},           {11, 20, {1'000, 4'000, 7'500}},
    {21, 30, {1'500, 7'000, 12'500}},     {31, 40, {2'800, 13'000, 25'000}},
    {41, 50, {8'000, 40'000, 75'000}},    {51, 60, {15'000, 60'000, 100'000}},
    {61, 70, {28'000, 130'000, 250'000}}, {71, 80, {70'000, 280'000, 500'000}},
    {81, 90, {90'000, 400'000, 750'000}}, {91, 99, {110'000, 520'000, 1'000'000}},
};

World At(int production, int money) {
  return SmallWorld()
      .Promotion("CWA", kCult,
                 [&](Promotion& promotion) {
                   promotion.Production = production;
                   promotion.Money = money;
                 })
      .Game("CWA");
}

TEST(Production, IsRaisedForThePriceOfItsBand) {
  for (const Band& band : kBands)
    for (const int level : {band.Low, band.High})
      for (int number = 1; number <= 3; ++number) {
        World world = At(level, 2'000'000);
        const int cost = band.Cost[number - 1];
        EXPECT_EQ(ProductionRaiseCost(level, number), cost) << level << " raise " << number;
        EXPECT_TRUE(RaiseProduction(world.Player(), number));
        EXPECT_EQ(world.Player().Money, 2'000'000 - cost);
        EXPECT_EQ(world.Player().Production, std::min(level + kBy[number - 1], 100)) << level;
      }
  EXPECT_EQ(ProductionRaiseCost(100, 2), 520'000);
}

TEST(Production, NeedsTheWholePriceInHand) {
  for (const auto& [money, raised] : {std::pair(12'500, true), {12'499, false}, {-1, false}}) {
    World world = At(25, money);
    EXPECT_EQ(RaiseProduction(world.Player(), 3), raised);
    EXPECT_EQ(world.Player().Money, raised ? 0 : money);
    EXPECT_EQ(world.Player().Production, raised ? 35 : 25);
  }
}

TEST(frmFedProd, RaisesStepByStepAndAsksBefore) {
  GameOnWorld play(At(9, 6'665));
  play.Desk.Open("frmFedProd");
  EXPECT_EQ(play.Desk.Text("cmdraise(1)"), "Raise by 1% : Cost $140");
  EXPECT_EQ(play.Desk.Text("cmdraise(2)"), "Raise by 5% : Cost $525");
  EXPECT_EQ(play.Desk.Text("cmdraise(3)"), "Raise by 10% : Cost $1000");
  play.Desk.ExpectAsk("Finance Report", "Pay $525 for a 5% increase?", false);
  play.Desk.Click("cmdraise(2)");
  EXPECT_EQ(play.World().Player().Production, 9);

  play.Desk.ExpectAsk("Finance Report", "Pay $140 for a 1% increase?", true);
  play.Desk.Click("cmdraise(1)");
  EXPECT_EQ(play.Desk.Text("lblproduction"), "10%");
  play.Desk.ExpectAsk("Finance Report", "Pay $525 for a 5% increase?", true);
  play.Desk.Click("cmdraise(2)");
  EXPECT_EQ(play.Desk.Text("cmdraise(2)"), "Raise by 5% : Cost $4000") << "the next band";
  EXPECT_EQ(play.Desk.Text("lblmoney"), "Current finance: $6000");
  EXPECT_EQ(play.Desk.Text("lblmonthly"), "$15,000 p.m");

  play.Desk.ExpectAsk("Finance Report", "Pay $7500 for a 10% increase?", true);
  play.Desk.ExpectSay("Finance Report", "You cannot afford this!");
  play.Desk.Click("cmdraise(3)");
  play.Reopen();
  EXPECT_EQ(play.World().Player().Money, 6'000);
  EXPECT_EQ(play.World().Player().Production, 15);
}

HistoryEntry Past(int kind, int promotion, std::string_view name, int attendance = 0) {
  HistoryEntry entry{};
  entry.On = kGameStart;
  entry.Kind = kind;
  entry.Promotion = promotion;
  entry.Name = name;
  entry.Attendance = attendance;
  entry.Size = kCult;
  return entry;
}

std::vector<int> Crowds(const std::vector<const HistoryEntry*>& entries) {
  std::vector<int> crowds;
  for (const HistoryEntry* entry : entries) crowds.push_back(entry->Attendance);
  return crowds;
}

TEST(Past, IsReadByPromotionKindAndName) {
  World world = SmallWorld().Promotion("CWA").Game("CWA");
  for (const HistoryEntry& entry :
       {Past(kPastMonth, 1, "CWA Wrestling", 1), Past(kPastTv, 1, "Friday Fire", 2),
        Past(kPastTv, 1, "Sunday Slam", 3), Past(kPastEvent, 1, "Friday Fire", 4),
        Past(kPastTv, 2, "Friday Fire", 5), Past(kPastMonth, 2, "NEW Wrestling", 6),
        Past(kPastCamp, 1, "The Shed", 7), Past(kPastTv, 1, "Friday Fire", 8),
        Past(kPastMonth, 1, "CWA Wrestling", 9)})
    Remember(world, entry);
  EXPECT_EQ(Crowds(MonthsOf(world, 1)), (std::vector{1, 9}));
  EXPECT_EQ(Crowds(PastShowsOf(world, 1, "Friday Fire")), (std::vector{2, 8}));
  EXPECT_EQ(Crowds(PastShowsOf(world, 1)), (std::vector{4})) << "Events, without a name";
  EXPECT_EQ(Crowds(MonthsOf(world, 3)), std::vector<int>());
}

TEST(Past, MakesRoomByAThousandAtOnce) {
  World world = SmallWorld().Promotion("CWA").Game("CWA");
  const int limit = LayoutOf<HistoryEntry>().Limit;
  for (int number = 1; number <= limit; ++number)
    Remember(world, Past(kPastTv, 1, "Friday Fire", number));
  ASSERT_EQ(world.History().Count(), 30000);
  Remember(world, Past(kPastTv, 1, "Friday Fire", 30001));
  ASSERT_EQ(world.History().Count(), 29001);
  EXPECT_EQ(world.History()[1].Attendance, 1001);
  EXPECT_EQ(world.History()[29001].Attendance, 30001);
}

}  // namespace
}  // namespace grapplemont::test
