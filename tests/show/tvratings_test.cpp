#include "show/attendance.h"

#include <gtest/gtest.h>

#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

struct Band {
  int Low, High, Base, Draw;
};

TEST(BuyRate, IsTheWholeTable) {
  std::vector<std::vector<Band>> bySize = {
      {{0, 4, 80, 4}, {5, 9, 85, 4}, {10, 14, 94, 4}},
      {{0, 19, 40, 4},
       {20, 29, 44, 4},
       {30, 39, 48, 4},
       {40, 49, 53, 4},
       {50, 59, 57, 4},
       {60, 69, 62, 4},
       {70, 79, 66, 4},
       {80, 100, 76, 4}},
      {{0, 19, 20, 3},
       {20, 29, 23, 3},
       {30, 39, 25, 3},
       {40, 49, 27, 3},
       {50, 59, 29, 3},
       {60, 69, 31, 3},
       {70, 79, 34, 3},
       {80, 100, 36, 4}},
      {{0, 39, 1, 3},
       {40, 49, 3, 3},
       {50, 59, 6, 3},
       {60, 69, 9, 3},
       {70, 79, 12, 3},
       {80, 100, 16, 4}},
      {{0, 100, 0, 0}},
      {{0, 100, 0, 0}},
  };
  int base = 100;  // a Global promotion's goes up by 6 for every 5 of the image
  for (int low = 15; low <= 95; low += 5, base += 6)
    bySize[0].push_back({low, low == 95 ? 100 : low + 4, base, 4});
  EXPECT_EQ(bySize[0].back().Base, 196);
  for (int size = kGlobal; size <= kBackyard; ++size)
    for (const Band& band : bySize[static_cast<std::size_t>(size - 1)])
      for (const int image : {band.Low, band.High}) {
        EXPECT_EQ(BuyRateBase(size, image).Base, band.Base) << size << " at " << image;
        EXPECT_EQ(BuyRateBase(size, image).Draw, band.Draw) << size << " at " << image;
      }
}

TEST(BuyRate, FollowsAPoorEconomyOnly) {
  constexpr int kCases[][2] = {{105, 123}, {100, 123}, {30, 123}, {29, 110}, {20, 110},
                               {19, 98},   {10, 98},   {9, 86},   {0, 86},   {-6, 86}};
  for (const auto& [economy, rate] : kCases) EXPECT_EQ(BuyRateByEconomy(123, economy), rate);
}

TEST(BuyRate, DrawsOnceAndPaysByTheHundredth) {
  World world = SmallWorld().Promotion("CWA", kNational).Game("CWA");
  Promotion& promotion = world.Player();
  promotion.Image = 80;
  world.Game().Economy = 15;
  ScriptDraws(world, {{4, 3}});
  EXPECT_EQ(BuyRate(world, promotion), 63) << "79 by 0.8";
  promotion.Size = kSmall;
  EXPECT_EQ(BuyRate(world, promotion), 0);
  EXPECT_EQ(PpvIncome(100), 2'500'000);
}

TEST(TvRating, IsTheWholeTable) {
  constexpr int kEdges[][2] = {{0, 20},  {21, 30}, {31, 40}, {41, 50}, {51, 60},
                               {61, 70}, {71, 80}, {81, 90}, {91, 100}};
  constexpr int kBase[][9] = {{540, 560, 580, 600, 640, 680, 720, 760, 800},
                              {300, 330, 360, 390, 420, 450, 480, 500, 520},
                              {140, 160, 180, 200, 220, 240, 260, 280, 300},
                              {40, 50, 60, 70, 80, 90, 100, 120, 140},
                              {1, 2, 4, 6, 8, 9, 10, 20, 30},
                              {1, 1, 1, 1, 1, 1, 1, 1, 1}};
  const auto draw = [](int size, int band) {
    if (size == kBackyard || (size == kSmall && band < 2)) return 2;
    return size == kSmall ? 5 : 10;
  };
  for (int size = kGlobal; size <= kBackyard; ++size)
    for (int band = 0; band < 9; ++band)
      for (const int image : kEdges[band]) {
        EXPECT_EQ(TvRatingBase(size, image).Base, kBase[size - 1][band]) << size << " " << image;
        EXPECT_EQ(TvRatingBase(size, image).Draw, draw(size, band)) << size << " " << image;
      }
}

TEST(TvRating, FollowsTheEconomyAboveTheBackyard) {
  constexpr int kCases[][2] = {{104, 246}, {100, 246}, {91, 246}, {90, 225}, {81, 225}, {80, 205},
                               {20, 205},  {19, 184},  {10, 184}, {9, 164},  {0, 164},  {-3, 164}};
  for (const auto& [economy, rating] : kCases) {
    EXPECT_EQ(TvRatingByEconomy(205, kSmall, economy), rating) << economy;
    EXPECT_EQ(TvRatingByEconomy(205, kBackyard, economy), 205) << economy;
  }
  World world = SmallWorld().Promotion("CWA", kRegional).Game("CWA");
  world.Game().Economy = 5;
  ScriptDraws(world, {{10, 4}, {2, 2}});
  EXPECT_EQ(TvBaseRating(world, kRegional, 81), 99) << "124 by 0.8";
  EXPECT_EQ(TvBaseRating(world, kBackyard, 81), 3);
}

}  // namespace
}  // namespace grapplemont::test
