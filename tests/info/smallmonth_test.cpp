#include "info/smallmonth.h"

#include <gtest/gtest.h>

#include "business/beside.h"
#include "business/finance.h"
#include "calendar/advanceday.h"
#include "calendar/desktiles.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/market.h"
#include "roster/talks.h"
#include "support/gameonworld.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using Row = std::vector<std::string>;

/// A Backyard promotion with $1,000, a rival of the class above, somebody young on the market.
SmallWorld Backyard() {
  SmallWorld small;
  small
      .Promotion("CWA", kBackyard,
                 [](Promotion& p) {
                   p.Money = 1000;
                   p.Image = 20;
                 })
      .Worker("Ada Lane", kMidcard, 15, [](Worker& w) { w.Morale = 50; })
      .Worker("Bo Drake", kMidcard, 14)
      .Worker("Cy Finch", kMidcard, 13)
      .Worker("Di Marsh", kMidcard, 12)
      .Promotion("NEW", kSmall)
      .Worker("Ed Stone", kMidcard, 25,
              [](Worker& w) {
                w.ContractType = "Wri";
                w.ContractMonths = 9;
                w.Morale = 70;
              })
      .OnTheMarket()
      .Worker("Flo Reed", kMidcard, 10, [](Worker& w) { w.Wage = 6; })
      .Sponsor("Gulp",
               [](Sponsor& s) {
                 s.Pay = 5;
                 s.Morality = 10;
               })
      .Sponsor("Grand", [](Sponsor& s) { s.Pay = 900; })
      .Game("CWA");
  return small;
}

void DrawLife(World& world, std::initializer_list<ScriptedDraw> script) {
  world.SetLife(std::make_unique<ScriptedDraws>(script));
}
int UidOf(const World& world, const char* name) {
  return Named(world.Workers(), name).Uid;
}

TEST(SmallMonth, ATournamentPaysByTheImageAndIsHeldOnceAMonth) {
  World world = Backyard();
  DrawLife(world, {{60, 30}});
  EXPECT_EQ(WhyNotVenture(world, Venture::Tournament, 0), "Choose somebody first.");
  const int ada = UidOf(world, "Ada Lane");
  ASSERT_EQ(WhyNotVenture(world, Venture::Tournament, ada), "");
  Undertake(world, Venture::Tournament, ada);
  EXPECT_EQ(world.Player().Money, 1000 - 600 + (20 + 30) * 12);
  EXPECT_EQ(Named(world.Workers(), "Ada Lane").Morale, 60);
  EXPECT_EQ(Named(world.Workers(), "Di Marsh").Condition, 95);
  EXPECT_EQ(WhyNotVenture(world, Venture::Tournament, ada), "Once a month is enough.");
  EXPECT_EQ(VenturesLeft(world), 5);
  world.Game().Today = kGameStart + std::chrono::days{31};
  EXPECT_EQ(VenturesLeft(world), 6);
}

TEST(SmallMonth, IsInTheMoneyOfItsMonthWhereverThatIsRead) {
  using std::chrono::days;
  World world = Backyard();
  DrawLife(world, {{60, 20}});
  Undertake(world, Venture::Tournament, UidOf(world, "Ada Lane"));
  EXPECT_EQ(DeskTiles(world)[0].Why,
            "Balance of the books $0; The town's tournament -$600; Gate of the tournament +$480");
  TakeLoan(world, 1);
  const int paid = MonthlyRepayment(world.Player(), world.Game().Difficulty);
  world.Game().Today = kGameStart + days{31};
  LoanRepayments(world);
  MonthlyReview(world);
  CloseMonthBooks(world);
  TellOfTheMonth(world);
  EXPECT_EQ(world.News()[world.News().Count()].Body.Str(),
            "The month is closed: $0 came in, $0 went out. It has earned us $0. Outside the books "
            "it was " +
                Dollars(100000 - paid - 120) + ": A loan $100,000, Loan repayments " +
                Dollars(-paid) + ", The town's tournament -$600, Gate of the tournament $480.");
  Undertake(world, Venture::Benefit, 0);
  GameOnWorld play(std::move(world));
  play.Desk.Open("frmFinance");
  const auto rows = play.Desk.Rows("lstbooks");
  const std::string moved = Dollars(100000 - paid - 120);
  EXPECT_EQ(rows[rows.size() - 3], (Row{"A benefit for the town", "$0", "-$200"}));
  EXPECT_EQ(rows[rows.size() - 2], (Row{"Outside the books", moved, "-$200"}));
  EXPECT_EQ(rows.back(), (Row{"The money moved by", moved, "-$200"}));
  play.Desk.Open("frmMainScreen");
  EXPECT_TRUE(play.Desk.Text("lbltile(1)").starts_with("-$200 this month"));
  play.World().Game().Today = kGameStart + days{70};
  MoveBeside(play.World(), play.World().Player(), 1, "Found");
  EXPECT_EQ(BesideLines(play.World()).front().Why, "A benefit for the town") << "March has gone";
}

TEST(SmallMonth, TryoutsSignForATenthLessAndScoutingUnsettles) {
  World world = Backyard();
  DrawLife(world, {{10, 4}});
  const Worker& flo = Named(world.Workers(), "Flo Reed");
  const Demands asked = ContractDemands(world, flo);
  ASSERT_EQ(WhomFor(world, Venture::Tryout).size(), 1u);
  Undertake(world, Venture::Tryout, flo.Uid);
  EXPECT_EQ(flo.Employer, world.PlayerUid());
  EXPECT_EQ(flo.Wage, asked.Wage - asked.Wage / 10);
  EXPECT_EQ(flo.ContractMonths, asked.Months);
  const Worker& ed = Named(world.Workers(), "Ed Stone");
  ASSERT_EQ(WhyNotVenture(world, Venture::Scouting, ed.Uid), "");
  Undertake(world, Venture::Scouting, ed.Uid);
  EXPECT_EQ(ed.Morale, 56);
  EXPECT_TRUE(IsShortlisted(world, ed.Uid));
  EXPECT_TRUE(WhomFor(world, Venture::Scouting).empty()) << "they listen by themselves now";
}

TEST(SmallMonth, PostersMayBeRainedOffAndMoneyAndSizeSetLimits) {
  World world = Backyard();
  DrawLife(world, {{3, 3}, {3, 1}});
  Undertake(world, Venture::Posters, 0);
  EXPECT_EQ(world.Player().Image, 20);
  world.MonthPlans().Rewrite({});
  Undertake(world, Venture::Posters, 0);
  EXPECT_EQ(world.Player().Image, 21);
  world.MonthPlans().Rewrite({});
  world.Player().Money = 299;
  EXPECT_EQ(WhyNotVenture(world, Venture::Posters, 0), "You cannot afford this!");
  world.Player().Size = kRegional;
  EXPECT_NE(WhyNotVenture(world, Venture::Benefit, 0), "");
  EXPECT_EQ(VenturesLeft(world), 0);
  EXPECT_TRUE(LocalRumours(world).empty());
}

TEST(LocalRumours, AreToldWhileTheyAreTrue) {
  World world = Backyard();
  Worker& ed = Named(world.Workers(), "Ed Stone");
  Promotion& neighbour = Named(world.Promotions(), "NEW");
  const auto leadTo = [&] {
    Row pages;
    for (const LocalRumour& rumour : LocalRumours(world))
      pages.push_back(rumour.Worker == 0 ? rumour.Screen : WorkerName(world, rumour.Worker));
    return pages;
  };
  ed.Morale = 39;
  neighbour.Money = -250000;
  EXPECT_EQ(leadTo(), (Row{"frmFedSponsor", "Flo Reed", "Ed Stone", "frmOtherFed"}));
  ed.Morale = 40;
  neighbour.Money = -249999;
  Named(world.Workers(), "Flo Reed").Status = "Inj";
  EXPECT_EQ(leadTo(), Row{"frmFedSponsor"});
}

TEST(MonthScreen, OffersVenturesWithTheirPricesAndRumoursThatLeadSomewhere) {
  GameOnWorld play(Backyard());
  play.Desk.Open("frmMainScreen");
  EXPECT_EQ(play.Desk.Tip("cmdmonth"), "6 ventures of this month still open.");
  play.Desk.Click("cmdmonth");
  ASSERT_EQ(play.Desk.TopName(), "frmMonth");
  EXPECT_EQ(play.Desk.Rows("lstventures")[0], (Row{"Monthly tryout", "$300", "Open"}));
  play.Desk.Pick("lstventures", "A benefit for the town");
  EXPECT_FALSE(play.Desk.Visible("lstwhom"));
  const int before = play.World().Game().Reputation;
  play.Desk.Click("cmdventure");
  EXPECT_EQ(play.World().Game().Reputation, before + 2);
  EXPECT_TRUE(play.Desk.Visible("lblcame"));
  EXPECT_FALSE(play.Desk.Enabled("cmdventure"));
  EXPECT_EQ(play.Desk.Tip("cmdventure"), "Once a month is enough.");
  ASSERT_FALSE(play.Desk.Rows("lstrumours").empty());
  EXPECT_TRUE(play.Desk.FirstColumn("lstrumours")[0].starts_with("Gulp would put their name"));
  play.Desk.OpenRow("lstrumours", 1);
  ASSERT_EQ(play.Desk.TopName(), "frmFedSponsor");
  EXPECT_EQ(play.Desk.Rows("lstsponsors").size(), 2u);
  play.Desk.Check("chkwilling");
  EXPECT_EQ(play.Desk.FirstColumn("lstsponsors"), (std::vector<std::string>{"Gulp"}));
}

}  // namespace
}  // namespace grapplemont::test
