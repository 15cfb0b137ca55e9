#include "business/screens/frmSpending.h"

#include <gtest/gtest.h>

#include "business/finance.h"
#include "calendar/advanceday.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

using Row = std::vector<std::string>;

TEST(frmTicket, ChangesThePriceAfterAsking) {
  GameOnWorld play(SmallWorld().Promotion("CWA", kRegional).Game("CWA"));
  play.Desk.Open("frmTicket");
  EXPECT_EQ(play.Desk.Text("lblprice"), "Current Ticket Prices : $20");
  EXPECT_EQ(play.Desk.Value("hsticket"), 20);
  EXPECT_FALSE(play.Desk.Enabled("cmddoit"));
  play.Desk.Slide("hsticket", 25);
  EXPECT_TRUE(play.Desk.Enabled("cmddoit"));
  play.Desk.Slide("hsticket", 20);
  EXPECT_FALSE(play.Desk.Enabled("cmddoit")) << "back where it was";
  play.Desk.Slide("hsticket", 35);
  play.Desk.ExpectAsk("Change price?", "Are you sure?", false);
  play.Desk.Click("cmddoit");
  EXPECT_EQ(play.World().Player().TicketPrice, 20);
  play.Desk.ExpectAsk("Change price?", "Are you sure?", true);
  play.Desk.Click("cmddoit");
  EXPECT_EQ(play.Desk.Text("lblprice"), "Current Ticket Prices : $35");
  EXPECT_FALSE(play.Desk.Enabled("cmddoit"));
  play.Reopen();
  EXPECT_EQ(play.World().Player().TicketPrice, 35);
}

TEST(frmTicket, KeepsAPriceBeyondItsSlider) {
  GameOnWorld play(SmallWorld()
                       .Promotion("CWA", kGlobal, [](Promotion& p) { p.TicketPrice = 240; })
                       .Game("CWA"));
  play.Desk.Open("frmTicket");
  EXPECT_EQ(play.Desk.Value("hsticket"), 240);
  EXPECT_FALSE(play.Desk.Enabled("cmddoit"));
}

TEST(TicketOpinion, TurnsWithThePrice) {
  struct Case {
    int Size, Price;
    std::string_view Word;
  };
  constexpr Case kCases[] = {{kGlobal, 49, "cannot believe"},
                             {kGlobal, 50, "glad"},
                             {kGlobal, 54, "glad"},
                             {kGlobal, 55, "fair"},
                             {kGlobal, 65, "fair"},
                             {kGlobal, 66, "some"},
                             {kGlobal, 75, "some"},
                             {kGlobal, 76, "many"},
                             {kGlobal, 90, "many"},
                             {kGlobal, 91, "Hardly"},
                             {kBackyard, 10, "fair"},
                             {kBackyard, 11, "Hardly"},
                             {kSmall, 20, "some"},
                             {kSmall, 21, "Hardly"},
                             {kRegional, 40, "many"},
                             {kRegional, 41, "Hardly"},
                             {kCult, 60, "many"},
                             {kCult, 61, "Hardly"}};
  for (const Case& c : kCases)
    EXPECT_NE(TicketOpinion(c.Size, c.Price).find(c.Word), std::string_view::npos)
        << c.Size << " at $" << c.Price << ": " << TicketOpinion(c.Size, c.Price);
}

World WithMoney(int money, int reputation) {
  return SmallWorld()
      .Promotion("CWA", kCult, [&](Promotion& p) { p.Money = money; })
      .Game("CWA", kGameStart, [&](GameInfo& game) { game.Reputation = reputation; });
}

TEST(frmCharity, BuysAGoodName) {
  struct Case {
    int Money, Reputation, Thousands;
    const char* Shown;
    int MoneyAfter, ReputationAfter;
  };
  constexpr Case kCases[] = {
      {250'000, 40, 30, "$30,000", 220'000, 70},
      {250'000, 40, 250, "$250,000", 0, 100},  // to the last dollar
      {2'000'000, 99, 1, "$1,000", 1'999'000, 100},
      {2'000'000, 0, 1000, "$1,000,000", 1'000'000, 100},
      {5'000, 0, 5, "$5,000", 0, 5},
  };
  for (const Case& c : kCases) {
    GameOnWorld play(WithMoney(c.Money, c.Reputation));
    play.Desk.Open("frmCharity");
    play.Desk.Slide("hsamount", c.Thousands);
    EXPECT_EQ(play.Desk.Text("lblamount"), c.Shown);
    play.Desk.ExpectAsk("Donate money?", "Are you sure?", false);
    play.Desk.Click("cmddonate");
    EXPECT_EQ(play.World().Player().Money, c.Money);
    play.Desk.ExpectAsk("Donate money?", "Are you sure?", true);
    play.Desk.Click("cmddonate");
    EXPECT_EQ(play.Desk.Text("lblmoney"), "Current finance: $" + std::to_string(c.MoneyAfter));
    play.Reopen();
    EXPECT_EQ(play.World().Player().Money, c.MoneyAfter);
    EXPECT_EQ(play.World().Game().Reputation, c.ReputationAfter);
  }
}

TEST(frmFedMerch, SetsEitherSpendingAtOnce) {
  struct Side {
    void (*Open)(Game&);
    const char* Title;
    RangedWord<0, 100> Promotion::*Level;
    const char* AtNothing;
    const char* At35;
  };
  const Side kSides[] = {{OpenAdvertising, "Advertising", &Promotion::Advertising, "0% \\ $0 p.m",
                          "35% \\ $350000 p.m"},
                         {OpenMerchandising, "Merchandising", &Promotion::Merchandising,
                          "0% \\ $0 p.m", "35% \\ $700000 p.m"}};
  for (const Side& side : kSides) {
    GameOnWorld play(SmallWorld().Promotion("CWA", kCult).Game("CWA"));
    side.Open(play.Play);
    EXPECT_EQ(play.Desk.TopName(), "frmFedMerch");
    EXPECT_EQ(play.Desk.Title(), side.Title);
    EXPECT_EQ(play.Desk.Text("lblcost"), side.AtNothing);
    play.Desk.Slide("hscurrent", 35);
    EXPECT_EQ(play.Desk.Text("lblcost"), side.At35);
    play.Reopen();
    EXPECT_EQ(play.World().Player().*side.Level, 35);
    EXPECT_EQ(play.World().Player().Advertising + play.World().Player().Merchandising, 35)
        << "the other stays as it was";
    EXPECT_EQ(play.World().Player().Money, 5'000'000) << "paid on the first, not now";
  }
}

World Payroll() {
  return SmallWorld()
      .Promotion("CWA", kRegional)
      .Owner("Ruth Vane", [](Staff& s) { s.Wage = 6; })
      .Worker("Bram Okafor", [](Worker& w) { w.Wage = 40; })
      .Worker("Ilya Marsh", [](Worker& w) { w.ContractMonths = kNoEnd; })
      .Worker("Cal Drift", [](Worker& w) { w.Status = "Hom"; })
      .Staff("Pen Writer", kWriter, 50, [](Staff& s) { s.Wage = 3; })
      .Staff("Old Hand", kReferee, 50, [](Staff& s) { s.ContractMonths = kNoEnd; })
      .Promotion("NEW")
      .Worker("Of Another")
      .Staff("Theirs", kWriter)
      .OnTheMarket()
      .Worker("Of Nobody")
      .Game("CWA");
}

TEST(frmWages, ListsEverybodyAndTotalsWhatIsDue) {
  GameOnWorld play(Payroll());
  play.Desk.Open("frmWages");
  EXPECT_EQ(play.Desk.Rows("lstwages"),
            (std::vector<Row>{{"Bram Okafor", "Worker", "Midcard", "$40,000", "$40,000", "12"},
                              {"Ilya Marsh", "Worker", "Midcard", "$10,000", "$0", "No end"},
                              {"Cal Drift", "Worker", "Midcard", "$10,000", "$0", "12"},
                              {"Pen Writer", "Staff", "Writer", "$3,000", "$3,000", "12"},
                              {"Old Hand", "Staff", "Referee", "$5,000", "$0", "No end"}}));
  EXPECT_EQ(play.Desk.Text("lblworkers"), "$40,000 p.m");
  EXPECT_EQ(play.Desk.Text("lblstaff"), "$3,000 p.m");
  EXPECT_EQ(play.Desk.Text("lbltotal"), "Wages due on the first of the month: $43,000");
  const int before = play.World().Player().Money;
  PayWagesAndContracts(play.World());
  EXPECT_EQ(before - play.World().Player().Money, 43'000) << "what is due is what is paid";
  EXPECT_EQ(play.World().Player().ThisMonth.WrestlerWages, 40'000);
  EXPECT_EQ(play.World().Player().ThisMonth.StaffWages, 3'000);
}

TEST(frmFinance, ShowsBothMonths) {
  GameOnWorld play(
      SmallWorld()
          .Promotion("CWA", kCult,
                     [](Promotion& p) {
                       p.Money = 1'284'500;
                       int value = 0;
                       for (MonthBooks* books : {&p.ThisMonth, &p.LastMonth})
                         for (Cash* book :
                              {&books->TicketIncome, &books->MerchIncome, &books->PpvIncome,
                               &books->SponsorIncome, &books->WrestlerWages, &books->StaffWages,
                               &books->ProductionCost, &books->AdvertisingCost, &books->MerchCost})
                           *book = 1 << value++;
                     })
          .Game("CWA"));
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

/// The months under the chart and the money above them.
std::pair<Row, std::vector<double>> ChartOf(GameOnWorld& play) {
  play.Desk.Open("frmFinance");
  auto* chart = dynamic_cast<ui::Chart*>(play.Desk.Top()->Find("chtmoney"));
  std::pair<Row, std::vector<double>> shown{chart->Captions.Get(), chart->Lines.Get()[0].Values};
  play.Desk.Close(*play.Desk.Top());
  return shown;
}

TEST(frmFinance, DrawsTheMoneyOfPastMonths) {
  GameOnWorld play(SmallWorld()
                       .Promotion("CWA", kCult,
                                  [](Promotion& p) {
                                    p.Money = 900;
                                    p.MoneyBefore[0] = 800;
                                    p.MoneyBefore[1] = -700;
                                  })
                       .Promotion("NEW")
                       .Game("CWA", std::chrono::year{2026} / 2 / 15));
  EXPECT_EQ(ChartOf(play), std::pair(Row({"Dec 2025", "Jan 2026", "Today"}),
                                     std::vector<double>({-700, 800, 900})))
      << "from the promotion's own record while the history is young";

  const auto remember = [&](int promotion, int kind, Day on, int money) {
    HistoryEntry entry;
    entry.Promotion = promotion;
    entry.Kind = kind;
    entry.On = on;
    entry.Money = money;
    play.World().History().Append(entry);
  };
  const int own = play.World().PlayerUid();
  using std::chrono::year;
  remember(own, kPastMonth, year{2025} / 12 / 1, 100);
  remember(own, kPastMonth, year{2026} / 1 / 1, -700);
  remember(own + 1, kPastMonth, year{2026} / 2 / 1, 5);
  remember(own, kPastEvent, year{2026} / 1 / 25, 6);
  remember(own, kPastMonth, year{2026} / 2 / 1, 800);
  EXPECT_EQ(ChartOf(play), std::pair(Row({"Nov 2025", "Dec 2025", "Jan 2026", "Today"}),
                                     std::vector<double>({100, -700, 800, 900})));
}

}  // namespace
}  // namespace grapplemont::test
