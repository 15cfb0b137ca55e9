#include "futures/spread.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

FirstMorning MorningAt(int size, int image) {
  return FirstMorning(SmallWorld()
                          .Promotion("CWA", size, [image](Promotion& p) { p.Image = image; })
                          .Crew(2)
                          .Title("CWA Crown", "CWA Hand 1")
                          .Game("CWA"));
}

WorldLife LifeOf(std::vector<Glimpse> seen, int endCode = 0, std::string champion = {}) {
  WorldLife life;
  life.Seen = std::move(seen);
  life.EndCode = endCode;
  life.Champions = {std::move(champion)};
  return life;
}
Glimpse Stood(int size, int image, int money = 0) {
  return {.Stands = true, .Size = size, .Image = image, .Money = money};
}

TEST(Spread, SaysWhereValuesLie) {
  std::vector<double> values;
  for (int value = 0; value <= 100; ++value) values.push_back(100 - value);
  values.push_back(std::nan(""));
  const Spread spread = SpreadOf(values);
  EXPECT_DOUBLE_EQ(spread.Low, 10);
  EXPECT_DOUBLE_EQ(spread.LowQuarter, 25);
  EXPECT_DOUBLE_EQ(spread.Middle, 50);
  EXPECT_DOUBLE_EQ(spread.HighQuarter, 75);
  EXPECT_DOUBLE_EQ(spread.High, 90);
  EXPECT_EQ(spread.Worlds, 101);
  EXPECT_DOUBLE_EQ(SpreadOf({1, 2}).Middle, 1.5);
  EXPECT_TRUE(std::isnan(SpreadOf({std::nan("")}).Middle));
}

TEST(Spread, CountsAnImageOnThroughTheClasses) {
  const FirstMorning morning = MorningAt(kCult, 63);
  const struct {
    Glimpse Is;
    double Value;
    const char* Text;
  } kCases[] = {{Stood(kCult, 63), 63, "63%"},
                {Stood(kCult, 0), 0, "0%"},
                {Stood(kCult, 100), 100, "100%"},
                {Stood(kNational, 10), 110, "National 10%"},
                {Stood(kGlobal, 100), 300, "Global 100%"},
                {Stood(kRegional, 90), -10, "Regional 90%"},
                {Stood(kSmall, 5), -195, "Small 5%"}};
  for (const auto& [is, value, text] : kCases) {
    EXPECT_EQ(ValueOf(is, Measure::Image, morning), value);
    EXPECT_EQ(MeasureText(value, Measure::Image, morning), text);
  }
  EXPECT_TRUE(std::isnan(ValueOf({}, Measure::Image, morning)));
  EXPECT_TRUE(std::isnan(ValueOf(Stood(kCult, 63), Measure::Rating, morning)));
  const auto borders = ClassBorders(-20, 120, morning);
  ASSERT_EQ(borders.size(), 2u);
  EXPECT_EQ(borders[0], (std::pair<double, std::string>(100, "National from here")));
  EXPECT_EQ(borders[1], (std::pair<double, std::string>(0, "Cult from here")));
}

TEST(Spread, CountsWhatCameToPass) {
  const FirstMorning morning = MorningAt(kCult, 63);
  const std::vector<WorldLife> lives = {
      LifeOf({Stood(kCult, 63), Stood(kCult, 70)}, 0, "Ann"),
      LifeOf({Stood(kCult, 63), Stood(kRegional, 90), Stood(kCult, 10)}, kEndBoard, "Ann"),
      LifeOf({Stood(kCult, 63), Stood(kNational, 10)}, 0, "Bea"),
      LifeOf({Stood(kCult, 63), Glimpse()}, kEndBankrupt)};
  std::vector<std::pair<std::string, int>> told;
  for (const Chance& chance : ChancesOf(lives, morning))
    told.emplace_back(chance.What, chance.Percent());
  EXPECT_EQ(told, (std::vector<std::pair<std::string, int>>{{"Dismissed by the board", 25},
                                                            {"Dismissed over a loan", 0},
                                                            {"Bankruptcy", 25},
                                                            {"A fall of class", 25},
                                                            {"A rise of class", 25}}));
  told.clear();
  const auto sizes = SizesAtLast({lives, {}});
  for (const Chance& chance : sizes[0]) told.emplace_back(chance.What, chance.Worlds);
  EXPECT_EQ(told,
            (std::vector<std::pair<std::string, int>>{{"National", 1}, {"Cult", 2}, {"Gone", 1}}));
  told.clear();
  for (const Chance& chance : ChampionsOf(lives, 0)) told.emplace_back(chance.What, chance.Worlds);
  EXPECT_EQ(told,
            (std::vector<std::pair<std::string, int>>{{"Ann", 2}, {"Bea", 1}, {"Vacant", 1}}));
  // Each part rounded by itself would come to 101 of 100.
  std::vector<WorldLife> eight;
  for (const char* champion : {"Ann", "Ann", "Ann", "Bea", "Bea", "Bea", "", ""})
    eight.push_back(LifeOf({Stood(kCult, 63)}, 0, champion));
  told.clear();
  for (const Chance& chance : ChampionsOf(eight, 0))
    told.emplace_back(chance.What, chance.Percent());
  EXPECT_EQ(told,
            (std::vector<std::pair<std::string, int>>{{"Ann", 38}, {"Bea", 37}, {"Vacant", 25}}));
  const std::vector<WorldLife> richer = {
      LifeOf({Stood(kCult, 63, 7)}), LifeOf({Stood(kCult, 63, 2)}), LifeOf({Stood(kCult, 63, 2)})};
  const std::vector<WorldLife> poorer = {
      LifeOf({Stood(kCult, 63, 5)}), LifeOf({Stood(kCult, 63, 2)}), LifeOf({Stood(kCult, 63, 1)})};
  EXPECT_EQ(PairsWon({richer, poorer}, Measure::Money, morning), std::pair(2, 0));
}

}  // namespace
}  // namespace grapplemont::test
