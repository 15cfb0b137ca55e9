#include "calendar/fanmail.h"

#include <gtest/gtest.h>

#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// A show of two matches: the opener and the main event, by the numbers of the hands.
void Hold(World& world, int daysAgo, std::pair<int, int> opener, std::pair<int, int> main) {
  HeldMatch match{};
  match.On = world.Today() - std::chrono::days{daysAgo};
  match.Promotion = world.PlayerUid();
  match.Style = match.MatchType = 1;
  match.Winners = 1;
  int row = 0;
  for (const auto& [winner, loser] : {opener, main}) {
    match.Row = ++row;
    match.Worker[0] = winner;
    match.Worker[1] = loser;
    world.Bouts().Append(match);
  }
}

TEST(FanMail, ComesWhenAThingHasBeenTheSameThreeTimesAndNoMoreOften) {
  World world = SmallWorld().Promotion("CWA").Crew(8).Game("CWA");
  Hold(world, 15, {1, 2}, {3, 4});
  Hold(world, 8, {1, 5}, {4, 3});
  FanMail(world);
  EXPECT_EQ(world.News().Count(), 0);
  Hold(world, 1, {5, 1}, {3, 4});
  FanMail(world);
  ASSERT_EQ(world.News().Count(), 1);
  EXPECT_EQ(world.News()[1].From, "Fan Mail");
  EXPECT_TRUE(world.News()[1].Body.View().starts_with("Three shows, one main event."));
  world.Game().Today = world.Today() + std::chrono::days{1};
  FanMail(world);
  EXPECT_EQ(world.News().Count(), 1) << "the day after has no show behind it";
  Hold(world, 1, {1, 5}, {4, 3});
  EXPECT_EQ(ComplaintsAfter(world, world.Today() - std::chrono::days{1}).size(), 1u)
      << "the opener now; the main event has been complained of";
}

}  // namespace
}  // namespace grapplemont::test
