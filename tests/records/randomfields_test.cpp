#include <gtest/gtest.h>

#include "records/checks/checkworld.h"
#include "support/randomworld.h"
#include "support/smallworld.h"

// Records whose fields hold anything are mended for good; files of any bytes are met in tests/fuzz.

namespace grapplemont {
namespace {

using test::Dice;

TEST(RandomFields, OfAllKindsAreMendedForGood) {
  for (std::uint64_t seed = 1; seed <= 100; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Dice dice(seed);
    World world = test::RandomData(seed);
    world.ForEachFile([&]<class T>(Records<T>& records) {
      for (T& record : records.Any())
        for (const Field& field : LayoutOf<T>().Fields)
          if (dice.OneIn(40))
            test::Scramble(dice, field, dice.From(0, field.Count - 1),
                           reinterpret_cast<std::byte*>(&record));
    });
    MendWorld(world);
    ASSERT_TRUE(CheckWorld(world).empty()) << CheckWorld(world)[0].Line();
    ASSERT_TRUE(MendWorld(world).empty());
  }
}

TEST(RandomData, IsTheSameForItsSeedAndFullOfThings) {
  World world = test::RandomData(7);
  test::ExpectSame(test::RandomData(7), world);
  EXPECT_GT(world.Workers().Count() + world.Shows().Count() + world.Titles().Count(), 10);
}

}  // namespace
}  // namespace grapplemont
