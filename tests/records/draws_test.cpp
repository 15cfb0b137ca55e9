#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "records/arithmetic.h"
#include "records/fields/outside.h"

namespace grapplemont {

namespace {

TEST(SeededDraws, AreTheSameOnEveryMachineAndSpendADrawWhereThereIsNoChoice) {
  SeededDraws draws(1), odd(1);
  for (const int n : {1, 0, -1, -32768}) EXPECT_EQ(1, odd.Draw(n));
  for (const int expected : {14, 14, 46, 3}) EXPECT_EQ(expected, draws.Draw(100));
  EXPECT_EQ(1, draws.Draw(1));
  for (const int expected : {92, 48, 8, 57, 64}) EXPECT_EQ(expected, draws.Draw(100));
  EXPECT_NE(MachineSeed(), MachineSeed());
}

TEST(SeededDraws, HitEveryNumberAboutAsOften) {
  SeededDraws draws(11);
  for (const int n : {2, 180, 2147483647})
    for (int i = 0; i < 2000; ++i) {
      const int drawn = draws.Draw(n);
      ASSERT_TRUE(drawn >= 1 && drawn <= n) << n;
    }
  constexpr int kFaces = 20, kDraws = 200000;
  std::array<std::array<int, kFaces>, kFaces> pairs{};
  std::size_t last = 0;
  for (int i = 0; i < kDraws; ++i) {
    const auto drawn = static_cast<std::size_t>(draws.Draw(kFaces) - 1);
    ++pairs.at(last).at(drawn);
    last = drawn;
  }
  // Far outside what chance allows, five times its spread and more.
  for (const auto& behind : pairs)
    for (const int count : behind) EXPECT_NEAR(kDraws / kFaces / kFaces, count, 130);
}

TEST(Arithmetic, TakesTheNearestSizeAndCutsSharesTowardsZero) {
  constexpr std::array<int, 6> kRows = {10, 20, 30, 40, 50, 60};
  EXPECT_EQ(BySize(kRows, kCult), 30);
  EXPECT_EQ(BySize(kRows, -32768), 10);
  EXPECT_EQ(BySize(kRows, 7), 60);
  EXPECT_EQ(PercentOf(19, 20), 3);
  EXPECT_EQ(PercentOf(-19, 20), -3);
  EXPECT_EQ(PercentOf(90000000, 120), 108000000);
}

}  // namespace

}  // namespace grapplemont
