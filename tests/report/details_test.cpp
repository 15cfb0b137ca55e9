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
  const struct {
    int Overall, Lines, Draw;
    const char* Says;
  } rows[] = {{0, 2, 2, "I have asked for my ticket money back, and I came in on a press pass."},
              {15, 2, 1, "MY EYES! MY EYES!"},
              {16, 3, 1, "That gets a well-earned FIVE GIANT red-hot pokers"},
              {80, 3, 3, "*** rating. I put my pen down for a while"},
              {81, 3, 1, "I can't decide whether it's a *** or a ***1\\2 match"},
              {99, 3, 1, "Excellent match, a ***** rating! "},
              {100, 3, 1, "Awesome, Match Of All Time Candidate"}};
  for (const auto& row : rows) {
    const std::string text =
        VerdictOn(row.Overall, kMatch, kSingles, kPlainSingles, kTolland, {{row.Lines, row.Draw}});
    EXPECT_TRUE(text.starts_with(row.Says)) << row.Overall << ": " << text;
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
