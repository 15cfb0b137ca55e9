#include <gtest/gtest.h>

#include "info/results.h"
#include "records/fields/fields.h"
#include "report/report.h"
#include "show/holdshow.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

using Row = std::vector<std::string>;
using std::chrono::days;

HistoryEntry& AddShow(World& world, Day on, HistoryKind kind, std::string_view name, int rating) {
  HistoryEntry entry;
  entry.On = on;
  entry.Kind = kind;
  entry.Promotion = world.PlayerUid();
  entry.Name = name;
  entry.Rating = rating;
  entry.Attendance = 500;
  entry.Viewers = 205;
  entry.Income = 9000;
  entry.Costs = 1000;
  entry.Size = int(kRegional);
  return world.History().Append(entry);
}

HeldMatch& AddMatch(World& world, Day on, int row) {
  HeldMatch match;
  match.On = on;
  match.Promotion = world.PlayerUid();
  match.Row = row;
  match.Style = kSingles;
  match.MatchType = kLadder;
  match.Rating = 60 + row;
  match.Winners = 1;
  match.Title = "None";
  match.Worker[0] = 1;
  match.Worker[1] = 2;
  match.Won = "CWA Hand 1";
  match.Lost = "CWA Hand 2";
  return world.Bouts().Append(match);
}

/// A show of last year, an Event and one that was called off, with two matches on the Event's card.
World Past() {
  World world = SmallWorld()
                    .Network("Nine")
                    .Promotion("CWA")
                    .Crew(8)
                    .Title("CWA Crown", "CWA Hand 1")
                    .Show("Sunday Slam", "Sunday", "Nine")
                    .Game("CWA");
  AddShow(world, kGameStart - days{90}, kPastTv, "Sunday Slam", 51);
  const Day event = kGameStart - days{7};
  AddShow(world, event, kPastEvent, "Winter Bash", 72);
  AddShow(world, kGameStart - days{1}, kPastTv, "Sunday Slam", 0).CalledOff = true;
  HistoryEntry month = world.History()[1];
  month.Kind = kPastMonth;
  world.History().Append(month);
  HeldMatch& dark = AddMatch(world, event, 1);
  dark.IsEvent = true;
  dark.Winners = 0;
  HeldMatch& main = AddMatch(world, event, 8);
  main.IsEvent = true;
  main.Title = "CWA Crown";
  main.Changed = true;
  AddMatch(world, kGameStart - days{8}, 1);
  world.MarkCommitted();
  return world;
}

TEST(TheResultsScreen, ShowsEveryShowAndItsCard) {
  GameOnWorld play(Past());
  play.Desk.Open("frmResults");
  EXPECT_EQ(play.Desk.Text("lblfacts"),
            "2 shows held, 1 called off. Rated 61% on average, 1500 people in all.");
  EXPECT_EQ(
      play.Desk.Rows("lstshows"),
      (std::vector<Row>{
          {"28/02/26", "Sunday Slam", "Saturday", "Called off", "", "", "", "$9,000", "$1,000"},
          {"22/02/26", "Winter Bash", "Sunday", "Event", "72", "500", "2. 05", "$9,000", "$1,000"},
          {"01/12/25", "Sunday Slam", "Monday", "Television", "51", "500", "2. 05", "$9,000",
           "$1,000"}}));
  EXPECT_TRUE(play.Desk.Rows("lstcard").empty());
  play.Desk.Pick("lstshows", 2);
  EXPECT_EQ(play.Desk.Rows("lstcard"),
            (std::vector<Row>{
                {"1", "CWA Hand 1 drew with CWA Hand 2", "1 vs 1, Ladder (dark match)", "", "61"},
                {"8", "CWA Hand 1 beat CWA Hand 2", "1 vs 1, Ladder", "Title change", "68"}}));
  EXPECT_FALSE(play.Desk.Enabled("cmdreport"));
  EXPECT_EQ(play.Desk.Tip("cmdreport"), "Only the reports of the last 12 shows are kept.");
}

TEST(TheResultsScreen, NarrowsByShowAndYear) {
  GameOnWorld play(Past());
  play.Desk.Open("frmResults");
  EXPECT_EQ(play.Desk.Rows("cmbyear"), (std::vector<Row>{{"All years"}, {"2026"}, {"2025"}}));
  EXPECT_EQ(play.Desk.Rows("cmbshow"),
            (std::vector<Row>{{"All shows"}, {"Sunday Slam"}, {"Winter Bash"}}));
  play.Desk.Pick("cmbshow", "Sunday Slam");
  EXPECT_EQ(play.Desk.Rows("lstshows").size(), 2u);
  play.Desk.Pick("cmbyear", "2025");
  ASSERT_EQ(play.Desk.Rows("lstshows").size(), 1u);
  EXPECT_EQ(play.Desk.Text("lblfacts"),
            "1 show held, 0 called off. Rated 51% on average, 500 people in all.");
  play.Desk.Pick("cmbshow", "Winter Bash");
  EXPECT_TRUE(play.Desk.Rows("lstshows").empty());
  EXPECT_FALSE(play.Desk.Enabled("cmdreport"));
}

TEST(TheReportColumn, ReadsAShowAgainFromItsRow) {
  GameOnWorld play(Past());
  World& world = play.World();
  std::vector<Segment> sheet(static_cast<std::size_t>(kTvRows), EmptySegment());
  sheet[0].Kind = kMatch;
  sheet[0].Style = kSingles;
  sheet[0].MatchType = kPlainSingles;
  sheet[0].Worker[0] = sheet[0].Winner = 3;
  sheet[0].Worker[1] = sheet[0].Loser = 4;
  sheet[0].Finish = sheet[0].Purpose = sheet[0].Aftermath = 1;
  world.Segments().Rewrite(sheet);
  LineMemory memory;
  StartShow(world, false, {});
  const ToldSegment told = RunNextSegment(world, &memory);
  CloseShow(world);
  LeaveShow(world);
  AddShow(world, world.Today(), kPastTv, "Sunday Slam", 40);
  play.Play.Commit();
  play.Reopen();
  play.Desk.Open("frmResults");
  play.Desk.Click("cmdreport");
  ASSERT_EQ(play.Desk.TopName(), "frmReports");
  EXPECT_EQ(play.Desk.Rows("lstreports"),
            (std::vector<Row>{{"01 March 2026", "Sunday Slam", "Rafe Tolland"}}));
  const std::string text = play.Desk.Text("txtreport");
  const std::string first = told.Report.substr(0, told.Report.find('\n'));
  EXPECT_NE(text.find(first), std::string::npos) << text;
  EXPECT_NE(text.find("CWA Hand 3 vs CWA Hand 4"), std::string::npos) << text;
  EXPECT_NE(text.find("Overall Rating " + std::to_string(told.Overall) + "%"), std::string::npos);
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmResults");
}

TEST(TheAwardsScreen, ShowsTheLatestYearAndTheOthersOnDemand) {
  World world = Past();
  for (const auto& [year, kind, winner] : {std::tuple{2024, kMatchOfTheYear, "Old"},
                                           {2025, kShowOfTheYear, "Slam"},
                                           {2025, kMatchOfTheYear, "New"}}) {
    YearAward award;
    award.On = Day{std::chrono::year{year} / 12 / 31};
    award.Kind = kind;
    award.Winner = winner;
    award.For = "Rated";
    world.Awards().Append(award);
  }
  world.MarkCommitted();
  GameOnWorld play(std::move(world));
  play.Desk.Open("frmAwards");
  EXPECT_EQ(play.Desk.Rows("lstawards"),
            (std::vector<Row>{{"2025", "Match of the Year", "New", "Rated"},
                              {"2025", "Show of the Year", "Slam", "Rated"}}));
  play.Desk.Pick("cmbyear", "All years");
  play.Desk.Pick("cmbaward", "Match of the Year");
  EXPECT_EQ(play.Desk.Rows("lstawards"),
            (std::vector<Row>{{"2025", "Match of the Year", "New", "Rated"},
                              {"2024", "Match of the Year", "Old", "Rated"}}));
}

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
