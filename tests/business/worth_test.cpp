#include "business/worth.h"

#include <gtest/gtest.h>

#include <map>

#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

std::map<std::string, long long> Worth(const World& world) {
  std::map<std::string, long long> worth;
  for (const WorthLine& line : PromotionWorth(world, world.Player())) {
    EXPECT_FALSE(line.Why.empty()) << line.What;
    worth[line.What] = line.Dollars;
  }
  return worth;
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
  const World world = Rich();
  const auto worth = Worth(world);
  EXPECT_EQ(worth.at("Name and image"), 8000000LL * 107 / 100);
  EXPECT_EQ(worth.at("The popularity of the roster"),
            12LL * (12 * 80 * 80 + 6 * 60 * 60 + 12 * 50 * 50));
  EXPECT_EQ(worth.at("The roster's wages"), -(12 * 20 + 6 * 7) * 1000LL)
      << "who cannot be fired draws none";
  EXPECT_EQ(worth.at("Television deals"), 300LL * (200 * 52 + 230 * 10))
      << "a year at most; the new show by what its slot can draw";
  // Two Events a year and two shows a week: a main sponsor's 25, a minor one's 10 thousand each.
  EXPECT_EQ(worth.at("Sponsors"), (200 + 25 * 104) * 1000LL * 6 / 12 + (200 + 10 * 104) * 1000LL);
  EXPECT_EQ(worth.at("Training camp and territory"), (100000 + 250000) / 2);
  EXPECT_EQ(worth.at("Cash"), 0);
  EXPECT_EQ(worth.at("Debts"), -40000);
  EXPECT_EQ(worth.at("Loan"), -380000);
  long long sum = 0;
  for (const auto& [what, dollars] : worth) sum += dollars;
  EXPECT_EQ(SumOf(PromotionWorth(world, world.Player())), sum);
}

TEST(PromotionWorth, FollowsSizeAndImage) {
  struct Case {
    int Size, Image;
    long long Name, Fame;
  };
  constexpr Case kCases[] = {
      {kGlobal, 100, 90000000, 4000 * 12 * 40LL}, {kNational, 0, 10000000, 4000 * 12 * 12LL},
      {kCult, 50, 8000000, 4000 * 12 * 12LL},     {kRegional, 50, 3000000, 4000 * 12 * 12LL},
      {kSmall, 50, 800000, 4000 * 12 * 15LL},     {kBackyard, 0, 25000, 4000 * 12 * 4LL}};
  for (const Case& c : kCases) {
    World world = SmallWorld()
                      .Promotion("CWA", c.Size)
                      .Worker("Ash", kMainEvent, 60)
                      .Worker("Bea", kMainEvent, 20)
                      .Game("CWA");
    world.Player().Image = c.Image;
    const auto worth = Worth(world);
    EXPECT_EQ(worth.at("Name and image"), c.Name) << c.Size;
    EXPECT_EQ(worth.at("The popularity of the roster"), c.Fame) << c.Size;
    EXPECT_EQ(worth.at("Cash"), world.Player().Money);
    for (const char* none :
         {"Television deals", "Sponsors", "Training camp and territory", "Debts", "Loan"})
      EXPECT_EQ(worth.at(none), 0) << none;
  }
}

TEST(frmFedValue, ShowsEveryLineAndTheSum) {
  GameOnWorld play(Rich());
  play.Desk.Open("frmFedValue");
  const auto lines = PromotionWorth(play.World(), play.World().Player());
  const auto rows = play.Desk.Rows("lstworth");
  ASSERT_EQ(rows.size(), lines.size() + 1);
  EXPECT_EQ(rows[0],
            (std::vector<std::string>{
                "Name and image", "Cult, $8,000,000 x 107% for an image of 57%", "$8,560,000"}));
  EXPECT_EQ(rows[7], (std::vector<std::string>{"Debts", "What is overdrawn", "-$40,000"}));
  const std::string sum = "$16,023,800";
  EXPECT_EQ(SumOf(lines), 16023800);
  EXPECT_EQ(rows.back()[2], sum);
  EXPECT_EQ(play.Desk.Text("lblworth"), "CWA Wrestling is worth " + sum + ".");
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "");
}

}  // namespace
}  // namespace grapplemont::test
