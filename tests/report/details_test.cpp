#include <gtest/gtest.h>

#include <set>

#include "records/segments.h"
#include "report/report.h"
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

struct DetailsCase {
  int Kind, Style, Type;
  const char *Title, *Text;
  int Winner;
  std::vector<std::string> Lines;  // heading, style, type, names, belt, winner
};

TEST(Details, StandAboveTheProse) {
  const World world = Four();
  const std::vector<DetailsCase> cases = {
      {kMatch,
       kSingles,
       kLadder,
       "None",
       "None",
       2,
       {"Match Details", "1 vs 1", "Ladder", "Ada Crane vs Bo Pike", "", "Winner : Bo Pike"}},
      {kMatch,
       kSingles,
       kPlainSingles,
       "Harbor Crown",
       "None",
       1,
       {"Match Details", "1 vs 1", "Singles Title Match! ", "Ada Crane vs Bo Pike",
        "(For The Harbor Crown Title)", "Winner : Ada Crane"}},
      {kMatch,
       kTag,
       kPlainTag,
       "Tow",
       "None",
       3,
       {"Match Details", "2 vs 2", "Tag Title Match! ", "Dock Rats vs Cal Drift \\ Dee Ash",
        "(For The Tow Titles)", "Winner : Cal Drift \\ Dee Ash"}},
      {kMatch,
       kTag,
       kPlainTag,
       "None",
       "None",
       0,
       {"Match Details", "2 vs 2", "Tag", "Dock Rats vs Cal Drift \\ Dee Ash", "",
        "Winner : Draw"}},
      {kMatch,
       kSpecial,
       kTenMan,
       "None",
       "None",
       4,
       {"Match Details", "Special", "10 Man Battle Royal", "10 Workers Entered", "",
        "Winner : Dee Ash"}},
      {kInterview,
       kSingleTalk,
       0,
       "None",
       "None",
       0,
       {"Interview Details", "Single Worker", "Hype Upcoming Match", "Ada Crane is backstage. ", "",
        ""}},
      {kInterview,
       kTeamTalk,
       0,
       "None",
       "None",
       0,
       {"Interview Details", "Tag Team", "Hype Upcoming Match", "Dock Rats are backstage. ", "",
        ""}},
      {kInterview,
       kManagedTalk,
       0,
       "None",
       "None",
       0,
       {"Interview Details", "Single Worker With Manager", "Hype Upcoming Match",
        "Ada Crane is backstage with Bo Pike. ", "", ""}},
      {kInterview,
       kManagedTeamTalk,
       0,
       "None",
       "None",
       0,
       {"Interview Details", "Tag Team With Manager", "Hype Upcoming Match",
        "Ada Crane is backstage with Bo Pike \\ Cal Drift. ", "", ""}},
      {kEmptySegment, 0, 0, "None", "None", 0, {"", "", "", "", "", ""}},
  };
  for (const DetailsCase& each : cases) {
    Segment segment = EmptySegment();
    segment.Kind = each.Kind;
    segment.Style = each.Style;
    segment.MatchType = each.Type;
    segment.Purpose = kHypeMatch;
    segment.TitleName = each.Title;
    for (int place = 1; place <= 4; ++place)
      segment.Worker[static_cast<std::size_t>(place - 1)] = place;
    segment.Winner = each.Winner;
    segment.Loser = each.Winner == 0 ? kNoLoser : each.Winner == 1 ? 2 : 1;
    const SegmentDetails is = DetailsOf(world, segment);
    const std::vector<std::string> lines = {is.Heading, is.Style, is.Type,
                                            is.Names,   is.Belt,  is.Winner};
    EXPECT_EQ(lines, each.Lines) << each.Lines[3];
  }
}

struct BandCase {
  int Low, High, Lines;
  const char* First;
};
// Both edges of each band, and the line that a draw of 1 gives.
constexpr BandCase kBands[] = {
    {0, 15, 2,
     "MY EYES! MY EYES! I may go blind from watching such a display of world-beating crapness. "},
    {16, 20, 3, "That gets a well-earned FIVE GIANT red-hot pokers up the ass as a rating. "},
    {21, 25, 3, "TWO red-hot pokers up the ass for the bookers for that crap. "},
    {26, 30, 3, "I'm giving the bookers one red-hot poker up the ass as a rating. "},
    {31, 35, 3, "DUD. Nothing to see here, move along. "},
    {36, 40, 3, "Welcome to DUDville, please drive carefully. "},
    {41, 45, 3, "Slap a DUD on it, move on. "},
    {46, 50, 3, "Rating: 1\\2 star. "},
    {51, 55, 3, "I'll give it a * rating for not being too bad. "},
    {56, 60, 3, "I'll give it a *1\\2 rating. "},
    {61, 66, 3, "** rating for this one. Perfectly Acceptable Wrestling. "},
    {67, 71, 3, "**1\\2 rating for a decent contest. "},
    {72, 75, 3, "Almost wandered into *** match territory, but there was too much that dragged it"},
    {76, 80, 3, "*** rating, as it was good, but nothing too special. "},
    {81, 84, 3, "I can't decide whether it's a *** or a ***1\\2 match...let's go for a ***1\\4"},
    {85, 86, 3, "Almost got a **** match, but was lacking in certain areas, so i'm knocking off"},
    {87, 90, 3, "That was good. **** rating. "},
    {91, 93, 3, "Great match, a ****1\\4 rating i think. "},
    {94, 97, 3,
     "Almost a ***** match...but it was missing something, so it only gets a ****1\\2. "},
    {98, 99, 3, "Excellent match, a ***** rating! "},
    {100, 100, 3,
     "Awesome, Match Of All Time Candidate, this gets a ***** rating AND the ultimate compliment"},
};

std::string VerdictOn(int overall, int kind, int style, int type, int voice,
                      std::initializer_list<test::ScriptedDraw> draws) {
  World world = Four();
  World scripted(std::make_unique<SeededDraws>(1), std::make_unique<ScriptedDraws>(draws));
  scripted.Load(test::BytesOf(world));
  scripted.Game().Reporter = voice;
  Segment segment = EmptySegment();
  segment.Kind = kind;
  segment.Style = style;
  segment.MatchType = type;
  return Verdict(scripted, segment, overall);
}

TEST(Verdict, RatesByTheBandOfTheOverallRating) {
  int expected = 0;
  for (const BandCase& band : kBands) {
    EXPECT_EQ(band.Low, expected) << "the bands follow on each other";
    expected = band.High + 1;
    std::set<std::string> lines;
    for (const int overall : {band.Low, band.High})
      for (int draw = 1; draw <= band.Lines; ++draw) {
        const std::string text =
            VerdictOn(overall, kMatch, kSingles, kPlainSingles, kTolland, {{band.Lines, draw}});
        EXPECT_EQ(text.starts_with(band.First), draw == 1) << overall << ": " << text;
        lines.insert(text);
      }
    EXPECT_EQ(static_cast<int>(lines.size()), band.Lines) << band.First;
  }
}

TEST(Verdict, IsTheSecondVoicesAndOnMatchesOnly) {
  EXPECT_EQ(VerdictOn(70, kMatch, kSingles, 1, kLamplighter, {}), "");
  EXPECT_EQ(VerdictOn(70, kMatch, kSingles, 1, kQvd, {}), "");
  EXPECT_EQ(VerdictOn(70, kInterview, kSingleTalk, 0, kTolland, {}), "");
  EXPECT_EQ(VerdictOn(70, kAngle, 5, 0, kTolland, {}), "");
  EXPECT_EQ(VerdictOn(70, kMatch, kSpecial, kTwentyMan, kTolland, {}),
            "I don't rate battle royals. ");
  EXPECT_EQ(VerdictOn(100, kMatch, kSpecial, kTenMan, kTolland, {}),
            "I don't rate battle royals. ");
  EXPECT_EQ(VerdictOn(70, kMatch, kSpecial, kRoyalRumble, kTolland, {{3, 1}}),
            "**1\\2 rating for a decent contest. ");
}

}  // namespace
}  // namespace grapplemont
