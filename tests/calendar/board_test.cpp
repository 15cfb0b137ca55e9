#include "calendar/board.h"

#include <gtest/gtest.h>

#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

TEST(BoardWarning, ComesBelowFifteenOnceInThirtyDaysAndNeverAtTheBottom) {
  World world = SmallWorld()
                    .Promotion("CWA", kCult, [](Promotion& p) { p.Image = 15; })
                    .Owner("Ruth Vane")
                    .Game("CWA");
  const auto warnings = [&] {
    int count = 0;
    for (const Mail& mail : world.News())
      count += mail.From == "Ruth Vane" && mail.Body.View().starts_with("Our image is down to 14%");
    return count;
  };
  BoardWarning(world);
  EXPECT_EQ(world.News().Count(), 0) << "nothing is in sight at 15";
  world.Player().Image = 14;
  BoardWarning(world);
  BoardWarning(world);
  EXPECT_EQ(warnings(), 1);
  world.Game().Today = kGameStart + std::chrono::days{29};
  BoardWarning(world);
  EXPECT_EQ(warnings(), 1);
  world.Game().Today = kGameStart + std::chrono::days{30};
  BoardWarning(world);
  EXPECT_EQ(warnings(), 2);
  world.Boards().Rewrite({});
  world.Player().Size = kBackyard;
  BoardWarning(world);
  EXPECT_EQ(warnings(), 2) << "nothing lies below";
}

}  // namespace
}  // namespace grapplemont::test
