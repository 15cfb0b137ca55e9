#include "info/results.h"

#include <gtest/gtest.h>

#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

constexpr Day kBegan{std::chrono::year{2026} / 2 / 1};

/// The second job, begun in February.
SmallWorld SecondJob() {
  SmallWorld small;
  small.Promotion("CWA", kCult, [](Promotion& p) { p.Image = 61; })
      .Game("CWA", kGameStart, [](GameInfo& game) {
        game.PlayerName = "Pat Lee";
        game.Reputation = 74;
        game.Jobs[0].Started = kBegan;
        game.Jobs[0].StartImage = 40;
        game.Jobs[0].StartSize = kRegional;
        game.Jobs[1].Promotion = "Old House";
        game.Jobs[1].Started = Day{std::chrono::year{2024} / 5 / 6};
        game.Jobs[1].StartImage = 30;
        game.Jobs[1].StartSize = kBackyard;
        game.Jobs[1].EndImage = 70;
        game.Jobs[1].EndSize = kSmall;
      });
  return small;
}

HistoryEntry Past(int kind, Day on, const char* name, int rating, int income = 0, int costs = 0) {
  HistoryEntry entry;
  entry.On = on;
  entry.Kind = kind;
  entry.Promotion = 1;
  entry.Name = name;
  entry.Rating = rating;
  entry.Income = income;
  entry.Costs = costs;
  return entry;
}

TEST(Career, EndsAJobWhereTheNextBegins) {
  World world = SecondJob();
  const auto career = CareerOf(world);
  ASSERT_EQ(career.size(), 2U);
  EXPECT_TRUE(career[0].Present);
  EXPECT_EQ(career[0].Promotion, "CWA Wrestling");
  EXPECT_EQ(career[0].To, kGameStart);
  EXPECT_EQ(career[0].EndImage, 61) << "today's";
  EXPECT_EQ(career[0].EndSize, kCult);
  EXPECT_FALSE(career[1].Present);
  EXPECT_EQ(career[1].To, kBegan);
  EXPECT_EQ(career[1].EndImage, 70);
}

TEST(Career, CountsWhatThePresentJobHasBrought) {
  World world = SecondJob();
  const Day before = kBegan - std::chrono::days(1), after = kBegan + std::chrono::days(6);
  HistoryEntry off = Past(kPastTv, after, "Friday Fire", 99);
  off.CalledOff = true;
  HistoryEntry foreign = Past(kPastTv, after, "Elsewhere", 99);
  foreign.Promotion = 2;
  for (const HistoryEntry& entry :
       {Past(kPastTv, before, "Before", 99), Past(kPastTv, kBegan, "Friday Fire", 60),
        Past(kPastTv, after, "Friday Fire", 61), Past(kPastEvent, after, "The Gala", 80), off,
        foreign, Past(kPastMonth, after, "CWA Wrestling", 0, 500, 800),
        Past(kPastMonth, after, "CWA Wrestling", 0, 100, 0)})
    world.History().Append(entry);
  const JobRecord record = RecordOfJob(world);
  EXPECT_EQ(record.Shows, 2);
  EXPECT_EQ(record.Events, 1);
  EXPECT_EQ(record.CalledOff, 1);
  EXPECT_EQ(record.MeanRating, 67);
  EXPECT_EQ(record.BestShow, "The Gala");
  EXPECT_EQ(record.BestRating, 80);
  EXPECT_EQ(record.Months, 2);
  EXPECT_EQ(record.Profit, -200);
}

TEST(Career, HasWordsForEveryStanding) {
  const std::pair<int, const char*> kRows[] = {{100, "A legend of the business"},
                                               {90, "A legend of the business"},
                                               {89, "Respected"},
                                               {75, "Respected"},
                                               {74, "Well thought of"},
                                               {49, "Doubted"},
                                               {24, "Distrusted"},
                                               {1, "Distrusted"},
                                               {0, "Finished in the eyes of many"}};
  for (const auto& [reputation, words] : kRows)
    EXPECT_EQ(ReputationText(reputation), words) << reputation;
}

TEST(frmUser, TellsTheCareer) {
  GameOnWorld play(SecondJob());
  play.Desk.Open("frmMainScreen");
  play.Desk.Click("txtname");
  ASSERT_EQ(play.Desk.TopName(), "frmUser");
  EXPECT_EQ(play.Desk.FirstColumn("lstjobs"),
            std::vector<std::string>({"CWA Wrestling", "Old House"}));
  const auto rows = play.Desk.Rows("lstjobs");
  EXPECT_EQ(rows[0], std::vector<std::string>({"CWA Wrestling", "01 February 2026", "Today",
                                               "Regional", "Cult", "40", "61"}));
  EXPECT_EQ(rows[1][2], "01 February 2026");
  EXPECT_EQ(play.Desk.Text("txtuser"),
            "Pat Lee\nWell thought of.\nThe present job\nNothing has been told of it yet.");
  play.World().History().Append(Past(kPastTv, kBegan, "Friday Fire", 60));
  play.World().History().Append(Past(kPastMonth, kBegan, "CWA Wrestling", 0, 0, 4000));
  play.Desk.Click("cmdback");
  play.Desk.Click("txtname");
  EXPECT_EQ(play.Desk.Text("txtuser"),
            "Pat Lee\nWell thought of.\nThe present job\n1 television show and 0 Events held, 0 "
            "called off.\nMean rating 60%.\nBest: Friday Fire, 60%.\n1 month closed, a loss of "
            "$4,000 in all.");
}

}  // namespace
}  // namespace grapplemont::test
