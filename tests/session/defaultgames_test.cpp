#include <gtest/gtest.h>

#include "records/fields/charset.h"
#include "session/newgame.h"
#include "support/defaultworld.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

// Every promotion of the default world may be chosen, at every difficulty.
TEST(DefaultGames, BeginWithoutFaultsInEveryChair) {
  std::uint64_t seed = 0;
  for (const Promotion& promotion : DefaultWorld().Promotions())
    for (int difficulty = kEasy; difficulty <= kRockHard; ++difficulty) {
      SCOPED_TRACE(promotion.Initials + " " + std::to_string(difficulty));
      World world = CopyOf(DefaultWorld());
      world.SetChance(std::make_unique<SeededDraws>(++seed));
      NewGameChoice choice;
      choice.PlayerName = "Pat Lee";
      choice.PromotionUid = promotion.Uid;
      choice.Difficulty = difficulty;
      choice.Start = std::chrono::year{2026} / 4 / 1;
      choice.SaveName = "First";
      for (const Fault& mended : NewGame(world, choice)) ADD_FAILURE() << ToUtf8(mended.Line());
      for (const Fault& fault : CheckWorld(world)) ADD_FAILURE() << ToUtf8(fault.Line());
      EXPECT_EQ(world.Player().Initials.View(), promotion.Initials.View());
      EXPECT_EQ(world.Game().Difficulty, difficulty);
      EXPECT_EQ(world.Workers().Count(), 750);
      EXPECT_EQ(world.News().Count(), 1) << "the Owner's welcome";
    }
}

}  // namespace
}  // namespace grapplemont::test
