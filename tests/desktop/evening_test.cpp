#include "desktop/evening.h"
#include "program/richworld.h"

namespace grapplemont::test {
namespace {

TEST(AnEvening, IsPlayedByMouse) {
  Evening(RichWorld().Build(), Evening::Hands::Mouse).All();
}

TEST(AnEvening, IsPlayedByKeysAlone) {
  Evening(RichWorld().Build(), Evening::Hands::Keys).All();
}

/// Where nobody behaves, days end with decisions that stand before everything else.
TEST(AnEvening, GoesOnThroughWhateverWaitsForADecision) {
  World world = RichWorld().Build();
  for (Worker& worker : world.Workers()) worker.Behaviour = 0;
  int decided = 0;
  for (const std::uint64_t seed : {2, 3, 5}) {
    SCOPED_TRACE(seed);
    Evening evening(world, seed % 2 ? Evening::Hands::Keys : Evening::Hands::Mouse, seed);
    evening.All();
    if (HasFailure()) return;
    decided += evening.Decided();
  }
  EXPECT_GT(decided, 0);
}

}  // namespace
}  // namespace grapplemont::test
