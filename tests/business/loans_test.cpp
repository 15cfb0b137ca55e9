#include "business/finance.h"

#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

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

TEST(frmLoan, QuotesWhatTheBankTakesButForTheCents) {
  for (int difficulty = kEasy; difficulty <= kRockHard; ++difficulty)
    for (int steps = 1; steps <= kMostLoanSteps; ++steps) {
      World world = Begun(50'000'000, difficulty);
      TakeLoan(world.Player(), steps);
      const int before = world.Player().Money;
      const int months = world.Player().LoanMonths;
      LoanRepayments(world);
      const long long quote = LoanQuote(steps * kLoanStep, months, difficulty);
      const int taken = before - world.Player().Money;
      EXPECT_GE(quote, taken * 100LL) << steps << " at " << difficulty;
      EXPECT_LT(quote, taken * 100LL + 100);
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

TEST(frmLoan, AsksBeforeItBorrows) {
  GameOnWorld play(Begun(500'000, kEasy));
  play.Desk.Open("frmLoan");
  play.Desk.ExpectAsk(kAnyText, "Are you sure?", false);
  play.Desk.Click("cmddoit");
  EXPECT_EQ(play.World().Player().LoanAmount, 0);
  play.Desk.ExpectAsk(kAnyText, "Are you sure?", true);
  play.Desk.ExpectSay("Accepted!", kAnyText);
  play.Desk.Click("cmddoit");
  EXPECT_EQ(play.World().Player().LoanAmount, 100'000) << "the slider begins at one step";
  EXPECT_EQ(play.Desk.Text("txtstatus"), "Currently Repaying A Loan");
  EXPECT_EQ(play.Desk.Text("lblfor"), "Paying Back Over");
  EXPECT_EQ(play.Desk.Text("cmddoit"), "Repay Entire Loan");
  EXPECT_FALSE(play.Desk.Enabled("hsamount"));
  EXPECT_EQ(play.Desk.Text("lblmoney"), "Current finance: $600000");
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

}  // namespace
}  // namespace grapplemont::test
