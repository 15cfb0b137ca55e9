#include <gtest/gtest.h>

#include <algorithm>

#include "calendar/advanceday.h"
#include "rivals/rivals.h"
#include "session/newgame.h"
#include "support/defaultworld.h"
#include "support/smallworld.h"

// What rivals' cards tell beside what the days do.

namespace grapplemont::test {
namespace {

/// Whether a card of that day tells that the Title changed hands.
bool IsOnACard(const World& world, const Title& title) {
  return std::ranges::any_of(world.RivalCards(), [&](const CardMatch& match) {
    return match.Changed && match.Title == title.Name.View() &&
           Day(match.On) == Day(title.Reigns[0].Won) && match.Promotion == title.Owner &&
           match.Worker[0] == title.Holder;
  });
}

TEST(RivalCards, TellOfEveryTitleThatChangedHands) {
  World world = CopyOf(DefaultWorld());
  NewGame(world, {.PlayerName = "Sam Archer",
                  .PromotionUid = world.Promotions()[1].Uid,
                  .Start = Day{std::chrono::year{2026} / 3 / 1},
                  .SaveName = ""});
  int changes = 0;
  for (int day = 0; day < 60; ++day) {
    AdvanceDay(world, true);
    for (const Title& title : world.Titles()) {
      const Promotion* owner = world.FindPromotion(title.Owner);
      if (!owner || !IsRival(world, *owner) || title.Holder == 0 ||
          Day(title.Reigns[0].Won) != world.Today() - std::chrono::days{1})
        continue;
      ++changes;
      EXPECT_TRUE(IsOnACard(world, title)) << title.Name.Str();
    }
  }
  EXPECT_GT(changes, 20);
  int kept = 0, defences = 0;
  for (const CardMatch& match : world.RivalCards())
    kept += !match.Changed && !match.Title.View().empty();
  for (const TitleReign& reign : world.Reigns()) defences += reign.Defences;
  EXPECT_GT(kept, 20);
  EXPECT_EQ(defences, kept) << "each is counted for the reign that it was part of";
  EXPECT_GT(world.RivalCards().Count(), 1000);
  ExpectSound(world);
}

}  // namespace
}  // namespace grapplemont::test
