#include <gtest/gtest.h>

#include "business/finance.h"
#include "business/past.h"
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

TEST(TheOffice, AsksBeforeMoneyGoesAndMindsWhatIsThere) {
  GameOnWorld play(
      Office([](Promotion& p) { p.Money = 30'000, p.Production = 33, p.TicketPrice = 140; }));
  ScriptDesk& desk = play.Desk;
  const Promotion& player = play.World().Player();
  desk.Open("frmTicket");
  EXPECT_EQ(desk.Value("hsticket"), 140) << "a price beyond the slider's usual end is kept";
  desk.Slide("hsticket", 35);
  desk.ExpectAsk("Change price?", "Are you sure?", false);
  desk.Click("cmddoit");
  EXPECT_EQ(player.TicketPrice, 140);
  desk.Open("frmCharity");
  desk.Slide("hsamount", 1000);
  EXPECT_EQ(desk.Text("lblamount"), "$1,000,000");
  desk.Slide("hsamount", 31);
  desk.ExpectSay("Money Problems!", "You cannot afford this donation!");
  desk.Click("cmddonate");
  desk.Slide("hsamount", 30);
  desk.ExpectAsk("Donate money?", "Are you sure?", false);
  desk.Click("cmddonate");
  EXPECT_EQ(player.Money, 30'000);
  desk.ExpectAsk("Donate money?", "Are you sure?", true);
  desk.Click("cmddonate");
  EXPECT_EQ(play.World().Game().Reputation, 70);
  desk.Open("frmFedProd");
  desk.Click("cmdwhy");
  EXPECT_TRUE(desk.Text("txtwhy").ends_with("\n= $165,000 a month")) << desk.Text("txtwhy");
  desk.ExpectAsk("Finance Report", "Pay $2800 for a 1% increase?", true);
  desk.ExpectSay("Finance Report", "You cannot afford this!");
  desk.Click("cmdraise(1)");
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
    EXPECT_EQ(play.Desk.Tip("cmdwhynot"), "The bank has turned nothing down.");
    play.Desk.Click("cmddoit");
    EXPECT_EQ(play.Desk.Enabled("cmdwhynot"), !granted);
    if (!granted) {
      play.Desk.Click("cmdwhynot");
      EXPECT_EQ(play.Desk.Text("txtwhy"),
                "- The bank wants a quarter of the sum in hand, $300,000; we have $299,999.\n"
                "= The bank have rejected your loan application!");
    }
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
  Remember(play.World(), Past(kPastTv, own, year{2026} / 2 / 8, 850));
  play.World().History().Change(play.World().History().Count() - 1).Income = 1600;
  expect({"Nov 2025", "Dec 2025", "Jan 2026", "08 Feb", "Today"}, {100, -700, 800, 850, 900});
  play.Desk.Open("frmFinance");
  EXPECT_EQ(play.Desk.Rows("lstmonths")[0], Row({"Jan 2026", "$800", "$1,600", "$0", "-$100"}));
  EXPECT_EQ(play.Desk.Rows("lstmonths")[2].back(), "") << "nothing is known from before";
}

}  // namespace
}  // namespace grapplemont::test
