#include <gtest/gtest.h>

#include "info/infowords.h"
#include "info/morning.h"
#include "report/report.h"
#include "show/holdshow.h"
#include "support/gameonworld.h"

// What was told is read again. How past shows, awards and jobs are listed a golden month shows.

namespace grapplemont::test {
namespace {

World OnSunday() {
  return SmallWorld()
      .Network("Nine")
      .Promotion("CWA")
      .Crew(8)
      .Show("Sunday Slam", "Sunday", "Nine")
      .Game("CWA");
}

/// A sheet with one match.
void BookOne(World& world) {
  std::vector<Segment> sheet(static_cast<std::size_t>(kTvRows), EmptySegment());
  sheet[0].Kind = kMatch;
  sheet[0].Style = kSingles;
  sheet[0].MatchType = kPlainSingles;
  sheet[0].Worker[0] = sheet[0].Winner = 3;
  sheet[0].Worker[1] = sheet[0].Loser = 4;
  sheet[0].Finish = sheet[0].Purpose = sheet[0].Aftermath = 1;
  world.Segments().Rewrite(sheet);
}

TEST(TheMorningAfter, SaysFirstThatTheNightWasFlatAndWhatItTook) {
  int otherwise = 0;
  for (const bool isFlat : {false, true}) {
    GameOnWorld play(OnSunday());
    World& world = play.World();
    BookOne(world);
    world.SetChance(std::make_unique<SeededDraws>(5));
    StartShow(world, false, {});
    world.ShowRuns()[1].FlatNight = isFlat;
    RunNextSegment(world, nullptr);
    const int rating = CloseShow(world);
    const Morning morning = MorningOf(world, world.Today(), world.PlayerUid());
    const std::vector<RowRating> rows = RowRatings(*morning.Of(kNoteRating));
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].Rating, int(world.Segments()[1].Rating));
    play.Desk.Open("frmMorning");
    EXPECT_EQ(play.Desk.Visible("lblflat"), isFlat);
    if (!isFlat) {
      otherwise = rating;
      continue;
    }
    EXPECT_LT(rating, otherwise);
    const std::string told = "come to " + std::to_string(otherwise) + "%";
    EXPECT_NE(play.Desk.Text("lblflat").find(told), std::string::npos) << play.Desk.Text("lblflat");
  }
}

TEST(TheMorningAfter, SaysWhyNobodyHasBoughtAnEvent) {
  GameOnWorld play(OnSunday());
  World& world = play.World();
  BookOne(world);
  StartShow(world, false, {});
  RunNextSegment(world, nullptr);
  CloseShow(world);
  HistoryEntry held;
  held.On = world.Today();
  held.Kind = kPastEvent;
  held.Promotion = world.PlayerUid();
  world.History().Append(held);
  play.Desk.Open("frmMorning");
  EXPECT_EQ(play.Desk.Text("lblviewers"), "-");
  EXPECT_EQ(play.Desk.Text("lblnote(4)"), "No pay-per-view");
  EXPECT_EQ(play.Desk.Tip("cmdwhy(4)"), "No pay-per-view, so there are no steps.");
  EXPECT_EQ(play.Desk.Text("lblnote(3)"), "Not moved");
}

TEST(TheReportColumn, ReadsAShowAgainFromItsRow) {
  GameOnWorld play(OnSunday());
  World& world = play.World();
  BookOne(world);
  LineMemory memory;
  StartShow(world, false, {});
  const ToldSegment told = RunNextSegment(world, &memory);
  CloseShow(world);
  LeaveShow(world);
  HistoryEntry held;
  held.On = world.Today();
  held.Kind = kPastTv;
  held.Promotion = world.PlayerUid();
  held.Name = "Sunday Slam";
  held.Size = int(kRegional);
  world.History().Append(held);
  held.On = world.Today() - std::chrono::days{1};
  world.History().Append(held);
  play.Play.Commit();
  play.Reopen();
  play.Desk.Open("frmResults");
  EXPECT_FALSE(play.Desk.Enabled("cmdreport"));
  EXPECT_EQ(play.Desk.Tip("cmdreport"), "Only the reports of the last 12 shows are kept.");
  play.Desk.OpenRow("lstshows", 1);
  EXPECT_EQ(play.Desk.TopName(), "frmResults") << "a row opens what its button opens";
  play.Desk.OpenRow("lstshows", 2);
  ASSERT_EQ(play.Desk.TopName(), "frmReports");
  EXPECT_EQ(
      play.Desk.Rows("lstreports"),
      (std::vector<std::vector<std::string>>{{"01 Mar 2026", "Sunday Slam", "Rafe Tolland"}}));
  const std::string text = play.Desk.Text("txtreport");
  const std::string first = told.Report.substr(0, told.Report.find('\n'));
  EXPECT_NE(text.find(first), std::string::npos) << text;
  EXPECT_NE(text.find("CWA Hand 3 vs CWA Hand 4"), std::string::npos) << text;
  EXPECT_NE(text.find("Overall Rating " + std::to_string(told.Overall) + "%"), std::string::npos);
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmResults");
}

TEST(FillLine, EndsASentenceOnceBehindANameWithAStop) {
  for (const auto& [line, said] : {std::pair("No {show}. I went home.", "No Main St. I went home."),
                                   {"it was {show}.", "It was Main St."},
                                   {"{show}... I went home.", "Main St.... I went home."},
                                   {"Well ... {show}!", "Well ... Main St.!"}})
    EXPECT_EQ(FillLine(line, {{"show", "Main St."}}), said);
}

}  // namespace
}  // namespace grapplemont::test
