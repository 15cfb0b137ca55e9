#include "roster/moods.h"

#include <gtest/gtest.h>

#include "records/severing.h"
#include "roster/workerform.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

World Two() {
  return SmallWorld()
      .Promotion("CWA", kCult)
      .Worker("Bram Okafor", kMainEvent, 80, [](Worker& w) { w.Morale = 60; })
      .Promotion("NEW", kSmall)
      .Worker("Rival Ray", kMainEvent, 70)
      .Game("CWA");
}

std::string Marks(const World& world, const Worker& worker) {
  std::string text;
  for (const MonthMark& mark : MarksOf(world, worker))
    text += mark.Month + " " + std::to_string(mark.Over) + ", ";
  return text;
}

TEST(Months, AreKeptOnTheFirstForAYearAndGoWithTheWorker) {
  World world = Two();
  Worker& bram = world.Workers()[1];
  EXPECT_EQ(Marks(world, bram), "Today 80, ") << "of a slot that has kept none";
  for (int month = 0; month < 13; ++month) {
    world.Game().Today = Day{year{2026 + (2 + month) / 12} / ((2 + month) % 12 + 1) / 1};
    bram.Over = 50 + month;
    NoteMonths(world);
  }
  world.Game().Today = world.Today() + std::chrono::days{8};
  NoteMonths(world);
  bram.Over = 90;
  EXPECT_EQ(Marks(world, bram),
            "Apr 51, May 52, Jun 53, Jul 54, Aug 55, Sep 56, Oct 57, Nov 58, Dec 59, Jan 60, "
            "Feb 61, Mar 62, Today 90, ");
  EXPECT_EQ(world.Months().Count(), 2);
  ExpectSound(world);
  ForgetWorker(world, bram);
  EXPECT_EQ(world.Months().Count(), 1);
}

TEST(Moods, TellWhereThePresentMoraleComesFrom) {
  World world = Two();
  Worker& bram = world.Workers()[1];
  world.Game().Today = Day{year{2026} / 1 / 31};
  MoveMorale(world, bram, 5, kMoodMovedUp);  // too long ago
  world.Game().Today = Day{year{2026} / 2 / 1};
  MoveMorale(world, bram, 3, kMoodMatchGood);
  MoveMorale(world, bram, 0, kMoodWon);
  bram.Morale += 2;  // nobody has said why
  world.Game().Today = Day{year{2026} / 3 / 9};
  MoveMorale(world, bram, 3, kMoodMatchGood);
  MoveMorale(world, bram, -100, kMoodBooked);
  bram.Morale += 1;
  MoveMorale(world, world.Workers()[2], -7, kMoodLeftOut);  // somebody else's

  const MoodStory story = MoodStoryOf(world, bram);
  EXPECT_EQ(story.Since, (Day{year{2026} / 2 / 1}));
  EXPECT_EQ(story.Before, 65);
  const std::vector<MoodStep> steps = {{6, "in matches above their standing, twice"},
                                       {-73, "held a booking against you"},
                                       {3, "for other reasons"}};
  EXPECT_EQ(story.Steps, steps);
  int sum = story.Before;
  for (const MoodStep& step : story.Steps) sum += step.Change;
  EXPECT_EQ(sum, bram.Morale);
  EXPECT_TRUE(MoodStoryOf(world, world.Workers()[2]).Steps.empty());
  ExpectSound(world);

  while (!world.Moods().Full()) world.Moods().Append(world.Moods()[1]);
  MoveMorale(world, bram, 4, kMoodWon);
  EXPECT_EQ(world.Moods().Count(), LayoutOf<MoodChange>().Limit - 499);
  ForgetWorker(world, bram);
  EXPECT_EQ(world.Moods().Count(), 0);
}

}  // namespace
}  // namespace grapplemont::test
