#include "words/segments.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "booking/ring.h"
#include "booking/wizard/roster.h"

namespace grapplemont::test {
namespace {

using Lines = std::vector<std::string>;

// What players read in the lists, typed anew beside the tables that make them.

TEST(SegmentWords, ListTheMatchTypesInTheirOwnOrder) {
  const World world = BookingRoster().Game("CWA");
  struct Row {
    int Style;
    std::vector<std::pair<int, std::string>> Types;
  };
  const Row kRows[] = {
      {1,
       {{1, "Singles"},
        {4, "Hardcore"},
        {2, "Submission"},
        {9, "Ladder"},
        {10, "Tables"},
        {5, "Cage"},
        {6, "Texas Death"},
        {7, "Last Man Standing"},
        {8, "Falls Count Anywhere"},
        {3, "Iron Man"},
        {11, "Bra and Panties"},
        {12, "I Quit"},
        {14, "Inferno"},
        {15, "Hell In A Cell"},
        {16, "High Incident"},
        {13, "First Blood"},
        {17, "Barbed Wire"},
        {18, "Death Match"},
        {19, "Buck Naked"}}},
      {2, {{1, "Tag"}, {2, "Hardcore"}, {3, "Cage"}, {4, "Ladder"}, {5, "Tables"}}},
      {3, {{1, "Elimination"}, {2, "Triangle"}, {3, "Hardcore"}, {4, "Cage"}}},
      {4, {{1, "Elimination"}, {2, "Triangle"}, {3, "Ladder"}, {4, "TLC"}}},
      {5, {{1, "Elimination"}, {2, "4 Corners"}}},
      {6, {{1, "Elimination"}, {2, "TLC"}}},
      {7, {{1, "Tag"}}},
      {8, {{1, "Tag"}, {2, "Survivor"}}},
      {9, {{1, "Royal Rumble"}, {2, "20 Man Battle Royal"}, {3, "10 Man Battle Royal"}}},
  };
  for (const Row& row : kRows) {
    std::vector<std::pair<int, std::string>> offered;
    for (const MatchTypeRow* type : OfferedMatchTypes(world, row.Style))
      offered.emplace_back(type->Code, type->Says);
    EXPECT_EQ(offered, row.Types) << "style " << row.Style;
  }
}

/// The least Risk and the highest Size number with which a type is offered.
TEST(SegmentWords, OfferMatchTypesByRiskAndSize) {
  struct Row {
    int Style, Type, Risk, Size;
  };
  const Row kRows[] = {
      {1, 1, 0, 6},   {1, 2, 21, 6},  {1, 3, 11, 6},  {1, 4, 31, 6},   {1, 5, 31, 4},
      {1, 6, 31, 6},  {1, 7, 36, 6},  {1, 8, 36, 6},  {1, 9, 46, 6},   {1, 10, 56, 6},
      {1, 11, 66, 6}, {1, 12, 31, 6}, {1, 13, 61, 6}, {1, 14, 66, 4},  {1, 15, 61, 2},
      {1, 16, 71, 3}, {1, 17, 81, 6}, {1, 18, 96, 6}, {1, 19, 100, 6}, {2, 1, 0, 6},
      {2, 2, 31, 6},  {2, 3, 31, 4},  {2, 4, 46, 6},  {2, 5, 56, 6},   {3, 1, 0, 6},
      {3, 2, 0, 6},   {3, 3, 31, 6},  {3, 4, 31, 4},  {4, 1, 0, 6},    {4, 2, 0, 6},
      {4, 3, 56, 6},  {4, 4, 66, 6},  {5, 1, 0, 6},   {5, 2, 0, 6},    {6, 1, 0, 6},
      {6, 2, 66, 6},  {7, 1, 0, 6},   {8, 1, 0, 6},   {8, 2, 0, 6},    {9, 1, 0, 6},
      {9, 2, 0, 6},   {9, 3, 0, 6},
  };
  World world = BookingRoster().Game("CWA");
  const auto isOffered = [&](int style, int type, int risk, int size) {
    world.Player().Risk = risk;
    world.Player().Size = size;
    const auto offered = OfferedMatchTypes(world, style);
    return std::any_of(offered.begin(), offered.end(),
                       [&](auto* row) { return row->Code == type; });
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(std::to_string(row.Style) + ", type " + std::to_string(row.Type));
    EXPECT_TRUE(isOffered(row.Style, row.Type, row.Risk, row.Size));
    EXPECT_EQ(isOffered(row.Style, row.Type, row.Risk - 1, row.Size), row.Risk == 0);
    EXPECT_FALSE(row.Size < 6 && isOffered(row.Style, row.Type, row.Risk, row.Size + 1));
  }
  EXPECT_EQ(std::size(kRows), std::size(kMatchTypes));
}

/// The lists' words of every code, by the code; empty for a gap.
Lines WordsOf(const World& world, const Segment& segment, Phrases phrases, bool summary) {
  Lines words;
  for (int code = 1; code <= phrases.back().Code; ++code)
    words.push_back(summary ? SummaryText(world, segment, phrases, code)
                            : PhraseText(world, segment, phrases, code));
  return words;
}

/// Man 2 beats Man 1; Man 5 to Man 8 run in.
Segment Told(const World& world, int style) {
  Segment match = MatchOf(
      world, style, 1,
      style == kSingles ? Lines{"Man 1", "Man 2"} : Lines{"Man 1", "Man 3", "Man 2", "Man 4"});
  match.Winner = 2;
  match.Loser = 1;
  match.Other1 = 5;
  match.Other2 = 6;
  match.Other3 = 7;
  match.Other4 = 8;
  return match;
}

TEST(SegmentWords, TellHowASinglesMatchEnds) {
  const World world = BookingRoster().Game("CWA");
  const Segment match = Told(world, kSingles);
  EXPECT_EQ(
      WordsOf(world, match, FinishesOf(kSingles), false),
      (Lines{"Man 2 cleanly", "Man 2 by count out \\ DQ", "Man 2 by interference",
             "Man 2 by botched interference", "Man 2 by cheating", "Double DQ", "Double count out",
             "No contest through interference", "Sports entertainment finish (tm)", "Sick Bump", "",
             "", "Man 2 by DQ through interference"}));
  EXPECT_EQ(
      WordsOf(world, match, FinishesOf(kSingles), true),
      (Lines{"Clean", "Count out \\ DQ", "Outside Interference", "Botched Interference", "Cheating",
             "Double DQ", "Double Count Out", "No Contest Through Interference",
             "Sports Entertainment Finish (tm)", "Sick Bump", "", "", "DQ Through Interference"}));
  const Lines aftermaths = {"Nothing",
                            "Man 1 attacks the referee",
                            "Man 1 has a temper tantrum",
                            "Run in attack on Man 1",
                            "Run in attack on Man 2",
                            "Run in attack on both competitors",
                            "Man 1 revenge attack",
                            "Man 2 does a beat-down",
                            "Man 1 gets revenge",
                            "Two-on-one on Man 1",
                            "Two-on-one on Man 2",
                            "Man 1 attacks Man 5",
                            "Man 5 destroys everyone",
                            "Two-on-one on Man 1",
                            "Two-on-one on Man 2",
                            "Two-on-one on Man 5",
                            "Three way brawl",
                            "Man 1 runs away",
                            "Handshake",
                            "Man 1 cheap shots after a handshake",
                            "Man 1 refuses a handshake",
                            "Man 2 refuses a handshake",
                            "Brawl to the back",
                            "Man 2 runs away",
                            "Man 5 continues assault",
                            "Run in for the save",
                            "Run in for failed save attempt"};
  EXPECT_EQ(WordsOf(world, match, AftermathsOf(kSingles), false), aftermaths);
  EXPECT_EQ(WordsOf(world, match, AftermathsOf(kSingles), true), aftermaths);
  Lines purposes = {"None",          "Put on a good match", "Put Man 2 over",
                    "End feud",      "Turn Man 5",          "Put Man 5 over",
                    "Continue feud", "Put Man 1 over",      "Put both workers over",
                    "Turn Man 2",    "Turn Man 1",          "Eye Candy",
                    "Debut Man 1",   "Debut Man 2",         "Debut Man 5"};
  purposes.resize(29);
  purposes.insert(purposes.end(), {"Debut Man 6", "Turn Man 6", "Put Man 6 over"});
  EXPECT_EQ(WordsOf(world, match, PurposesOf(kSingles), false), purposes);
  purposes[1] = "To Put On A Good Match";
  EXPECT_EQ(WordsOf(world, match, PurposesOf(kSingles), true), purposes);
}

TEST(SegmentWords, TellHowATagMatchEnds) {
  const World world = BookingRoster()
                          .Team("Odd Men", "Man 1", "Man 3")
                          .Team("The Law", "Man 5", "Man 6")
                          .Game("CWA");
  const Segment match = Told(world, kTag);
  EXPECT_EQ(WordsOf(world, match, FinishesOf(kTag), false),
            (Lines{"Man 2 \\ Man 4 cleanly", "By count out \\ DQ", "Man 2 \\ Man 4 by interference",
                   "Man 2 \\ Man 4 by botched interference", "Man 2 \\ Man 4 by cheating",
                   "Double DQ", "Double count out", "No contest through interference",
                   "Sports entertainment finish (tm)", "Sick Bump", "Opponent mis-communication",
                   "Man 3 turns on partner", "Man 2 \\ Man 4 by DQ through interference"}));
  EXPECT_EQ(WordsOf(world, match, FinishesOf(kTag), true),
            (Lines{"Clean", "Count out \\ DQ", "Outside Interference", "Botched Interference",
                   "Cheating", "Double DQ", "Double Count Out", "No Contest Through Interference",
                   "Sports Entertainment Finish (tm)", "Sick Bump", "Opponent Mis-Communication",
                   "Man 1 Gets Backstabbed", "DQ Through Interference"}));
  EXPECT_EQ(WordsOf(world, match, AftermathsOf(kTag), false),
            (Lines{"Nothing",
                   "Odd Men get revenge",
                   "Odd Men get beaten down",
                   "Man 1 turns",
                   "Man 3 turns",
                   "Man 2 turns",
                   "Man 4 turns",
                   "Continue brawling",
                   "Odd Men beat-down Man 2 \\ Man 4",
                   "Man 2 \\ Man 4 beat-down Odd Men",
                   "The Law continue assault",
                   "Three-on-two on Odd Men",
                   "Odd Men attack Man 5",
                   "Odd Men attack The Law",
                   "Three team brawl",
                   "Losers Argue",
                   "Three-on-one assault",
                   "Run in for the save",
                   "Run in for failed save attempt",
                   "Brawl to the back",
                   "Run in attack on Man 1",
                   "Run in attack on Man 3",
                   "Run in attack on Man 2",
                   "Run in attack on Man 4",
                   "Run in attack on Odd Men",
                   "Run in attack on Man 2 \\ Man 4",
                   "Run in attack on both teams"}));
  EXPECT_EQ(WordsOf(world, match, AftermathsOf(kTag), true),
            (Lines{"Nothing",
                   "Revenge Attack",
                   "Losers Get Beaten Down",
                   "Man 1 turns",
                   "Man 3 turns",
                   "Man 2 turns",
                   "Man 4 turns",
                   "Continued Brawling",
                   "Odd Men beat-down Man 2 \\ Man 4",
                   "Man 2 \\ Man 4 beat-down Odd Men",
                   "The Law continue their assault",
                   "Three-On-Two Beating",
                   "Revenge Attack On Man 5",
                   "Revenge Attack On The Law",
                   "Three team brawl",
                   "Losers Argue",
                   "Three-On-One Assault",
                   "Run in for the save",
                   "Run in for failed save attempt",
                   "Brawl to the back",
                   "Run in attack on Man 1",
                   "Run in attack on Man 3",
                   "Run in attack on Man 2",
                   "Run in attack on Man 4",
                   "Run in attack on Odd Men",
                   "Run in attack on Man 2 \\ Man 4",
                   "Run in attack on both teams"}));
  const Lines purposes = {"None",
                          "Put Odd Men over",
                          "Put Man 2 \\ Man 4 over",
                          "Put on a good match",
                          "Continue Feud",
                          "End Feud",
                          "Put both teams over",
                          "Put Man 1 over",
                          "Put Man 3 over",
                          "Put Man 2 over",
                          "Put Man 4 over",
                          "Turn Man 1",
                          "Turn Man 3",
                          "Turn Man 2",
                          "Turn Man 4",
                          "Turn Odd Men",
                          "Turn Man 2 \\ Man 4",
                          "Turn Man 5",
                          "Turn The Law",
                          "Put Man 5 over",
                          "Put The Law over",
                          "Debut Odd Men",
                          "Debut Man 2 \\ Man 4",
                          "Debut Man 1",
                          "Debut Man 3",
                          "Debut Man 2",
                          "Debut Man 4",
                          "Debut The Law",
                          "Debut Man 5",
                          "Debut Man 6",
                          "",
                          "",
                          "Turn Man 6",
                          "Turn Man 7",
                          "Turn Man 8",
                          "Turn Man 7 \\ Man 8",
                          "Put Man 7 over",
                          "Put Man 7 \\ Man 8 over",
                          "Debut Man 7",
                          "Debut Man 8",
                          "Debut Man 7 \\ Man 8"};
  EXPECT_EQ(WordsOf(world, match, PurposesOf(kTag), false), purposes);
  EXPECT_EQ(WordsOf(world, match, PurposesOf(kTag), true), purposes);
}

TEST(SegmentWords, TellHowSixAndEightManMatchesEnd) {
  const World world = BookingRoster().Game("CWA");
  for (const auto& [style, men] : {std::pair(kThreeOnThree, 6), std::pair(kFourOnFour, 8)}) {
    Lines people, words = {"Man 2 cleanly", "Man 2 cheap victory"};
    for (int i = 1; i <= men; ++i) people.push_back("Man " + std::to_string(i));
    for (const std::string& name : people) words.push_back(name + " turns");
    words.insert(words.end(),
                 {"Double DQ", "Double count out", "Sports entertainment finish (tm)"});
    Segment match = MatchOf(world, style, 1, people);
    match.Winner = 2;
    match.Loser = men;
    EXPECT_EQ(WordsOf(world, match, FinishesOf(style), false), words);
    words[0] = "Clean";
    words[1] = "Cheap";
    words[words.size() - 2] = "Double Count Out";
    words.back() = "Sports Entertainment Finish (tm)";
    EXPECT_EQ(WordsOf(world, match, FinishesOf(style), true), words);
  }
}

TEST(SegmentWords, NameStylesAndInterviews) {
  Lines styles, talks, purposes;
  for (const MatchStyleRow& style : kMatchStyles) styles.emplace_back(style.Says);
  for (const InterviewStyleRow& style : kInterviewStyles) talks.emplace_back(style.Says);
  for (const Term& purpose : kInterviewPurposes) purposes.emplace_back(purpose.Says);
  EXPECT_EQ(styles, (Lines{"1 vs 1", "2 vs 2", "1 vs 1 vs 1", "2 vs 2 vs 2", "1 vs 1 vs 1 vs 1",
                           "2 vs 2 vs 2 vs 2", "3 vs 3", "4 vs 4", "Special"}));
  EXPECT_EQ(talks, (Lines{"Single Worker", "Tag Team", "Single Worker With Manager",
                          "Tag Team With Manager"}));
  EXPECT_EQ(purposes, (Lines{"Verbal Attack", "Hype Upcoming Match", "Turn", "Continue Feud",
                             "Self Promotion", "None"}));
}

}  // namespace
}  // namespace grapplemont::test
