#include "show/showfeuds.h"

#include <gtest/gtest.h>

#include "stage.h"

namespace grapplemont::test {
namespace {

/// "1 0 0 2 : 0 0 1 0", clean, cheap, verbal and attacks of both sides.
std::string Record(const Feud& feud) {
  std::string text;
  for (const int count :
       {int(feud.Clean1), int(feud.Dirty1), int(feud.Interference1), int(feud.Sneak1)})
    text += std::to_string(count) + " ";
  text += ":";
  for (const int count :
       {int(feud.Clean2), int(feud.Dirty2), int(feud.Interference2), int(feud.Sneak2)})
    text += " " + std::to_string(count);
  return text;
}

TEST(TallyResult, CountsByStyleAndFinish) {
  struct Case {
    int Style, Type, Finish;
    std::string_view Record;
  };
  constexpr std::string_view kCleanWin = "0 0 0 0 : 1 0 0 0", kCheapWin = "0 0 0 0 : 0 1 0 0",
                             kNothing = "0 0 0 0 : 0 0 0 0";
  constexpr Case kCases[] = {
      {kSingles, 1, kClean, kCleanWin},
      {kSingles, 1, kCountOut, kCleanWin},
      {kSingles, 1, kInterference, kCheapWin},
      {kSingles, 1, kBotchedInterference, kCheapWin},
      {kSingles, 1, kCheating, kCheapWin},
      {kSingles, 1, kSickBump, kCleanWin},
      {kSingles, 1, kDqThroughInterference, kCheapWin},
      {kTag, 1, kClean, kCleanWin},
      {kTag, 1, kMiscommunication, kCleanWin},
      {kTag, 1, kPartnerTurns, kCheapWin},
      {kThreeOnThree, 1, kClean, kCleanWin},
      {kThreeOnThree, 1, kCheapVictory, kCheapWin},
      {kThreeOnThree, 1, 5, kCheapWin},
      {kFourOnFour, kPlainEightMan, kClean, kCleanWin},
      {kFourOnFour, kPlainEightMan, kCheapVictory, kCheapWin},
      {kFourOnFour, kSurvivor, kClean, kNothing},
      {kThreeWay, 1, kClean, kNothing},
      {kFourTeams, 1, kClean, kNothing},
  };
  for (const Case& c : kCases) {
    Stage stage(Eight().Feud("Gus", "Hal").Feud("Ash", "Hal"));
    // Hal stands in the second side of every style.
    if (c.Style == kSingles)
      stage.Match(c.Style, {"Ash", "Hal"}, c.Type);
    else if (c.Style == kFourOnFour)
      stage.Match(c.Style, {"Ash", "Bea", "Cal", "Dot", "Hal", "Eli", "Fay", "Gus"}, c.Type);
    else
      stage.Match(c.Style, {"Ash", "Bea", "Cal", "Hal", "Eli", "Fay", "Gus", "Dot"}, c.Type);
    stage.Result("Hal", "Ash", c.Finish);  // Ash has the uid that stands for no loser
    TallyResult(stage.Run);
    EXPECT_EQ(Record(stage.W.Feuds()[2]), c.Record) << c.Style << "/" << c.Type << "/" << c.Finish;
    EXPECT_EQ(Record(stage.W.Feuds()[1]), kNothing);
    EXPECT_EQ(stage.Show.FeudTouched[1], c.Record != kNothing);
  }
}

TEST(TallyResult, CountsNoDrawAndNoStranger) {
  Stage stage(Eight().Feud("Ash", "Bea"));
  stage.Match(kSingles, {"Ash", "Bea"});
  stage.Draw(kDoubleDq);
  TallyResult(stage.Run);
  stage.Match(kSingles, {"Ash", "Cal"});
  stage.Result("Ash", "Cal");
  TallyResult(stage.Run);
  EXPECT_EQ(Record(stage.W.Feuds()[1]), "0 0 0 0 : 0 0 0 0");
  EXPECT_FALSE(stage.Show.FeudTouched[0]);
}

TEST(TallyResult, CountsAgainstWhoTakesTheFall) {
  Stage stage(Eight().Feud("Ash", "Cal").Feud("Ash", "Dot"));
  stage.Match(kTag, {"Ash", "Bea", "Cal", "Dot"});
  stage.Result("Ash", "Dot");
  TallyResult(stage.Run);
  EXPECT_EQ(stage.W.Feuds()[1].Clean1, 0);
  EXPECT_EQ(stage.W.Feuds()[2].Clean1, 1);
}

TEST(Tallies, GoToTheFirstFeudOfTheTwoAndToTheirSide) {
  Stage stage(Eight().TagFeud("Ash", "Bea", "Cal", "Dot").Feud("Cal", "Ash"));
  TallyWin(stage.Run, stage.Uid("Cal"), stage.Uid("Ash"), true);
  TallyVerbal(stage.Run, stage.Uid("Bea"), stage.Uid("Dot"));
  TallyAttack(stage.Run, stage.Uid("Dot"), stage.Uid("Ash"));
  TallyAttack(stage.Run, stage.Uid("Dot"), stage.Uid("Ash"));
  TallyAttack(stage.Run, stage.Uid("Ash"), stage.Uid("Bea"));  // partners
  TallyAttack(stage.Run, 0, stage.Uid("Bea"));
  EXPECT_EQ(Record(stage.W.Feuds()[1]), "0 0 1 0 : 1 0 0 2");
  EXPECT_EQ(Record(stage.W.Feuds()[2]), "0 0 0 0 : 0 0 0 0");
}

TEST(Tallies, CoolAFeudThatOneSideRunsAwayWith) {
  struct Case {
    int CleanA, CheapA, CleanB, CheapB;  // before a word of A's
    int Heat, After;
  };
  constexpr Case kCases[] = {
      {8, 0, 3, 0, 50, 50}, {9, 0, 4, 0, 50, 48}, {4, 0, 9, 0, 50, 48}, {9, 0, 9, 0, 50, 46},
      {3, 3, 1, 0, 50, 50}, {3, 4, 1, 0, 50, 45}, {3, 4, 0, 1, 50, 50}, {1, 0, 3, 4, 50, 45},
      {0, 1, 3, 4, 50, 50}, {9, 0, 1, 0, 50, 43}, {9, 0, 1, 0, 6, 0},   {9, 9, 0, 0, 50, 48},
  };
  for (const Case& c : kCases) {
    Stage stage(Eight().Feud("Ash", "Bea", [&](Feud& feud) {
      feud.Clean1 = c.CleanA;
      feud.Dirty1 = c.CheapA;
      feud.Clean2 = c.CleanB;
      feud.Dirty2 = c.CheapB;
      feud.Heat = c.Heat;
    }));
    TallyAttack(stage.Run, stage.Uid("Ash"), stage.Uid("Bea"));
    EXPECT_EQ(stage.W.Feuds()[1].Heat, c.Heat) << "attacks never cool";
    TallyVerbal(stage.Run, stage.Uid("Ash"), stage.Uid("Bea"));
    EXPECT_EQ(stage.W.Feuds()[1].Heat, c.After)
        << c.CleanA << "+" << c.CheapA << " : " << c.CleanB << "+" << c.CheapB;
    EXPECT_FALSE(stage.Show.FeudTouched[0]);
  }
}

TEST(TallyResult, CoolsByTheWinItCounts) {
  Stage stage(Eight().Feud("Ash", "Bea", [](Feud& feud) { feud.Clean1 = 8; }));
  stage.Match(kSingles, {"Ash", "Bea"});
  stage.Result("Ash", "Bea");
  TallyResult(stage.Run);
  EXPECT_EQ(stage.W.Feuds()[1].Heat, 48);
}

/// A feud of everybody with everybody of the list would need more slots than there are, so each
/// pair gets a world of its own. "Eli>Ash" for each that was counted.
std::string Attacks(int style, int finish, int aftermath, bool isDraw,
                    std::vector<const char*> people) {
  std::string text;
  for (const char* by : people)
    for (const char* on : people) {
      if (by == on) continue;
      Stage stage(Eight().Feud(by, on));
      if (style == kSingles)
        stage.Match(kSingles, {"Ash", "Bea"});
      else
        stage.Match(kTag, {"Ash", "Bea", "Cal", "Dot"});
      if (isDraw)
        stage.Draw(finish);
      else
        stage.Result(style == kSingles ? "Bea" : "Cal", "Ash", finish);
      stage.S.Aftermath = aftermath;
      stage.S.Other1 = stage.Uid("Eli");
      stage.S.Other2 = stage.Uid("Fay");
      if (style == kTag) stage.S.Other3 = stage.Uid("Gus");
      if (style == kTag) stage.S.Other4 = stage.Uid("Hal");
      TallyAttacks(stage.Run);
      const Feud& feud = stage.W.Feuds()[1];
      EXPECT_LE(feud.Sneak1, 1);
      if (feud.Sneak1 == 1) text += (text.empty() ? "" : " ") + std::string(by) + ">" + on;
    }
  return text;
}

TEST(TallyAttacks, OfSinglesComeFromRunInsAndAftermath) {
  struct Case {
    int Finish, Aftermath;
    bool IsDraw;
    std::string_view Attacks;  // Bea wins over Ash; Eli and Fay run in
  };
  constexpr Case kCases[] = {
      {kClean, 1, false, ""},
      {kCheating, 8, false, ""},
      {kInterference, 1, false, "Eli>Ash"},
      {kBotchedInterference, 1, false, "Bea>Eli"},
      {kNoContest, 1, true, "Eli>Ash Eli>Bea"},
      {kDqThroughInterference, 1, false, "Eli>Bea"},
      {kDqThroughInterference, 25, false, "Eli>Bea"},
      {kClean, 4, false, "Eli>Bea"},  // the winner, whoever was attacked
      {kClean, 5, false, "Eli>Ash"},
      {kClean, 6, false, "Eli>Ash Eli>Bea"},
      {kNoContest, 13, true, "Eli>Ash Eli>Bea"},
      {kDoubleDq, 4, true, "Eli>Ash"},
      {kDoubleDq, 5, true, "Eli>Bea"},
      {kInterference, 26, false, "Eli>Ash Fay>Bea Fay>Eli"},
      {kBotchedInterference, 26, false, "Bea>Eli Fay>Ash Fay>Eli"},
      {kDqThroughInterference, 26, false, "Eli>Bea Fay>Ash Fay>Eli"},
      {kInterference, 27, false, "Bea>Fay Eli>Ash Eli>Fay"},
      {kBotchedInterference, 27, false, "Ash>Fay Bea>Eli Eli>Fay"},
      {kDqThroughInterference, 27, false, "Ash>Fay Eli>Bea Eli>Fay"},
  };
  for (const Case& c : kCases)
    EXPECT_EQ(Attacks(kSingles, c.Finish, c.Aftermath, c.IsDraw, {"Ash", "Bea", "Eli", "Fay"}),
              c.Attacks)
        << "finish " << c.Finish << ", aftermath " << c.Aftermath;
}

TEST(TallyAttacks, OfTeamsGoPairByPair) {
  struct Case {
    int Finish, Aftermath;
    bool IsDraw;
    std::string_view Attacks;  // Cal and Dot beat Ash and Bea; Eli and Fay, Gus and Hal run in
  };
  constexpr Case kCases[] = {
      {kClean, 1, false, ""},
      {kClean, 2, false, ""},
      {kInterference, 1, false, "Eli>Ash Fay>Bea"},
      {kBotchedInterference, 1, false, "Cal>Eli Dot>Fay"},
      {kNoContest, 1, true, "Eli>Ash Eli>Cal Fay>Bea Fay>Dot"},
      {kDqThroughInterference, 1, false, "Eli>Cal Fay>Dot"},
      {kDoubleDq, 9, true, "Ash>Cal Bea>Dot"},
      {kDoubleDq, 10, true, "Cal>Ash Dot>Bea"},
      {kInterference, 11, false, "Eli>Ash Fay>Bea"},
      {kInterference, 12, false, "Cal>Ash Dot>Bea Eli>Ash Eli>Bea Fay>Bea"},
      {kDqThroughInterference, 12, false, "Ash>Cal Bea>Dot Eli>Cal Eli>Dot Fay>Dot"},
      {kBotchedInterference, 13, false, "Ash>Eli Bea>Eli Cal>Eli Dot>Fay"},
      {kBotchedInterference, 14, false, "Ash>Eli Bea>Fay Cal>Eli Dot>Fay"},
      {kInterference, 18, false, "Eli>Ash Fay>Bea Gus>Cal Gus>Eli Hal>Dot Hal>Fay"},
      {kBotchedInterference, 18, false, "Cal>Eli Dot>Fay Gus>Ash Gus>Eli Hal>Bea Hal>Fay"},
      {kDqThroughInterference, 18, false, "Eli>Cal Fay>Dot Gus>Ash Gus>Eli Hal>Bea Hal>Fay"},
      {kInterference, 19, false, "Cal>Gus Dot>Hal Eli>Ash Eli>Gus Fay>Bea Fay>Hal"},
      {kBotchedInterference, 19, false, "Ash>Gus Bea>Hal Cal>Eli Dot>Fay Eli>Gus Fay>Hal"},
      {kDqThroughInterference, 19, false, "Ash>Gus Bea>Hal Eli>Cal Eli>Gus Fay>Dot Fay>Hal"},
      {kClean, 20, false, ""},
      {kClean, 21, false, "Gus>Ash Hal>Ash"},
      {kClean, 22, false, "Gus>Bea Hal>Bea"},
      {kClean, 23, false, "Gus>Cal Hal>Cal"},
      {kClean, 24, false, "Gus>Dot Hal>Dot"},
      {kClean, 25, false, "Gus>Ash Hal>Bea"},
      {kClean, 26, false, "Gus>Cal Hal>Dot"},
      {kClean, 27, false, "Gus>Ash Gus>Cal Hal>Bea Hal>Dot"},
  };
  for (const Case& c : kCases)
    EXPECT_EQ(Attacks(kTag, c.Finish, c.Aftermath, c.IsDraw,
                      {"Ash", "Bea", "Cal", "Dot", "Eli", "Fay", "Gus", "Hal"}),
              c.Attacks)
        << "finish " << c.Finish << ", aftermath " << c.Aftermath;
}

}  // namespace
}  // namespace grapplemont::test
