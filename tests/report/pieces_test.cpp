#include <gtest/gtest.h>
#include <set>

#include "records/segments.h"
#include "report/report.h"
#include "report/ring.h"
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

/// The twelve rows as they were laid down, in words.
constexpr const char* kRows[] = {
    "B C Two # A B Two D Near B # C Two D Near B A # B D",
    "A A B B # B C Two # C Two D Near # A # B",
    "A # A Ref D NoRef # B C Two D Near # C Near #",
    "A B Two # B A B # C",
    "A A A Two B Two # A Two C # D",
    "C D D Near B Two # B C # C",
    "A B Two # B Two C Two # C Near # Ref D NoRef C Near #",
    "B Two C Two # B C Near # C Two # D",
    "A C Two # A B C Near C # C C #",
    "A # C D",
    "A B C D",
    "C",
};

std::string InWords(Script row) {
  std::string words;
  for (const char step : row) {
    if (!words.empty()) words += ' ';
    switch (step) {
      case '2':
        words += "Two";
        break;
      case 'N':
        words += "Near";
        break;
      case 'R':
        words += "Ref";
        break;
      case 'P':
        words += "NoRef";
        break;
      default:
        words += step;
    }
  }
  return words;
}

TEST(SinglesScripts, AreTheTwelve) {
  ASSERT_EQ(SinglesScripts().size(), 12U);
  for (std::size_t i = 0; i < 12; ++i) EXPECT_EQ(InWords(SinglesScripts()[i]), kRows[i]) << i;
}

TEST(TagScripts, DifferInTheirLastStepsOnly) {
  const BoutRow* tag = FindBout(kTag, kPlainTag);
  ASSERT_NE(tag, nullptr);
  ASSERT_EQ(tag->Rows.size(), 2U);
  const std::string same = "ABTATATXC2TBCTDN#TBC2TX2DN#BTC#TX";
  EXPECT_EQ(tag->Rows[0], same + "2#C");
  EXPECT_EQ(tag->Rows[1], same + "D");
}

TEST(Bouts, AreToldForEveryMatchTypeBySomeRow) {
  for (const MatchTypeRow& type : kMatchTypes) {
    const BoutRow* bout = FindBout(type.Style, type.Code);
    ASSERT_NE(bout, nullptr) << type.Says;
    EXPECT_FALSE(bout->Rows.empty()) << type.Says;
  }
  EXPECT_EQ(FindBout(kSingles, 20), nullptr);
}

struct BandCase {
  int Brawl, Technical, Speed;
  std::vector<int> Draws;
  int Band;
};

TEST(OffenceBand, IsTheStrongestSideBeforeTheTieAndTheSkillBehindIt) {
  const std::vector<BandCase> cases = {
      {90, 5, 5, {1, 10, 10}, kBrawlHigh},  // whatever the draws
      {39, 5, 5, {1, 1, 1}, kBrawlLow},       {40, 5, 5, {1, 1, 1}, kBrawlMid},
      {64, 5, 5, {10, 1, 1}, kBrawlMid},      {65, 5, 5, {1, 1, 1}, kBrawlHigh},
      {5, 39, 5, {1, 10, 1}, kTechnicalLow},  {5, 40, 5, {1, 1, 1}, kTechnicalMid},
      {5, 65, 5, {1, 1, 1}, kTechnicalHigh},  {5, 5, 39, {1, 1, 10}, kSpeedLow},
      {5, 5, 64, {1, 1, 10}, kSpeedMid},      {5, 5, 65, {1, 1, 1}, kSpeedHigh},
      {50, 50, 50, {3, 3, 3}, kBrawlMid},      // ties: Brawl first
      {10, 50, 50, {1, 3, 3}, kTechnicalMid},  // then Technical
      {45, 41, 39, {1, 5, 7}, kBrawlMid},      // 46, 46, 46
      {60, 66, 10, {10, 1, 1}, kBrawlMid},     // the plain skill counts, not the sum
      {38, 30, 39, {1, 1, 1}, kSpeedLow},
  };
  for (const BandCase& each : cases) {
    World world = SmallWorld().Promotion("CWA").Worker("Bram Okafor").Game("CWA");
    Worker& bram = world.Workers()[1];
    bram.Brawl = each.Brawl;
    bram.Technical = each.Technical;
    bram.Speed = each.Speed;
    World scripted(std::make_unique<SeededDraws>(1), std::make_unique<ScriptedDraws>(each.Draws));
    EXPECT_EQ(OffenceBandOf(scripted, bram), each.Band)
        << each.Brawl << " " << each.Technical << " " << each.Speed;
  }
}

TEST(LineMemory, GivesNoLineAgainBeforeTheOthersOfItsBand) {
  LineMemory memory;
  const int band = 0, other = 0;
  ScriptedDraws draws{{3, 2}, {3, 2}, {2, 2}, {3, 2}, {1, 1}, {3, 2}, {3, 2}};
  EXPECT_EQ(memory.Pick(draws, &band, 3), 1);
  EXPECT_EQ(memory.Pick(draws, &band, 3), 2);  // used: the second of the two others
  EXPECT_EQ(memory.Pick(draws, &band, 3), 0);  // used: the only one left
  EXPECT_EQ(memory.Pick(draws, &band, 3), 1);  // all were used: anew
  EXPECT_EQ(memory.Pick(draws, &other, 3), 1);
}

}  // namespace

}  // namespace grapplemont
