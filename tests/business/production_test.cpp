#include "business/finance.h"

#include <gtest/gtest.h>

#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

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

TEST(frmFedProd, StopsAtAHundred) {
  GameOnWorld play(At(94, 5'000'000));
  play.Desk.Open("frmFedProd");
  play.Desk.ExpectAsk("Finance Report", "Pay $1000000 for a 10% increase?", true);
  play.Desk.Click("cmdraise(3)");
  EXPECT_EQ(play.World().Player().Production, 100);
  EXPECT_EQ(play.World().Player().Money, 4'000'000);
  for (const char* button : {"cmdraise(1)", "cmdraise(2)", "cmdraise(3)"}) {
    EXPECT_FALSE(play.Desk.Enabled(button));
    EXPECT_EQ(play.Desk.Tip(button), "Production cannot be any better.");
  }
}

}  // namespace
}  // namespace grapplemont::test
