#include <gtest/gtest.h>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "records/severing.h"
#include "report/report.h"
#include "show/boutbook.h"
#include "show/holdshow.h"
#include "show/ratings.h"
#include "show/recap.h"
#include "show/runsegment.h"
#include "showrig.h"
#include "storylines/lineages.h"

namespace grapplemont::test {
namespace {

/// Ash to Hal and hands up to 30.
World House() {
  SmallWorld cast = Cast(30);
  return OnTheAir(cast.Team("The Dots", "Cal", "Dot"), std::make_unique<SteadyDraws>(2));
}

Segment Won(Segment match, int winner, int loser, std::string_view title = "None") {
  match.Winner = winner;
  match.Loser = loser;
  match.Finish = winner == 0 ? kDoubleCountOut : kClean;
  match.Purpose = match.Aftermath = 1;
  match.TitleName = title;
  return match;
}

Segment Singles(int winner, int loser, std::string_view title = "None") {
  return Won(SegmentOf(kMatch, kSingles, kPlainSingles, {winner, loser}), winner, loser, title);
}

Segment Words(int speaker) {
  Segment words = SegmentOf(kInterview, 1, 1, {speaker});
  words.Purpose = 1;
  return words;
}

void Book(World& world, const std::vector<Segment>& rows) {
  std::vector<Segment> sheet(static_cast<std::size_t>(kTvRows), EmptySegment());
  std::copy(rows.begin(), rows.end(), sheet.begin());
  world.Segments().Rewrite(sheet);
}

void Hold(World& world, const std::vector<Segment>& rows, LineMemory* memory = nullptr) {
  Book(world, rows);
  HoldShow(world, false, {}, 0, memory);
  LeaveShow(world);
}

std::string Told(const HeldMatch& match) {
  std::string text = std::to_string(match.Row) + ": " + match.Won.Str() +
                     (match.Winners > 0 ? " beat " : " drew with ") + match.Lost.Str();
  if (!(match.Title == "None")) text += " for " + match.Title.Str();
  if (match.Changed) text += ", new";
  if (match.Feud[0] != 0) text += ", feud";
  return text;
}

const MatchTally& TallyOf(const World& world, std::string_view name) {
  for (const MatchTally& tally : world.Tallies())
    if (tally.Name == name) return tally;
  throw std::out_of_range("no tally of " + std::string(name));
}

std::string Counts(const World& world, std::string_view name) {
  const MatchTally& tally = TallyOf(world, name);
  return std::to_string(tally.Won) + "-" + std::to_string(tally.Lost) + "-" +
         std::to_string(tally.Drawn) + "/" + std::to_string(tally.ForTitles);
}

TEST(Matches, AreWrittenDownAsTheyWereFought) {
  World world = House();
  Hold(world, {Singles(2, 1, "Crown"), Words(3),
               Won(SegmentOf(kMatch, kTag, 1, {3, 4, 7, 8}), 3, 7, "Ropes"), Singles(5, 6),
               Won(SegmentOf(kMatch, kSpecial, 2, UidsUpTo(20)), 9, kNoLoser),
               Won(SegmentOf(kMatch, kSingles, kPlainSingles, {7, 8}), 0, kNoLoser)});
  std::string told;
  for (const HeldMatch& match : world.Bouts()) told += Told(match) + "\n";
  const HeldMatch& royal = world.Bouts()[4];
  EXPECT_EQ(told,
            "1: Bea beat Ash for Crown, new\n3: The Dots beat Gus \\ Hal for Ropes\n"
            "4: Eli beat Fay, feud\n5: Hand 9 beat " +
                royal.Lost.Str() + ", feud\n6: Gus drew with Hal\n");
  EXPECT_TRUE(royal.Lost.Str().ends_with(" more")) << "nineteen names find no room: " << told;
  EXPECT_EQ(royal.Winners, 1);
  EXPECT_EQ(royal.Worker[0], 9);
  EXPECT_EQ(royal.Worker[19], 20);
  EXPECT_EQ(royal.Worker[20], 0);
  EXPECT_EQ(world.Bouts()[1].Rating, world.Segments()[1].Rating);
  ExpectSound(world);
}

TEST(Matches, LoseTheUidOfWhoeverLeavesTheWorldAndKeepHisName) {
  World world = House();
  Hold(world, {Singles(2, 1, "Crown"), Singles(5, 6)});
  UpdateReigns(world);
  for (const int uid : {2, 5}) {
    Worker& gone = *world.FindWorker(uid);
    SeverWorker(world, gone);
    ForgetWorker(world, gone);
    gone.Name = "Somebody Else";
    gone.ShortName = "Else";
  }
  EXPECT_EQ(Told(world.Bouts()[1]), "1: Bea beat Ash for Crown, new");
  EXPECT_EQ(world.Bouts()[1].Worker[0], 0);
  EXPECT_EQ(world.Bouts()[2].Feud[0], 0);
  EXPECT_EQ(TallyOf(world, "Bea").Worker, 0);
  UpdateReigns(world);
  for (const TitleReign& reign : world.Reigns()) EXPECT_NE(reign.Worker, 2);
}

TEST(Matches, MakeRoomForNewOnesInAFullFile) {
  World world = House();
  std::vector<HeldMatch> full(static_cast<std::size_t>(LayoutOf<HeldMatch>().Limit));
  world.Bouts().Rewrite(full);
  std::vector<MatchTally> tallies(static_cast<std::size_t>(LayoutOf<MatchTally>().Limit));
  for (std::size_t i = 0; i < tallies.size(); ++i) {
    tallies[i].Worker = static_cast<int>(i % 20) + 9;
    tallies[i].Promotion = 5;
    tallies[i].Last = kGameStart - std::chrono::days{20000 - static_cast<int>(i)};
  }
  world.Tallies().Rewrite(tallies);
  Hold(world, {Singles(2, 1)});
  EXPECT_EQ(world.Bouts().Count(), LayoutOf<HeldMatch>().Limit - 500 + 1);
  EXPECT_EQ(Told(world.Bouts()[world.Bouts().Count()]), "1: Bea beat Ash");
  EXPECT_EQ(Counts(world, "Bea"), "1-0-0/0");
  EXPECT_EQ(Counts(world, "Ash"), "0-1-0/0");
}

// ---- The report column -------------------------------------------------------------------------

TEST(Reports, AreKeptInTheWordsInWhichTheyWereTold) {
  World world = House();
  world.Game().Reporter = kTolland;
  Book(world, {Singles(2, 1, "Crown"), Words(3), Singles(5, 6)});
  LineMemory memory;
  StartShow(world, false, {});
  std::string told, kept;
  while (NextSegment(world) != 0) told += RunNextSegment(world, &memory).Report + "\n";
  CloseShow(world);
  LeaveShow(world);
  const auto shows = ShowsInTheColumn(world);
  int verdicts = 0;
  ASSERT_EQ(shows.size(), 1u);
  EXPECT_EQ(shows[0].Name, "Sunday Slam");
  EXPECT_EQ(shows[0].Voice, kTolland);
  for (const ReportText& text : ReportOf(world, shows[0].On, shows[0].Promotion)) {
    if (text.Kind == kProse) kept += text.Words + "\n";
    verdicts += text.Kind == kVerdict;
    if (text.Kind == kWhoMet && text.Row == 1) {
      EXPECT_EQ(text.Words, "Bea vs Ash");
    }
  }
  EXPECT_EQ(kept, told);
  EXPECT_EQ(verdicts, 2);
  EXPECT_FALSE(HasReport(world, shows[0].On, 99));
  ExpectSound(world);
}

TEST(Reports, AreOfTheLastShowsAlone) {
  World world = House();
  LineMemory memory;
  int most = 0;
  for (int week = 0; week < kKeptShows + 8; ++week) {
    Hold(world, {Singles(2, 1), Singles(4, 3), Words(5)}, &memory);
    if (week < kKeptShows + 4) most = std::max(most, world.Reports().Count());
    world.Game().Today = world.Today() + std::chrono::days{7};
  }
  const auto shows = ShowsInTheColumn(world);
  ASSERT_EQ(static_cast<int>(shows.size()), kKeptShows);
  EXPECT_EQ(shows.front().On, world.Today() - std::chrono::days{7}) << "the latest first";
  EXPECT_EQ(shows.back().On, world.Today() - std::chrono::days{7 * kKeptShows});
  for (const KeptShow& show : shows) EXPECT_FALSE(ReportOf(world, show.On, show.Promotion).empty());
  EXPECT_LE(world.Reports().Count(), most * 5 / 4) << "old places are taken again";
  ExpectSound(world);
}

TEST(Reports, OutliveAnythingThatTheirFileMayHold) {
  World world = House();
  std::vector<ReportPart> parts(3);
  parts[0].Kind = 77;
  parts[0].Row = -4;
  parts[1].Kind = kProse;
  parts[1].Join = kAfterBlank;
  parts[1].Row = 3;
  parts[1].On = kGameStart;
  parts[1].Promotion = 1;
  parts[1].Words = "and so on";
  world.Reports().Rewrite(parts);
  ASSERT_EQ(ShowsInTheColumn(world).size(), 2u);
  EXPECT_EQ(ReportOf(world, kGameStart, 1).at(0).Words, "and so on");
  LineMemory memory;
  Hold(world, {Singles(2, 1)}, &memory);
  EXPECT_EQ(ShowsInTheColumn(world)[0].Name, "") << "the day had a report already";
}

TEST(Pieces, AreCutBetweenWordsAndLoseNothing) {
  const std::string tail(23, 'w');
  for (const std::string& text : {std::string("one two three four five six"), std::string("a\n\nb"),
                                  tail + " tail", std::string("two  blanks  in the  middle of it")})
    for (const std::size_t width : {5u, 8u, 200u}) {
      std::string joined;
      for (const ReportPiece& piece : CutToPieces(text, width)) {
        EXPECT_LE(piece.Words.size(), width) << text;
        joined += piece.Join == kAfterBlank ? " " : piece.Join == kAfterBreak ? "\n" : "";
        joined += Text<200>(piece.Words).View();  // as it is stored
      }
      EXPECT_EQ(joined, text) << width;
    }
  EXPECT_EQ(CutToPieces("one two three", 8).at(0).Words, "one two");
}

/// A show that has closed with these Segments, rated 10, 20 and so on.
World Closed(const std::vector<Segment>& segments) {
  World world =
      Cast(30).Network("Nine").Show("Fire", DayName(kGameStart), "Nine").Event(3, 2).Game("CWA");
  std::vector<Segment> sheet = segments;
  for (std::size_t i = 0; i < sheet.size(); ++i) sheet[i].Rating = 10 * (static_cast<int>(i) + 1);
  world.Segments().Rewrite(sheet);
  ShowRun run;
  run.Stage = kShowClosed;
  run.Current = static_cast<int>(sheet.size());
  world.ShowRuns().Rewrite({run});
  return world;
}

TEST(Recap, TellsEachResultInALine) {
  const World world =
      Closed({Won(MatchOf(kSingles), 2, 1), Won(MatchOf(kThreeTeams, 2), 3, 1),
              Won(MatchOf(kFourTeams, 2), 8, 1), Won(MatchOf(kSpecial, 1), 5, kNoLoser),
              Won(MatchOf(kSpecial, 2), 6, kNoLoser), Won(MatchOf(kSpecial, 3), 7, kNoLoser),
              EmptySegment(), SegmentOf(kInterview, 1, 0, {4, 5})});
  const ShowRecap recap = RecapOf(world);
  std::string told;
  for (const RecapLine& line : recap.Lines)
    told +=
        std::to_string(line.Number) + " " + line.What + " " + std::to_string(line.Rating) + "\n";
  EXPECT_EQ(told,
            "1 Bea over Ash 10\n"
            "2 Cal \\ Dot won a triangle tag match 20\n"
            "3 Gus \\ Hal won a four-way tag match 30\n"
            "4 Eli won a Royal Rumble 40\n"
            "5 Fay won a 20 Man Battle Royal 50\n"
            "6 Gus won a 10 Man Battle Royal 60\n"
            "8 Interview with Dot 80\n");
  EXPECT_EQ(recap.Best, "Interview with Dot, 80%");
  EXPECT_EQ(recap.Worst, "Bea over Ash, 10%");
}

}  // namespace
}  // namespace grapplemont::test
