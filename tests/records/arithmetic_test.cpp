#include "records/arithmetic.h"

#include <gtest/gtest.h>

namespace grapplemont {
namespace {

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
