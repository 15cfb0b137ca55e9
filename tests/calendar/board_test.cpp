#include "calendar/board.h"

#include <gtest/gtest.h>

#include "records/notes.h"
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

TEST(BoardWarning, SpeaksOfARiseOnTheMorningAfterItCameIntoSight) {
  World world = SmallWorld()
                    .Promotion("CWA", kCult, [](Promotion& p) { p.Image = 91; })
                    .Owner("Ruth Vane")
                    .Game("CWA");
  NoteStep(world, {kNoteImage, "CWA"}, 1, 89, "a show");
  NoteStep(world, {kNoteImage, "CWA"}, 2, 91, "another show");
  BoardWarning(world);
  EXPECT_EQ(world.News().Count(), 0) << "not before the next morning";
  world.Game().Today = kGameStart + std::chrono::days{1};
  BoardWarning(world);
  ASSERT_EQ(world.News().Count(), 1);
  EXPECT_TRUE(world.News()[1].Body.View().starts_with(
      "Our image is up to 91%. At 100% we rise to National level"));
  world.Game().Today = kGameStart + std::chrono::days{2};
  NoteStep(world, {kNoteImage, "CWA"}, 2, 93, "a third show");
  world.Game().Today = kGameStart + std::chrono::days{3};
  BoardWarning(world);
  EXPECT_EQ(world.News().Count(), 1) << "once is enough";
}

}  // namespace
}  // namespace grapplemont::test
