#include <gtest/gtest.h>

#include "business/worth.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

using Row = std::vector<std::string>;

SmallWorld Company() {
  SmallWorld small;
  small
      .Promotion("CWA", kCult,
                 [](Promotion& p) { p.Money = 500000, p.Image = 61, p.Split[0] = "Red"; })
      .Owner("Ruth Vane")
      .Worker("Ash", kMainEvent, 80, [](Worker& w) { w.Split = "Red"; })
      .Worker("Bea", kMidcard, 60)
      .Worker("Raw", kTrainingCamp, 20)
      .Worker("Suit", kNonWrestler, 40, [](Worker& w) { w.Charisma = 72; })
      .Worker("Tie", kNonWrestler, 30)
      .Staff("Coach", kTrainer, 61)
      .Staff("Pen", kWriter, 40, [](Staff& s) { s.Booker = true; })
      .Promotion("NEW")
      .Worker("Zed")
      .Game("CWA");
  return small;
}

TEST(frmFed, MakesAndUnmakesACommissioner) {
  GameOnWorld play(Company());
  ScriptDesk& desk = play.Desk;
  desk.Open("frmFed");
  desk.Click("cmdcommissioner");
  EXPECT_EQ(desk.Rows("lstpeople"), (std::vector<Row>{{"Suit", "72", ""}, {"Tie", "50", ""}}));
  EXPECT_EQ(desk.Tip("cmdnobody"), "Nobody holds the office now.");
  desk.OpenRow("lstpeople", "Tie");
  EXPECT_EQ(desk.Text("lblcommissioner"), "Tie");
  desk.Click("cmdcommissioner");
  EXPECT_EQ(desk.Selected("lstpeople"), std::vector<int>{2});
  EXPECT_EQ(desk.Tip("cmddoit"), "That is who holds the office now.");
  desk.Click("cmdnobody");
  EXPECT_EQ(desk.Text("lblcommissioner"), "None");
  desk.Click("cmdcommissioner");
  desk.Pick("lstpeople", "Suit");
  Named(play.World().Workers(), "Suit").Employer = 0;
  desk.ExpectSay("Error!", "Suit is not one of your non-wrestlers.");
  desk.Click("cmddoit");
  EXPECT_EQ(desk.FirstColumn("lstpeople"), (Names{"Tie"}));
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
  desk.ExpectSay("Error!",
                 "The builders have been here in March already. They come once a month at most.");
  desk.Click("cmdraisecamp");
  play.World().Game().Today = Day{std::chrono::year{2026} / 4 / 1};
  desk.ExpectAsk("Finance Report", "Pay $400,000 for better facilities?", true);
  desk.Click("cmdraisecamp");
  EXPECT_EQ(desk.Text("lblmoney"), "Current finance: $0");
  EXPECT_EQ(player.CampFacilities, 3);
  desk.Click("cmdheadcamp");
  desk.OpenRow("lstpeople", "Coach");
  EXPECT_EQ(desk.Text("lblheadcamp"), "Coach");
  ExpectSound(play.World());
  desk.ExpectAsk("Close The Shed?", "Are you sure? 1 worker comes back to the roster.", true,
                 ui::Default::No);
  desk.Click("cmdclosecamp");
  EXPECT_EQ(desk.Text("lblstatecamp"), "None");
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
            (Row{"Name and image", "$8,560,000", "Cult, $8,000,000 x 107% for an image of 57%"}));
  Row dollars;
  for (const Row& row : rows) dollars.push_back(row[1]);
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
