#include <gtest/gtest.h>
#include <array>
#include <vector>

#include "records/arithmetic.h"
#include "records/fields/outside.h"

namespace grapplemont {

namespace {

std::vector<int> Draw(SeededDraws& draws, int n, int count) {
  std::vector<int> drawn;
  for (int i = 0; i < count; ++i) drawn.push_back(draws.Draw(n));
  return drawn;
}

TEST(SeededDraws, AreTheSameOnEveryMachine) {
  SeededDraws draws(1);
  EXPECT_EQ((std::vector<int>{14, 14, 46, 3, 36, 92, 48, 8, 57, 64}), Draw(draws, 100, 10));
}

TEST(SeededDraws, RepeatWithTheirSeedAndDifferWithAnother) {
  SeededDraws a(77), b(77), c(78);
  const auto drawn = Draw(a, 1000, 50);
  EXPECT_EQ(drawn, Draw(b, 1000, 50));
  EXPECT_NE(drawn, Draw(c, 1000, 50));
}

TEST(SeededDraws, StayWithinOneToN) {
  SeededDraws draws(3);
  for (const int n : {2, 3, 7, 180, 10000, 2147483647})
    for (int i = 0; i < 2000; ++i) {
      const int drawn = draws.Draw(n);
      ASSERT_GE(drawn, 1) << n;
      ASSERT_LE(drawn, n) << n;
    }
}

TEST(SeededDraws, GiveOneWhereThereIsNoChoiceAndSpendADrawOnIt) {
  SeededDraws a(5), b(5);
  for (const int n : {1, 0, -1, -32768}) {
    EXPECT_EQ(1, a.Draw(n));
    b.Draw(100);
  }
  EXPECT_EQ(Draw(b, 1000, 5), Draw(a, 1000, 5));
}

TEST(SeededDraws, HitEveryNumberAboutAsOften) {
  constexpr int kFaces = 20, kDraws = 200000;
  SeededDraws draws(11);
  std::array<int, kFaces + 1> counts{};
  std::array<std::array<int, kFaces + 1>, kFaces + 1> pairs{};
  int last = 1;
  for (int i = 0; i < kDraws; ++i) {
    const int drawn = draws.Draw(kFaces);
    ++counts[static_cast<std::size_t>(drawn)];
    ++pairs[static_cast<std::size_t>(last)][static_cast<std::size_t>(drawn)];
    last = drawn;
  }
  // Far outside what chance allows, five times its spread and more.
  for (int face = 1; face <= kFaces; ++face) {
    EXPECT_NEAR(kDraws / kFaces, counts[static_cast<std::size_t>(face)], 500) << face;
    for (int next = 1; next <= kFaces; ++next)
      EXPECT_NEAR(kDraws / kFaces / kFaces,
                  pairs[static_cast<std::size_t>(face)][static_cast<std::size_t>(next)], 130)
          << face << " then " << next;
  }
}

TEST(MachineSeed, IsAnotherEachTime) {
  EXPECT_NE(MachineSeed(), MachineSeed());
}

TEST(Arithmetic, ASizeOutsideTheSixCountsAsTheNearest) {
  constexpr std::array<int, 6> kRows = {10, 20, 30, 40, 50, 60};
  struct {
    int Size, Row;
  } const cases[] = {{kGlobal, 10}, {kCult, 30}, {kBackyard, 60}, {0, 10},
                     {-32768, 10},  {7, 60},     {32767, 60}};
  for (const auto& at : cases) EXPECT_EQ(BySize(kRows, at.Size), at.Row) << at.Size;
}

TEST(Arithmetic, AShareIsCutTowardsZeroAndHoldsForTheLargestSums) {
  EXPECT_EQ(PercentOf(19, 20), 3);
  EXPECT_EQ(PercentOf(-19, 20), -3);
  EXPECT_EQ(PercentOf(90000000, 120), 108000000);
  EXPECT_EQ(PercentOf(-90000000, 75), -67500000);
}

}  // namespace

}  // namespace grapplemont
