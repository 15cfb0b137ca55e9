#include <gtest/gtest.h>

#include <set>

#include "records/segments.h"
#include "report/cast.h"
#include "report/report.h"
#include "report/teller.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont {

namespace {

using test::ScriptedDraws;
using test::SmallWorld;

/// Ada, Bo, Cal and Dee are workers 1 to 4; Ada and Bo are a team.
World Four() {
  return SmallWorld()
      .Promotion("CWA")
      .Worker("Ada Crane")
      .Worker("Bo Pike")
      .Worker("Cal Drift")
      .Worker("Dee Ash")
      .Team("Dock Rats", "Ada Crane", "Bo Pike")
      .Stable("The Fog")
      .Title("Harbor Crown", "Ada Crane")
      .Title("Tow", "Ada Crane", "Bo Pike")
      .Game("CWA");
}

TEST(Details, StandAboveTheProse) {
  const World world = Four();
  const struct {
    int Kind, Style, Type;
    const char* Title;
    int Winner;
    const char* Lines;  // heading, style, type, names, belt, winner
  } rows[] = {
      {kMatch, kSingles, kLadder, "None", 2,
       "Match Details|1 vs 1|Ladder|Ada Crane vs Bo Pike||Winner : Bo Pike"},
      {kMatch, kSingles, kPlainSingles, "Harbor Crown", 1,
       "Match Details|1 vs 1|Singles Title Match! |Ada Crane vs Bo Pike|"
       "(For The Harbor Crown Title)|Winner : Ada Crane"},
      {kMatch, kTag, kPlainTag, "Tow", 3,
       "Match Details|2 vs 2|Tag Title Match! |Dock Rats vs Cal Drift \\ Dee Ash|"
       "(For The Tow Titles)|Winner : Cal Drift \\ Dee Ash"},
      {kMatch, kTag, kPlainTag, "None", 0,
       "Match Details|2 vs 2|Tag|Dock Rats vs Cal Drift \\ Dee Ash||Winner : Draw"},
      {kMatch, kSpecial, kTenMan, "None", 4,
       "Match Details|Special|10 Man Battle Royal|10 Workers Entered||Winner : Dee Ash"},
      {kInterview, kSingleTalk, 0, "None", 0,
       "Interview Details|Single Worker|Hype Upcoming Match|Ada Crane is backstage. ||"},
      {kInterview, kTeamTalk, 0, "None", 0,
       "Interview Details|Tag Team|Hype Upcoming Match|Dock Rats are backstage. ||"},
      {kInterview, kManagedTalk, 0, "None", 0,
       "Interview Details|Single Worker With Manager|Hype Upcoming Match|"
       "Ada Crane is backstage with Bo Pike. ||"},
      {kInterview, kManagedTeamTalk, 0, "None", 0,
       "Interview Details|Tag Team With Manager|Hype Upcoming Match|"
       "Ada Crane is backstage with Bo Pike \\ Cal Drift. ||"},
      {kEmptySegment, 0, 0, "None", 0, "|||||"},
  };
  for (const auto& row : rows) {
    Segment segment = EmptySegment();
    segment.Kind = row.Kind;
    segment.Style = row.Style;
    segment.MatchType = row.Type;
    segment.Purpose = kHypeMatch;
    segment.TitleName = row.Title;
    for (int place = 1; place <= 4; ++place)
      segment.Worker[static_cast<std::size_t>(place - 1)] = place;
    segment.Winner = row.Winner;
    segment.Loser = row.Winner == 0 ? kNoLoser : row.Winner == 1 ? 2 : 1;
    const SegmentDetails is = DetailsOf(world, segment);
    EXPECT_EQ(is.Heading + "|" + is.Style + "|" + is.Type + "|" + is.Names + "|" + is.Belt + "|" +
                  is.Winner,
              row.Lines);
  }
}

TEST(Verdict, IsTheSecondVoicesOnMatchesByTheBandOfTheRating) {
  const struct {
    int Voice, Kind, Style, Type, Overall, Lines, Draw;
    const char* Says;
  } rows[] = {
      {kTolland, kMatch, kSingles, 1, 15, 2, 1, "MY EYES! MY EYES!"},
      {kTolland, kMatch, kSingles, 1, 16, 3, 1,
       "That gets a well-earned FIVE GIANT red-hot pokers"},
      {kTolland, kMatch, kSingles, 1, 80, 3, 3, "*** rating: I put my pen down for a while"},
      {kTolland, kMatch, kSpecial, kRoyalRumble, 100, 3, 1, "Awesome, Match Of All Time Candidate"},
      {kTolland, kMatch, kSpecial, kTenMan, 100, 0, 0, "I don't rate battle royals. "},
      {kQvd, kMatch, kSingles, 1, 70, 0, 0, ""},
      {kTolland, kAngle, 5, 0, 70, 0, 0, ""}};
  for (const auto& row : rows) {
    using test::ScriptedDraw;
    World world(std::make_unique<SeededDraws>(1),
                std::make_unique<ScriptedDraws>(
                    row.Lines == 0 ? std::vector<ScriptedDraw>()
                                   : std::vector{ScriptedDraw(row.Lines, row.Draw)}));
    world.Load(test::BytesOf(Four()));
    world.Game().Reporter = row.Voice;
    Segment segment = EmptySegment();
    segment.Kind = row.Kind;
    segment.Style = row.Style;
    segment.MatchType = row.Type;
    const std::string text = Verdict(world, segment, row.Overall);
    EXPECT_EQ(text.substr(0, std::string(row.Says).size()), row.Says) << row.Overall;
    EXPECT_EQ(text.empty(), *row.Says == 0);
  }
}

/// A night of great matches has as many ways to say so as the band has.
TEST(Verdict, SaysNoLineAgainBeforeTheOthersOfItsBand) {
  World world = Four();
  world.Game().Reporter = kTolland;
  Segment segment = EmptySegment();
  segment.Kind = kMatch;
  segment.Style = kSingles;
  segment.MatchType = kPlainSingles;
  LineMemory memory;
  std::set<std::string> said;
  for (int match = 0; match < 6; ++match) {
    memory.BeginSegment();
    said.insert(Verdict(world, segment, 83, &memory));
  }
  EXPECT_EQ(said.size(), 5U) << "one of the three lines has one way alone";
}

TEST(Lines, BeginNoSentenceWithAFigure) {
  Cast cast;
  std::string text;
  std::vector<std::size_t> ends;
  for (const char* count : {"119 days", "47", "seven", "1231 days"}) {
    cast.Set(Item::Count, count);
    Fill(cast, "{count} went by. Then {count}. ", text, ends);
  }
  EXPECT_EQ(text,
            "One hundred and nineteen days went by. Then 119 days. Forty-seven went by. Then 47. "
            "Seven went by. Then seven. 1231 days went by. Then 1231 days. ");
}

TEST(LineMemory, GivesNoLineAgainBeforeTheOthersOfItsBand) {
  LineMemory memory;
  const int band = 0, other = 0;
  ScriptedDraws draws{{3, 2}, {3, 2}, {2, 2}, {3, 2}, {1, 1}, {3, 2}, {3, 2}};
  EXPECT_EQ(memory.Pick(draws, &band, 3), 1);
  EXPECT_EQ(memory.Pick(draws, &band, 3), 2);  // used: the second of the two others
  EXPECT_EQ(memory.Pick(draws, &band, 3), 0);  // used: the only one left
  EXPECT_EQ(memory.Pick(draws, &band, 3), 1);  // all were used: again
  EXPECT_EQ(memory.Pick(draws, &other, 3), 1);
}

TEST(LineMemory, TakesOfTheLinesThatFit) {
  LineMemory memory;
  const int band = 0;
  const std::vector<bool> lastTwo = {false, true, true};
  ScriptedDraws draws{{3, 3}, {3, 3}, {1, 1}, {3, 2}, {1, 1}, {3, 2}, {1, 1}};
  EXPECT_EQ(memory.Pick(draws, &band, lastTwo), 2);
  EXPECT_EQ(memory.Pick(draws, &band, lastTwo), 1);  // the only one left of those that fit
  EXPECT_EQ(memory.Pick(draws, &band, lastTwo), 2);  // both were used, this one not just now
  EXPECT_EQ(memory.Pick(draws, &band, {false, false, false}), 0);  // none fits: all
}

/// That a band has begun again for lines of one sort frees none that the match has heard.
TEST(LineMemory, GivesNoLineTwiceInASegmentWhileAnotherWouldDo) {
  LineMemory memory;
  SeededDraws draws(1);
  const int band = 0;
  memory.BeginSegment();
  EXPECT_EQ(memory.Pick(draws, &band, {false, true, false}), 1);
  EXPECT_EQ(memory.Pick(draws, &band, {false, false, true}), 2);
  memory.BeginSegment();
  EXPECT_EQ(memory.Pick(draws, &band, {true, true, false}), 0);
  EXPECT_EQ(memory.Pick(draws, &band, {true, true, false}), 1);
  EXPECT_EQ(memory.Pick(draws, &band, {true, false, true}), 2);
  EXPECT_EQ(memory.Pick(draws, &band, {true, true, true}), 0) << "all were said: the oldest";
}

}  // namespace

}  // namespace grapplemont
