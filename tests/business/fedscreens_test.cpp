#include <gtest/gtest.h>

#include "business/past.h"
#include "business/screens/screenfed.h"
#include "business/worth.h"
#include "calendar/advanceday.h"
#include "records/checks/checkworld.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

using Row = std::vector<std::string>;
using Names = std::vector<std::string>;

SmallWorld Company() {
  SmallWorld small;
  small.Network("Nine", [](Network& n) { n.EarlyRisk = 40, n.LateRisk = 59; })
      .Promotion("CWA", kCult,
                 [](Promotion& p) {
                   p.Money = 500000;
                   p.Image = 61;
                   p.Advertising = 12;
                   p.Production = 41;
                   p.Split[0] = "Red";
                 })
      .Owner("Ruth Vane")
      .Worker("Ash", kMainEvent, 80, [](Worker& w) { w.Split = "Red"; })
      .Worker("Bea", kMidcard, 60)
      .Worker("Raw", kTrainingCamp, 20)
      .Worker("Suit", kNonWrestler, 40, [](Worker& w) { w.Charisma = 72; })
      .Worker("Tie", kNonWrestler, 30)
      .Staff("Coach", kTrainer, 61)
      .Staff("Pen", kWriter, 40, [](Staff& s) { s.Booker = true; })
      .Show("Friday Fire", "Friday", "Nine")
      .Sponsor("Gulp", [](Sponsor& s) { s.Morality = 55; })
      .Promotion("NEW")
      .Worker("Zed")
      .Game("CWA", kGameStart, [](GameInfo& g) { g.Economy = 85; });
  return small;
}

void ExpectFaultless(const World& world) {
  for (const auto& fault : CheckWorld(world)) ADD_FAILURE() << fault.Line();
}

TEST(frmFed, ShowsThePromotionAndWhatItSpends) {
  GameOnWorld play(Company());
  play.Desk.Open("frmFed");
  EXPECT_EQ(play.Desk.Text("lblmoney"), "Current finance: $500000");
  EXPECT_EQ(play.Desk.Text("lblname"), "CWA Wrestling (CWA)");
  EXPECT_EQ(play.Desk.Text("lblsize"), "Cult");
  EXPECT_EQ(play.Desk.Text("lblimage"), "61%");
  EXPECT_EQ(play.Desk.Text("lblowner"), "Ruth Vane");
  EXPECT_EQ(play.Desk.Text("lbleconomy"),
            play.World().Game().EconomyRising ? "Strong, rising" : "Strong, falling");
  EXPECT_EQ(play.Desk.Rows("lstspending"),
            (std::vector<Row>{{"Advertising", "12% \\ $120000 p.m", ""},
                              {"Merchandise", "0% \\ $0 p.m", ""},
                              {"Production", "41% \\ $410000 p.m", ""},
                              {"Tickets", "$30 a ticket", ""}}));
}

TEST(frmFed, ChartsImageAndStandingOverTheMonths) {
  GameOnWorld play(Company());
  World& world = play.World();
  world.Player().Rank.fill(decltype(Promotion::Rank)::value_type(kNoEnd));
  world.Player().Rank[0] = 361;
  const auto chart = [&](const char* name) -> const ui::Chart& {
    return dynamic_cast<const ui::Chart&>(*play.Desk.Top()->Find(name));
  };
  world.Game().Today = kGameStart + std::chrono::days{9};
  play.Desk.Open("frmFed");
  EXPECT_EQ(chart("chtimage").Captions.Get(), (Names{"Feb 2026", "Today"}));
  EXPECT_EQ(chart("chtimage").Lines.Get()[0].Values, (std::vector<double>{61, 61}));
  play.Desk.Click("cmdback");
  for (const auto& [month, image] : {std::pair(4, 70), {5, 99}, {6, 12}}) {
    world.Game().Today = Day{std::chrono::year{2026} / month / 1};
    world.Player().Image = image;
    world.Player().Size = month == 6 ? kNational : kCult;
    CloseMonthBooks(world);
  }
  world.Game().Today = world.Today() + std::chrono::days{2};
  world.Player().Image = 15;
  play.Desk.Open("frmFed");
  EXPECT_EQ(chart("chtstanding").Captions.Get(),
            (Names{"Mar 2026", "Apr 2026", "May 2026", "Today"}));
  EXPECT_EQ(chart("chtimage").Lines.Get()[0].Values, (std::vector<double>{70, 99, 12, 15}));
  EXPECT_EQ(chart("chtstanding").Lines.Get()[0].Values, (std::vector<double>{370, 399, 412, 415}));
}

TEST(frmFed, SetsTheMeetingDayAndTheRisk) {
  GameOnWorld play(Company());
  play.Desk.Open("frmFed");
  EXPECT_EQ(play.Desk.Text("cmbmeeting"), "Monday");
  play.Desk.Pick("cmbmeeting", "Sunday");
  EXPECT_EQ(play.Desk.Value("hsrisk"), 30);
  EXPECT_FALSE(play.Desk.Enabled("cmdrisk"));
  const Row show = {"Friday Fire", "Television, Prime Time on Nine", "60", "Bears it"};
  EXPECT_EQ(play.Desk.Rows("lstrisk"),
            (std::vector<Row>{show, {"Gulp", "Main sponsor", "45", "Bears it"}}));
  play.Desk.Slide("hsrisk", 60);
  EXPECT_EQ(play.Desk.Rows("lstrisk"),
            (std::vector<Row>{show, {"Gulp", "Main sponsor", "45", "Leaves on Monday"}}));
  EXPECT_EQ(play.Desk.Text("lblmarket"), "0 of 1 sponsors, 2 of 4 time slots of the networks");
  EXPECT_EQ(play.World().Player().Risk, 30) << "looking changes nothing";
  play.Desk.Slide("hsrisk", 61);
  EXPECT_EQ(play.Desk.Rows("lstrisk")[0][3], "A strike for every show");
  play.Desk.Click("cmdrisk");
  EXPECT_FALSE(play.Desk.Enabled("cmdrisk"));
  play.Desk.Click("cmdback");
  play.Reopen();
  EXPECT_EQ(play.World().Player().Risk, 61);
  EXPECT_EQ(play.World().Player().MeetingDay.View(), "Sunday");
}

TEST(frmFed, MakesAndUnmakesACommissioner) {
  GameOnWorld play(Company());
  play.Desk.Open("frmFed");
  EXPECT_EQ(play.Desk.Text("lblcommissioner"), "None");
  play.Desk.Click("cmdcommissioner");
  EXPECT_EQ(play.Desk.TopName(), "frmFedPick");
  EXPECT_EQ(play.Desk.Rows("lstpeople"), (std::vector<Row>{{"Suit", "72", ""}, {"Tie", "50", ""}}));
  EXPECT_FALSE(play.Desk.Enabled("cmddoit"));
  EXPECT_EQ(play.Desk.Tip("cmdnobody"), "Nobody holds the office now.");
  play.Desk.Pick("lstpeople", "Tie");
  play.Desk.Click("cmddoit");
  EXPECT_EQ(play.Desk.Text("lblcommissioner"), "Tie");
  play.Desk.Click("cmdcommissioner");
  EXPECT_EQ(play.Desk.Selected("lstpeople"), std::vector<int>{2});
  EXPECT_FALSE(play.Desk.Enabled("cmddoit")) << "he has it already";
  play.Desk.OpenRow("lstpeople", "Suit");
  EXPECT_EQ(play.World().Player().Commissioner, Named(play.World().Workers(), "Suit").Uid);
  play.Desk.Click("cmdcommissioner");
  play.Desk.Click("cmdcancel");
  EXPECT_EQ(play.Desk.Text("lblcommissioner"), "Suit");
  play.Desk.Click("cmdcommissioner");
  play.Desk.Click("cmdnobody");
  EXPECT_EQ(play.Desk.Text("lblcommissioner"), "None");
  play.Desk.Click("cmdcommissioner");
  play.Desk.Pick("lstpeople", "Suit");
  Named(play.World().Workers(), "Suit").Employer = 0;
  play.Desk.ExpectSay("Error!", "Suit is not one of your non-wrestlers.");
  play.Desk.Click("cmddoit");
  EXPECT_EQ(play.World().Player().Commissioner, 0);
  EXPECT_EQ(play.Desk.FirstColumn("lstpeople"), (Names{"Tie"}));
}

TEST(frmFed, NamesRenamesFillsAndDissolvesSplits) {
  GameOnWorld play(Company());
  play.Desk.Open("frmFed");
  EXPECT_EQ(play.Desk.Rows("lstsplits"),
            (std::vector<Row>{
                {"Red", "1"}, {"<<<Empty>>>", ""}, {"<<<Empty>>>", ""}, {"<<<Empty>>>", ""}}));
  EXPECT_EQ(play.Desk.Text("txtsplit"), "Red");
  EXPECT_EQ(play.Desk.FirstColumn("lstpeople"), (Names{"Ash", "Bea", "Suit", "Tie", "Raw"}));
  play.Desk.Pick("lstsplits", 3);
  EXPECT_FALSE(play.Desk.Enabled("cmddissolve"));
  EXPECT_FALSE(play.Desk.Enabled("cmdassign"));
  play.Desk.Type("txtsplit", " Bl\xFC ");
  play.Desk.Click("cmdsplit");
  EXPECT_EQ(play.Desk.Rows("lstsplits")[2], (Row{"Bl\xFC", "0"}));
  for (const char* name : {"Bea", "Ash", "Raw"}) play.Desk.Pick("lstpeople", name);
  play.Desk.Click("cmdassign");
  EXPECT_EQ(play.Desk.Rows("lstsplits")[0], (Row{"Red", "0"}));
  EXPECT_EQ(play.Desk.Rows("lstsplits")[2], (Row{"Bl\xFC", "3"}));
  play.Desk.Type("txtsplit", "Navy");
  play.Desk.Click("cmdsplit");
  EXPECT_EQ(play.Desk.Rows("lstsplits")[2], (Row{"Navy", "3"}));
  EXPECT_EQ(play.Desk.Rows("lstpeople")[0], (Row{"Ash", "Face", "80", "Main Event", "Navy"}));
  for (const char* name : {"Bea", "Raw"}) play.Desk.Pick("lstpeople", name);
  play.Desk.Click("cmdtakeout");
  EXPECT_EQ(Named(play.World().Workers(), "Ash").Split.View(), "None");
  play.Desk.ExpectAsk("Dissolve Navy?", "Are you sure? 2 people will be in no split.", true,
                      ui::Default::No);
  play.Desk.Click("cmddissolve");
  EXPECT_EQ(play.Desk.Rows("lstsplits")[2][0], "<<<Empty>>>");
  EXPECT_EQ(Named(play.World().Workers(), "Bea").Split.View(), "None");
  play.Desk.Click("cmdback");
  ExpectFaultless(play.World());
}

TEST(frmFed, OpensImprovesStaffsAndClosesACamp) {
  GameOnWorld play(Company());
  ScriptDesk& desk = play.Desk;
  const Promotion& player = play.World().Player();
  desk.Open("frmFed");
  EXPECT_EQ(desk.FirstColumn("cmbcamp"),
            (Names{"Poor, $25,000", "Average, $100,000", "Good, $400,000", "Superb, $1,000,000"}));
  EXPECT_EQ(desk.Tip("cmdheadcamp"), "There is no training camp.");
  desk.ExpectSay("Error!", "Type a name first.");
  desk.Click("cmdcamp");
  desk.Pick("cmbcamp", "Average, $100,000");
  for (const bool answer : {false, true}) {
    desk.Type("txtcamp", "The Shed");
    desk.ExpectAsk("Finance Report", "Pay $100,000 for the training camp?", answer);
    desk.Click("cmdcamp");
    EXPECT_EQ(player.CampName.View(), answer ? "The Shed" : "None");
  }
  EXPECT_EQ(desk.Text("lblmoney"), "Current finance: $400000");
  EXPECT_EQ(desk.Text("lblstatecamp"), "Average facilities");
  EXPECT_EQ(desk.FirstColumn("lstcamp"), (Names{"Raw"}));
  EXPECT_EQ(desk.FirstColumn("cmbcamp"), (Names{"Good, $400,000", "Superb, $1,000,000"}));
  desk.ExpectSay("Error!",
                 "The builders have been here in March already. They come once a month at most.");
  desk.Click("cmdraisecamp");
  play.World().Game().Today = Day{std::chrono::year{2026} / 4 / 1};
  desk.ExpectAsk("Finance Report", "Pay $400,000 for better facilities?", true);
  desk.Click("cmdraisecamp");
  EXPECT_EQ(desk.Text("lblmoney"), "Current finance: $0");
  EXPECT_EQ(player.CampFacilities, 3);
  desk.Type("txtcamp", "The Barn");
  desk.Click("cmdcamp");
  EXPECT_EQ(player.CampName.View(), "The Barn");
  desk.Click("cmdheadcamp");
  EXPECT_EQ(desk.Rows("lstpeople"), (std::vector<Row>{{"Coach", "61", "Trainer"}}));
  desk.OpenRow("lstpeople", "Coach");
  EXPECT_EQ(desk.Text("lblheadcamp"), "Coach");
  ExpectFaultless(play.World());
  desk.ExpectAsk("Close The Barn?", "Are you sure? 1 worker comes back to the roster.", true,
                 ui::Default::No);
  desk.Click("cmdclosecamp");
  EXPECT_EQ(Named(play.World().Workers(), "Raw").Position, kJobber);
  EXPECT_EQ(desk.Text("lblstatecamp"), "None");
  EXPECT_EQ(player.HeadTrainer, 0);
}

TEST(frmFed, OpensAndStaffsATerritory) {
  GameOnWorld play(Company());
  ScriptDesk& desk = play.Desk;
  desk.Open("frmFed");
  EXPECT_EQ(desk.Text("lblstatedev"), "None. One costs $250,000.");
  desk.Type("txtdev", std::string(36, 'x'));
  desk.ExpectSay("Error!", "A name has at most 35 letters. This one has 36.");
  desk.Click("cmddev");
  desk.Type("txtdev", "The Sticks");
  desk.ExpectAsk("Finance Report", "Pay $250,000 for the development territory?", true);
  desk.Click("cmddev");
  EXPECT_EQ(desk.Text("lblmoney"), "Current finance: $250000");
  EXPECT_EQ(desk.Text("lblstatedev"), "Open");
  EXPECT_EQ(desk.Text("cmddev"), "Rename");
  desk.Click("cmdheaddev");
  desk.OpenRow("lstpeople", "Pen");
  EXPECT_EQ(desk.Text("lblheaddev"), "Pen");
  ExpectFaultless(play.World());
}

SmallWorld Rich() {
  SmallWorld small;
  small.Network("Nine", [](Network& n) { n.PrimeAudience = 230; })
      .Promotion("CWA", kCult,
                 [](Promotion& p) {
                   p.Image = 57;
                   p.Money = -40000;
                   p.CampName = "The Shed";
                   p.CampFacilities = 2;
                   p.DevName = "The Sticks";
                   p.LoanAmount = 500000;
                   p.LoanMonths = 12;
                   p.LoanRepaid = 120000;
                 })
      .Worker("Year", kMainEvent, 80, [](Worker& w) { w.ContractMonths = 30, w.Wage = 20; })
      .Worker("Half", kMainEvent, 60, [](Worker& w) { w.ContractMonths = 6, w.Wage = 7; })
      .Worker("Ever", kMainEvent, 50,
              [](Worker& w) { w.ContractMonths = kNoEnd, w.Unsackable = true, w.Wage = 90; })
      .Worker("Gone", kMainEvent, 99, [](Worker& w) { w.ContractMonths = 0; })
      .Show("Friday Fire", "Friday", "Nine", [](Show& s) { s.ContractWeeks = 60, s.Rating3 = 200; })
      .Show("Sunday Slam", "Sunday", "Nine", [](Show& s) { s.ContractWeeks = 10; })
      .Sponsor("Gulp", [](Sponsor& s) { s.Pay = 100, s.ContractMonths = 6; })
      .Sponsor("Crunch", [](Sponsor& s) { s.Pay = 100, s.ContractMonths = 18; })
      .Event(3)
      .Event(4)
      .Promotion("NEW", kGlobal)
      .Crew(3)
      .Game("CWA");
  return small;
}

TEST(PromotionWorth, IsTheSumOfItsLines) {
  GameOnWorld play(Rich());
  play.Desk.Open("frmFedValue");
  const auto rows = play.Desk.Rows("lstworth");
  EXPECT_EQ(rows[0],
            (Row{"Name and image", "Cult, $8,000,000 x 107% for an image of 57%", "$8,560,000"}));
  Row dollars;
  for (const Row& row : rows) dollars.push_back(row[2]);
  // Fame: 12 * (12 * 80 * 80 + 6 * 60 * 60 + 12 * 50 * 50). Wages: who cannot be fired draws none.
  // Television: 300 * (200 * 52 + 230 * 10), the new show by what its slot can draw. Sponsors: two
  // Events a year and two shows a week, 25 from a main one, 10 from a minor one.
  EXPECT_EQ(dollars, (Row{"$8,560,000", "$1,540,800", "-$282,000", "$3,810,000", "$2,640,000",
                          "$175,000", "$0", "-$40,000", "-$380,000", "$16,023,800"}));
  EXPECT_EQ(play.Desk.Text("lblworth"), "CWA Wrestling is worth $16,023,800.");
}

TEST(PromotionWorth, FollowsTheSize) {
  std::vector<long long> names, fames;
  for (int size = kGlobal; size <= kBackyard; ++size) {
    const World world =
        SmallWorld().Promotion("CWA", size).Worker("Ash", kMainEvent, 10).Game("CWA");
    const std::vector<WorthLine> worth = PromotionWorth(world, world.Player());
    names.push_back(worth[0].Dollars);
    fames.push_back(worth[1].Dollars / (12 * 10 * 10));
    EXPECT_EQ(worth[3].Dollars + worth[4].Dollars + worth[5].Dollars + worth[7].Dollars, 0);
    EXPECT_EQ(worth[6].Dollars, world.Player().Money);
  }
  EXPECT_EQ(names, (std::vector{60000000LL, 20000000LL, 8000000LL, 3000000LL, 800000LL, 50000LL}));
  EXPECT_EQ(fames, (std::vector{40LL, 12LL, 12LL, 12LL, 15LL, 4LL}));
}

}  // namespace
}  // namespace grapplemont::test
