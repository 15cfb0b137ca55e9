#include <gtest/gtest.h>

#include "business/finance.h"
#include "business/past.h"
#include "business/screens/frmSpending.h"
#include "calendar/advanceday.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

using Row = std::vector<std::string>;

World Office(const Change<Promotion>& change = {}, int difficulty = kMedium) {
  return SmallWorld().Promotion("CWA", kCult, change).Game("CWA", kGameStart, [&](GameInfo& game) {
    game.Difficulty = difficulty;
    game.Reputation = 40;
  });
}

TEST(frmTicket, ChangesThePriceAfterAsking) {
  GameOnWorld play(Office([](Promotion& p) { p.TicketPrice = 140; }));
  play.Desk.Open("frmTicket");
  EXPECT_EQ(play.Desk.Text("lblprice"), "Current Ticket Prices : $140");
  EXPECT_EQ(play.Desk.Value("hsticket"), 140) << "a price beyond the slider's usual end is kept";
  EXPECT_FALSE(play.Desk.Enabled("cmddoit"));
  play.Desk.Slide("hsticket", 35);
  for (const bool answer : {false, true}) {
    EXPECT_TRUE(play.Desk.Enabled("cmddoit"));
    play.Desk.ExpectAsk("Change price?", "Are you sure?", answer);
    play.Desk.Click("cmddoit");
    EXPECT_EQ(play.World().Player().TicketPrice, answer ? 35 : 140);
  }
  EXPECT_EQ(play.Desk.Text("lblprice"), "Current Ticket Prices : $35");
  EXPECT_FALSE(play.Desk.Enabled("cmddoit"));
}

TEST(frmCharity, BuysAGoodName) {
  GameOnWorld play(Office([](Promotion& p) { p.Money = 30'000; }));
  play.Desk.Open("frmCharity");
  play.Desk.Slide("hsamount", 1000);
  EXPECT_EQ(play.Desk.Text("lblamount"), "$1,000,000");
  play.Desk.Slide("hsamount", 31);
  play.Desk.ExpectSay("Money Problems!", "You cannot afford this donation!");
  play.Desk.Click("cmddonate");
  play.Desk.Slide("hsamount", 30);
  EXPECT_EQ(play.Desk.Text("lblamount"), "$30,000");
  for (const bool answer : {false, true}) {
    play.Desk.ExpectAsk("Donate money?", "Are you sure?", answer);
    play.Desk.Click("cmddonate");
    EXPECT_EQ(play.World().Player().Money, answer ? 0 : 30'000);
    EXPECT_EQ(play.World().Game().Reputation, answer ? 70 : 40);
  }
  EXPECT_EQ(play.Desk.Text("lblmoney"), "Current finance: $0");
}

TEST(frmFedMerch, SetsEitherSpendingAtOnce) {
  GameOnWorld play(Office([](Promotion& p) {
    p.LastMonth.MerchCost = 7;
    p.LastMonth.MerchIncome = 9;
    p.LastMonth.AdvertisingCost = 5;
  }));
  const Promotion& player = play.World().Player();
  OpenAdvertising(play.Play);
  EXPECT_EQ(play.Desk.Title(), "Advertising");
  EXPECT_EQ(play.Desk.Text("lblcost"), "0% \\ $0 p.m");
  play.Desk.Slide("hscurrent", 35);
  EXPECT_EQ(play.Desk.Text("lblcost"), "35% \\ $350000 p.m");
  EXPECT_EQ(play.Desk.Text("lbllast"), "spent $5");
  EXPECT_EQ(player.Advertising, 35);
  EXPECT_EQ(player.Merchandising, 0) << "the other stays as it was";
  play.Desk.Click("cmdback");
  OpenMerchandising(play.Play);
  play.Desk.Slide("hscurrent", 20);
  EXPECT_EQ(play.Desk.Text("lblcost"), "20% \\ $400000 p.m");
  EXPECT_EQ(play.Desk.Text("lbllast"), "spent $7, sold for $9");
  EXPECT_EQ(player.Money, 5'000'000) << "paid on the first, not now";
}

TEST(frmFedProd, RaisesStepByStepAndAsksBefore) {
  GameOnWorld play(Office([](Promotion& p) {
    p.Production = 9;
    p.Money = 6'525;
  }));
  play.Desk.Open("frmFedProd");
  EXPECT_EQ(play.Desk.Text("cmdraise(3)"), "Raise by 10% : Cost $1000");
  for (const bool answer : {false, true}) {
    EXPECT_EQ(play.Desk.Text("cmdraise(2)"), "Raise by 5% : Cost $525");
    play.Desk.ExpectAsk("Finance Report", "Pay $525 for a 5% increase?", answer);
    play.Desk.Click("cmdraise(2)");
  }
  EXPECT_EQ(play.Desk.Text("lblproduction"), "14%");
  EXPECT_EQ(play.Desk.Text("cmdraise(2)"), "Raise by 5% : Cost $4000") << "the next band";
  EXPECT_EQ(play.Desk.Text("lblmoney"), "Current finance: $6000");
  EXPECT_EQ(play.Desk.Text("lblmonthly"), "$14,000 p.m");
  play.Desk.ExpectAsk("Finance Report", kAnyText, true);
  play.Desk.ExpectSay("Finance Report", "You cannot afford this!");
  play.Desk.Click("cmdraise(3)");
  EXPECT_EQ(play.World().Player().Production, 14);
}

TEST(frmLoan, IsGrantedToWhoeverHasAQuarterOfIt) {
  for (const int money : {299'999, 300'000}) {
    GameOnWorld play(Office(
        [&](Promotion& p) {
          p.Money = money;
          p.LoanRepaid = 7;  // left behind by a loan long gone
          p.LoanMissed = 2;
        },
        kHard));
    play.Desk.Open("frmLoan");
    EXPECT_EQ(play.Desk.Text("txtstatus"), "No Outstanding Loans");
    for (const auto& [steps, term, cost] : {std::tuple(1, "1 Year", "$13333.33"),
                                            {100, "3 Years", "$777777.78"},
                                            {12, "2 Years", "$110000"}}) {
      play.Desk.Slide("hsamount", steps);
      EXPECT_EQ(play.Desk.Text("lblterm"), term);
      EXPECT_EQ(play.Desk.Text("txtcost"), cost);
    }
    EXPECT_EQ(play.Desk.Text("lblamount"), "$1200000");
    const bool granted = money == 300'000;
    play.Desk.ExpectAsk("Apply for loan?", "Are you sure?", true);
    play.Desk.ExpectSay(granted ? "Accepted!" : "Rejected!",
                        granted ? "The bank have accepted your loan application!"
                                : "The bank have rejected your loan application!");
    play.Desk.Click("cmddoit");
    const Promotion& player = play.World().Player();
    EXPECT_EQ(player.Money, money + (granted ? 1'200'000 : 0));
    EXPECT_EQ(player.LoanAmount, granted ? 1'200'000 : 0);
    EXPECT_EQ(player.LoanMonths, granted ? 24 : 0);
    EXPECT_EQ(player.LoanRepaid, granted ? 0 : 7);
    EXPECT_EQ(player.LoanMissed, granted ? 0 : 2);
  }
}

TEST(frmLoan, IsPaidOffWithAShareOfTheRest) {
  for (const int missing : {0, 1}) {
    GameOnWorld play(Office(
        [&](Promotion& p) {
          p.Money = 1'225'000 - missing;  // 1166667 and five in a hundred of it
          p.LoanAmount = 2'000'000;
          p.LoanMonths = 24;
          p.LoanRepaid = 833'333;
          p.LoanMissed = 1;
        },
        kHard));
    play.Desk.Open("frmLoan");
    EXPECT_EQ(play.Desk.Value("hsamount"), 20);
    EXPECT_EQ(play.Desk.Text("lblstate"),
              "Repaid so far $833,333. To repay the rest now costs $1,225,000. Payments missed: 1; "
              "the third is one too many.");
    play.Desk.ExpectAsk("Repay loan?", "Are you sure?", false);
    play.Desk.Click("cmddoit");
    play.Desk.ExpectAsk("Repay loan?", "Are you sure?", true);
    play.Desk.ExpectSay(missing ? "Error!" : "Done!",
                        missing ? "You cannot afford to repay it!" : "The loan has been repayed");
    play.Desk.Click("cmddoit");
    EXPECT_EQ(play.Desk.Text("cmddoit"), missing ? "Repay Entire Loan" : "Apply For Loan");
    const Promotion& player = play.World().Player();
    EXPECT_EQ(player.Money, missing ? 1'224'999 : 0);
    EXPECT_EQ(player.LoanAmount + player.LoanMonths + player.LoanRepaid + player.LoanMissed,
              missing ? 2'000'000 + 24 + 833'333 + 1 : 0);
  }
}

TEST(frmWages, ListsEverybodyAndTotalsWhatIsDue) {
  GameOnWorld play(SmallWorld()
                       .Promotion("CWA", kRegional)
                       .Owner("Ruth Vane", [](Staff& s) { s.Wage = 6; })
                       .Worker("Bram Okafor", [](Worker& w) { w.Wage = 40; })
                       .Worker("Ilya Marsh", [](Worker& w) { w.ContractMonths = kNoEnd; })
                       .Worker("Cal Drift", [](Worker& w) { w.Status = "Hom"; })
                       .Staff("Pen Writer", kWriter, 50, [](Staff& s) { s.Wage = 3; })
                       .Promotion("NEW")
                       .Worker("Of Another")
                       .Staff("Theirs", kWriter)
                       .Game("CWA"));
  play.Desk.Open("frmWages");
  EXPECT_EQ(play.Desk.Rows("lstwages"),
            (std::vector<Row>{{"Bram Okafor", "Worker", "Midcard", "$40,000", "$40,000", "12"},
                              {"Ilya Marsh", "Worker", "Midcard", "$10,000", "$0", "No end"},
                              {"Cal Drift", "Worker", "Midcard", "$10,000", "$0", "12"},
                              {"Pen Writer", "Staff", "Writer", "$3,000", "$3,000", "12"}}));
  EXPECT_EQ(play.Desk.Text("lblworkers"), "$40,000 p.m");
  EXPECT_EQ(play.Desk.Text("lblstaff"), "$3,000 p.m");
  EXPECT_EQ(play.Desk.Text("lbltotal"), "Wages due on the first of the month: $43,000");
  const int before = play.World().Player().Money;
  PayWagesAndContracts(play.World());
  EXPECT_EQ(before - play.World().Player().Money, 43'000) << "what is due is what is paid";
}

TEST(frmFinance, ShowsBothMonths) {
  GameOnWorld play(Office([](Promotion& p) {
    p.Money = 1'284'500;
    int value = 0;
    for (MonthBooks* books : {&p.ThisMonth, &p.LastMonth})
      for (Cash* book : {&books->TicketIncome, &books->MerchIncome, &books->PpvIncome,
                         &books->SponsorIncome, &books->WrestlerWages, &books->StaffWages,
                         &books->ProductionCost, &books->AdvertisingCost, &books->MerchCost})
        *book = 1 << value++;
  }));
  play.Desk.Open("frmFinance");
  EXPECT_EQ(play.Desk.Text("lblmoney"), "Current finance: $1284500");
  EXPECT_EQ(play.Desk.Rows("lstbooks"), (std::vector<Row>{
                                            {"Ticket sales", "$512", "$1"},
                                            {"Merchandise", "$1,024", "$2"},
                                            {"Pay-per-view", "$2,048", "$4"},
                                            {"Sponsors", "$4,096", "$8"},
                                            {"Total in", "$7,680", "$15"},
                                            {"Workers' wages", "$8,192", "$16"},
                                            {"Staff wages", "$16,384", "$32"},
                                            {"Production", "$32,768", "$64"},
                                            {"Advertising", "$65,536", "$128"},
                                            {"Cost of merchandise", "$131,072", "$256"},
                                            {"Total out", "$253,952", "$496"},
                                            {"Balance", "-$246,272", "-$481"},
                                        }));
}

HistoryEntry Past(int kind, int promotion, Day on, int money) {
  HistoryEntry entry{};
  entry.On = on;
  entry.Kind = kind;
  entry.Promotion = promotion;
  entry.Money = money;
  return entry;
}

TEST(frmFinance, DrawsTheMoneyOfPastMonths) {
  using std::chrono::year;
  GameOnWorld play(SmallWorld()
                       .Promotion("CWA", kCult,
                                  [](Promotion& p) {
                                    p.Money = 900;
                                    p.MoneyBefore[0] = 800;
                                    p.MoneyBefore[1] = -700;
                                  })
                       .Promotion("NEW")
                       .Game("CWA", year{2026} / 2 / 15));
  const auto expect = [&](const Row& months, const std::vector<double>& money) {
    play.Desk.Open("frmFinance");
    const auto* chart = dynamic_cast<ui::Chart*>(play.Desk.Top()->Find("chtmoney"));
    EXPECT_EQ(chart->Captions.Get(), months);
    EXPECT_EQ(chart->Lines.Get()[0].Values, money);
    play.Desk.Click("cmdback");
  };
  expect({"Dec 2025", "Jan 2026", "Today"}, {-700, 800, 900});  // the promotion's own record
  const int own = play.World().PlayerUid();
  for (const HistoryEntry& entry : {Past(kPastMonth, own, year{2025} / 12 / 1, 100),
                                    Past(kPastMonth, own, year{2026} / 1 / 1, -700),
                                    Past(kPastMonth, own + 1, year{2026} / 2 / 1, 5),
                                    Past(kPastEvent, own, year{2026} / 1 / 25, 6),
                                    Past(kPastMonth, own, year{2026} / 2 / 1, 800)})
    Remember(play.World(), entry);
  expect({"Nov 2025", "Dec 2025", "Jan 2026", "Today"}, {100, -700, 800, 900});
}

TEST(Past, MakesRoomByAThousandAtOnce) {
  World world = Office();
  for (int number = 1; number <= LayoutOf<HistoryEntry>().Limit + 1; ++number)
    Remember(world, Past(kPastTv, 1, kGameStart, number));
  ASSERT_EQ(world.History().Count(), 29001);
  EXPECT_EQ(world.History()[1].Money, 1001);
  EXPECT_EQ(world.History()[29001].Money, 30001);
}

}  // namespace
}  // namespace grapplemont::test
