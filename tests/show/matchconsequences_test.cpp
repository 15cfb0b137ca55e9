#include <gtest/gtest.h>

#include "show/runsegment.h"
#include "stage.h"

namespace grapplemont::test {
namespace {

/// Nobody's place on the card is looked at.
void SetAside(Stage& stage) {
  for (Worker& worker : stage.W.Workers()) worker.Position = kManager;
}

TEST(MatchConsequences, ComeInTheirOrder) {
  // The draws tell the order: wear of both, joy of the winner, Over by result, injuries. Win and
  // attack make the record a feud that pays.
  Stage stage(Eight().TagFeud("Ash", "Cal", "Bea", "Dot", [](Feud& feud) { feud.Clean2 = 2; }));
  SetAside(stage);
  stage.Match(kSingles, {"Ash", "Bea"}, kLadder);
  stage.Result("Ash", "Bea", kInterference);
  stage.S.Other1 = stage.Uid("Cal");
  stage.S.Purpose = purpose1::kEndFeud;
  stage["Bea"].Over = 61;
  stage.Run.Strain = 3;
  stage.Rate(40, 40);
  ScriptDraws(stage.W,
              {{7, 1}, {7, 7}, {3, 3}, {5, 2}, {5, 2}, {400, 2}, {400, 1}, {12, 2}, {6, 2}});
  MatchConsequences(stage.Run);
  EXPECT_EQ(stage["Ash"].Condition, 91);
  EXPECT_EQ(stage["Bea"].Condition, 85);
  EXPECT_EQ(stage["Ash"].Morale, 86) << "80, 3 for the match, 3 for the win";
  EXPECT_EQ(stage.Overs(4), (std::vector<int>{56, 61, 55, 51})) << "1 by luck, 2 and 3 by the feud";
  EXPECT_EQ(stage.W.Feuds()[1].Dirty1, 1);
  EXPECT_EQ(stage.W.Feuds()[1].Sneak1, 1);
  EXPECT_EQ(stage.W.Feuds()[1].Worker1, 0);
  EXPECT_EQ(
      stage.Run.Notes,
      "Bea lost overness from this match. Ash gained overness from this match. "
      "Ash gained overness from this feud ending. Cal gained overness from this feud ending. "
      "Bea gained overness from this feud ending. Dot gained overness from this feud ending. "
      "Bea has sustained an injury as a result of a bad bump! Broken Leg, out for 2 months. ");
}

TEST(MatchConsequences, CountAttacksOfRunInsInFeudsOfTheirOwn) {
  Stage stage(Eight().Feud("Ash", "Cal").Feud("Ash", "Bea"));
  SetAside(stage);
  stage.Match(kSingles, {"Ash", "Bea"});
  stage.Result("Ash", "Bea", kDqThroughInterference);
  stage.S.Other1 = stage.Uid("Cal");
  ScriptDraws(stage.W, {1, 1, 1, 1, 1});
  stage.Rate(40, 40);
  MatchConsequences(stage.Run);
  EXPECT_EQ(stage.W.Feuds()[1].Sneak2, 1);
  EXPECT_EQ(stage.W.Feuds()[2].Dirty1, 1);
}

TEST(MatchConsequences, OfADrawAreWearAndWhatAGreatMatchLifts) {
  Stage stage;
  SetAside(stage);
  stage.Match(kSingles, {"Bea", "Cal"});
  stage.Draw(kDoubleDq);
  stage["Cal"].Over = 90;
  stage.Rate(100, 100);
  ScriptDraws(stage.W, {{2, 1}, {2, 2}});
  MatchConsequences(stage.Run);
  EXPECT_EQ(stage["Ash"].Condition, 100) << "the number that stands for no loser is nobody";
  EXPECT_EQ(stage["Bea"].Condition, 96);
  EXPECT_EQ(stage["Cal"].Condition, 95);
  EXPECT_EQ(stage.Run.Notes, "Bea gained overness from this match. ");
}

TEST(MatchConsequences, ReachEveryMemberOfTheWinningSide) {
  struct Case {
    int Style, Draws;  // for wear and, of teams, for the result
    std::vector<int> Morale;
  };
  const Case kCases[] = {
      {kTag, 8, {51, 51, 50, 50, 50, 50, 50, 50}},
      {kThreeWay, 3, {50, 51, 50, 50, 50, 50, 50, 50}},
      {kThreeTeams, 6, {51, 51, 50, 50, 50, 50, 50, 50}},
      {kFourWay, 4, {50, 51, 50, 50, 50, 50, 50, 50}},
      {kFourTeams, 8, {51, 51, 50, 50, 50, 50, 50, 50}},
      {kThreeOnThree, 6, {51, 51, 51, 50, 50, 50, 50, 50}},
      {kFourOnFour, 8, {51, 51, 51, 51, 50, 50, 50, 50}},
  };
  for (const Case& c : kCases) {
    Stage stage;
    SetAside(stage);
    for (Worker& worker : stage.W.Workers()) {
      worker.Morale = 50;
      worker.Attitude = 0;
    }
    stage.Match(c.Style, {"Ash", "Bea", "Cal", "Dot", "Eli", "Fay", "Gus", "Hal"}, 2);
    stage.S.Winner = stage.Uid("Bea");
    stage.Rate(40, 40);
    const int winners = 8 - static_cast<int>(std::count(c.Morale.begin(), c.Morale.end(), 50));
    ScriptDraws(stage.W, std::vector<int>(static_cast<std::size_t>(c.Draws + winners), 1));
    MatchConsequences(stage.Run);
    std::vector<int> morale;
    for (const Worker& worker : stage.W.Workers()) morale.push_back(worker.Morale);
    EXPECT_EQ(morale, c.Morale) << "style " << c.Style;
  }
}

TEST(MatchConsequences, OfABattleRoyalAreNone) {
  Stage stage(Eight().Feud("Ash", "Bea"));
  stage.Match(kSpecial, {"Ash", "Bea", "Cal", "Dot", "Eli", "Fay", "Gus", "Hal"}, kTenMan);
  stage.Result("Ash", "Bea");
  stage.Rate(95, 95);
  const World before = CopyOf(stage.W);
  ScriptDraws(stage.W, std::vector<int>{});
  MatchConsequences(stage.Run);
  ExpectSame(stage.W, before);
}

}  // namespace
}  // namespace grapplemont::test
