#include "business/screens/fedscreens.h"

#include <gtest/gtest.h>

#include "business/past.h"
#include "calendar/daysteps.h"
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

TEST(frmFed, LeadsToThePagesOfItsMoneyAndShowsWhatTheyChanged) {
  for (const auto& [button, screen, title] :
       {std::tuple("cmdadvertising", "frmFedMerch", "Advertising"),
        {"cmdmerch", "frmFedMerch", "Merchandising"},
        {"cmdprod", "frmFedProd", ""},
        {"cmdtickets", "frmTicket", ""},
        {"cmdsponsor", "frmFedSponsor", ""},
        {"cmdfinance", "frmFinance", ""},
        {"cmdvalue", "frmFedValue", ""}}) {
    GameOnWorld play(Company());
    play.Desk.Open("frmFed");
    play.Desk.Click(button);
    EXPECT_EQ(play.Desk.TopName(), screen) << button;
    if (*title) {
      EXPECT_EQ(play.Desk.Title(), title);
    }
    play.World().Player().Money = -1200;
    play.World().Player().Merchandising = 3;
    play.Desk.Close(*play.Desk.Top());
    EXPECT_EQ(play.Desk.TopName(), "frmFed");
    EXPECT_EQ(play.Desk.Text("lblmoney"), "Current finance: $-1200");
    EXPECT_EQ(play.Desk.Rows("lstspending")[1][1], "3% \\ $60000 p.m");
  }
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
  ExpectFaultless(play.World());
}

TEST(frmFed, GivesNoOfficeToSomebodyWhoLeftMeanwhile) {
  GameOnWorld play(Company());
  play.Desk.Open("frmFed");
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
  play.Desk.Pick("lstpeople", "Bea");
  play.Desk.Pick("lstpeople", "Raw");
  play.Desk.Click("cmdtakeout");
  EXPECT_EQ(Named(play.World().Workers(), "Ash").Split.View(), "None");
  EXPECT_EQ(Named(play.World().Workers(), "Bea").Split.View(), "Navy");
  play.Desk.ExpectAsk("Dissolve Navy?", "Are you sure? 2 people will be in no split.", false);
  play.Desk.Click("cmddissolve");
  play.Desk.ExpectAsk("Dissolve Navy?", kAnyText, true, ui::Default::No);
  play.Desk.Click("cmddissolve");
  EXPECT_EQ(play.Desk.Rows("lstsplits")[2][0], "<<<Empty>>>");
  EXPECT_EQ(Named(play.World().Workers(), "Bea").Split.View(), "None");
  play.Desk.Click("cmdback");
  ExpectFaultless(play.World());
}

TEST(frmFed, RefusesBadNamesOfSplits) {
  GameOnWorld play(Company());
  play.Desk.Open("frmFed");
  const World before = CopyOf(play.World());
  play.Desk.Pick("lstsplits", 2);
  for (const auto& [name, why] :
       {std::pair("", "Type a name first."),
        {"Red", "There is a split called Red already."},
        {"None", "\"None\" stands for nothing at all and cannot be a name."},
        {"Elevenlette", "A name has at most 10 letters. This one has 11."}}) {
    play.Desk.Type("txtsplit", name);
    play.Desk.ExpectSay("Error!", why);
    play.Desk.Click("cmdsplit");
  }
  ExpectSame(play.World(), before);
}

TEST(frmFed, TellsOfSomebodyWhoLeftBeforeHeWasAssigned) {
  GameOnWorld play(Company());
  play.Desk.Open("frmFed");
  for (const char* name : {"Bea", "Tie"}) play.Desk.Pick("lstpeople", name);
  Worker& bea = Named(play.World().Workers(), "Bea");
  bea.Employer = 2;
  play.Desk.ExpectSay("Error!", kAnyText);
  play.Desk.Click("cmdassign");
  EXPECT_NE(play.Desk.Boxes().back().Text.find("Bea"), std::string::npos);
  EXPECT_EQ(bea.Split.View(), "None");
  EXPECT_EQ(Named(play.World().Workers(), "Tie").Split.View(), "Red") << "the others went";
}

TEST(frmFed, OpensImprovesStaffsAndClosesACamp) {
  GameOnWorld play(Company());
  play.Desk.Open("frmFed");
  EXPECT_EQ(
      play.Desk.Rows("cmbcamp"),
      (std::vector<Row>{
          {"Poor, $25,000"}, {"Average, $100,000"}, {"Good, $400,000"}, {"Superb, $1,000,000"}}));
  EXPECT_EQ(play.Desk.Tip("cmdheadcamp"), "There is no training camp.");
  play.Desk.ExpectSay("Error!", "Type a name first.");
  play.Desk.Click("cmdcamp");
  play.Desk.Type("txtcamp", "The Shed");
  play.Desk.Pick("cmbcamp", "Superb, $1,000,000");
  play.Desk.ExpectSay("Error!",
                      "You cannot afford this! It costs $1,000,000, and you have $500,000.");
  play.Desk.Click("cmdcamp");
  play.Desk.Pick("cmbcamp", "Average, $100,000");
  play.Desk.ExpectAsk("Finance Report", "Pay $100,000 for the training camp?", false);
  play.Desk.Click("cmdcamp");
  EXPECT_EQ(play.World().Player().CampName.View(), "None");
  play.Desk.Type("txtcamp", "The Shed");
  play.Desk.ExpectAsk("Finance Report", "Pay $100,000 for the training camp?", true);
  play.Desk.Click("cmdcamp");
  EXPECT_EQ(play.Desk.Text("lblmoney"), "Current finance: $400000");
  EXPECT_EQ(play.Desk.Text("lblstatecamp"), "Average facilities");
  EXPECT_EQ(play.Desk.FirstColumn("lstcamp"), (Names{"Raw"}));
  EXPECT_EQ(play.Desk.Rows("cmbcamp"),
            (std::vector<Row>{{"Good, $400,000"}, {"Superb, $1,000,000"}}));
  play.Desk.ExpectSay("Error!",
                      "The builders have been here in March already. They come once a month at "
                      "most.");
  play.Desk.Click("cmdraisecamp");
  play.Reopen();
  play.World().Game().Today = Day{std::chrono::year{2026} / 4 / 1};
  play.Desk.Open("frmFed");
  play.Desk.ExpectAsk("Finance Report", "Pay $400,000 for better facilities?", true);
  play.Desk.Click("cmdraisecamp");
  EXPECT_EQ(play.Desk.Text("lblmoney"), "Current finance: $0");
  EXPECT_EQ(play.World().Player().CampFacilities, 3);
  play.Desk.Type("txtcamp", "The Barn");
  play.Desk.Click("cmdcamp");
  EXPECT_EQ(play.World().Player().CampName.View(), "The Barn");
  play.Desk.Click("cmdheadcamp");
  EXPECT_EQ(play.Desk.Rows("lstpeople"), (std::vector<Row>{{"Coach", "61", "Trainer"}}));
  play.Desk.OpenRow("lstpeople", "Coach");
  EXPECT_EQ(play.Desk.Text("lblheadcamp"), "Coach");
  ExpectFaultless(play.World());
  play.Desk.ExpectAsk("Close The Barn?", "Are you sure? 1 worker comes back to the roster.", true);
  play.Desk.Click("cmdclosecamp");
  EXPECT_EQ(Named(play.World().Workers(), "Raw").Position, kJobber);
  EXPECT_EQ(play.Desk.Text("lblstatecamp"), "None");
  EXPECT_EQ(play.World().Player().HeadTrainer, 0);
  ExpectFaultless(play.World());
}

TEST(frmFed, OpensStaffsAndClosesATerritory) {
  GameOnWorld play(Company());
  play.Desk.Open("frmFed");
  EXPECT_EQ(play.Desk.Text("lblstatedev"), "None. One costs $250,000.");
  play.Desk.Type("txtdev", std::string(36, 'x'));
  play.Desk.ExpectSay("Error!", "A name has at most 35 letters. This one has 36.");
  play.Desk.Click("cmddev");
  play.Desk.Type("txtdev", "The Sticks");
  play.Desk.ExpectAsk("Finance Report", "Pay $250,000 for the development territory?", true);
  play.Desk.Click("cmddev");
  EXPECT_EQ(play.Desk.Text("lblmoney"), "Current finance: $250000");
  EXPECT_EQ(play.Desk.Text("cmddev"), "Rename");
  play.Desk.Click("cmdheaddev");
  EXPECT_EQ(play.Desk.Rows("lstpeople"), (std::vector<Row>{{"Pen", "40", "Writer"}}));
  play.Desk.OpenRow("lstpeople", "Pen");
  Named(play.World().Workers(), "Bea").Position = kSentToDevelopment + kMidcard;
  play.Desk.ExpectAsk("Close The Sticks?", "Are you sure? 1 worker comes back to the roster.", true,
                      ui::Default::No);
  play.Desk.Click("cmdclosedev");
  EXPECT_EQ(Named(play.World().Workers(), "Bea").Position, kMidcard);
  EXPECT_EQ(play.World().Player().DevBooker, 0);
  play.Desk.Type("txtdev", "The Woods");
  play.Desk.ExpectSay("Error!", kAnyText);
  play.Desk.Click("cmddev");
  EXPECT_EQ(play.World().Player().DevName.View(), "None") << "not twice in a month";
}

}  // namespace
}  // namespace grapplemont::test
