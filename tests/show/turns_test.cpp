#include "show/turns.h"

#include <gtest/gtest.h>

#include "stage.h"

namespace grapplemont::test {
namespace {

/// A match at Crowd 61 in which Ash turns on Bea, who has Over 50.
struct Turn : Stage {
  Turn(std::string_view turnerIs, std::string_view otherIs, int turnerOver = 50) {
    Match(kSingles, {"Ash", "Bea"});
    Rate(50, 61);
    Worker& ash = (*this)["Ash"];
    ash.Disposition = turnerIs;
    ash.Over = turnerOver;
    ash.TurnPending = true;
    (*this)["Bea"].Disposition = otherIs;
  }
  void Apply() { ApplyTurn(Run, (*this)["Ash"], &(*this)["Bea"]); }
};

TEST(ApplyTurn, FollowsBothAlignmentsAndWhoIsMoreOver) {
  struct Case {
    std::string_view Turner, Other, Below, Equal, Above;  // "H" turned; "H!" and the crowd is cool
  };
  constexpr Case kCases[] = {
      {"F", "F", "H", "H", "H"}, {"F", "T", "H", "H", "H!"}, {"F", "H", "T!", "H!", "H!"},
      {"H", "H", "F", "F", "F"}, {"H", "T", "F", "F", "F!"}, {"H", "F", "T!", "T!", "T!"},
      {"T", "F", "H", "H", "H"}, {"T", "H", "F", "F", "F"},  {"T", "T", "H!", "F!", "F!"},
  };
  for (const Case& c : kCases) {
    const std::string_view expected[] = {c.Below, c.Equal, c.Above};
    for (int i = 0; i < 3; ++i) {
      Turn turn(c.Turner, c.Other, 49 + i);
      const bool isFlat = expected[i].size() == 2;
      if (isFlat)
        ScriptDraws(turn.W, {{15, 1}, {20, 1}});
      else
        ScriptDraws(turn.W, {{10, 1}, {10, 1}, {3, 1}});
      turn.Apply();
      EXPECT_EQ(turn["Ash"].Disposition, expected[i].substr(0, 1)) << c.Turner << c.Other << i;
      EXPECT_EQ(turn.Run.Crowd, isFlat ? 42 : 62) << c.Turner << c.Other << i;
      EXPECT_FALSE(turn["Ash"].TurnPending);
      EXPECT_EQ(Day(turn["Ash"].LastTurn), kGameStart);
    }
  }
}

TEST(ApplyTurn, OnNobodyIsOnTheOwnKind) {
  constexpr std::array<std::string_view, 2> kTurned[] = {{"F", "H"}, {"H", "F"}};
  for (const auto& [from, to] : kTurned) {
    Turn turn(from, "T");
    ScriptDraws(turn.W, {4, 5, 2});
    ApplyTurn(turn.Run, turn["Ash"], nullptr);
    EXPECT_EQ(turn["Ash"].Disposition, to);
    EXPECT_EQ(turn["Ash"].Over, 53);
  }
  Turn tweener("T", "F");
  ScriptDraws(tweener.W, {1, 1});
  ApplyTurn(tweener.Run, tweener["Ash"], nullptr);
  EXPECT_EQ(tweener["Ash"].Disposition, "F");
  EXPECT_EQ(tweener.Run.Crowd, 42);
}

TEST(ApplyTurn, TellsEachOutcomeAndPaysForIt) {
  struct Case {
    std::string_view Turner, Other;
    int DaysAgo;  // of the last turn
    bool IsPending;
    std::vector<ScriptedDraw> Draws;
    int Crowd, Over, Morale;
    std::string_view Notes, Becomes;
  };
  const Case kCases[] = {
      {"F",
       "F",
       999,
       true,
       {{10, 7}, {10, 2}, {3, 3}},
       68,
       49,
       80,
       "Ash's turn was completed, and he is now a heel. "
       "Ash lost 1 points of overness from this match. ",
       "H"},
      {"T",
       "H",
       999,
       true,
       {{10, 10}, {10, 10}, {3, 1}},
       71,
       59,
       80,
       "Ash's turn was completed, and he is now a face. "
       "Ash gained 9 points of overness from this match. ",
       "F"},
      {"H",
       "F",
       999,
       true,
       {{15, 15}, {20, 20}},
       42,
       25,
       50,
       "Ash's turn didn't work very well, and that affected the crowd. "
       "Ash lost 25 points of overness from this match. ",
       "T"},
      {"F",
       "F",
       90,
       true,
       {{40, 40}},
       48,
       35,
       30,
       "The fans realised that Ash turned not too long ago, and so this time they didn't care so "
       "much. Ash lost 15 points of overness from this match. ",
       "H"},
      {"F",
       "F",
       999,
       false,
       {{40, 1}},
       36,
       38,
       69,
       "The fans were baffled by Ash's behaviour, and that killed their enthusiasm. "
       "Ash lost 12 points of overness from this match. ",
       "F"},
  };
  for (const Case& c : kCases) {
    Turn turn(c.Turner, c.Other);
    turn.W.Game().Difficulty = kEasy;
    turn["Ash"].TurnPending = c.IsPending;
    turn["Ash"].LastTurn = kGameStart - std::chrono::days(c.DaysAgo);
    ScriptDraws(turn.W, c.Draws);
    turn.Apply();
    EXPECT_EQ(turn.Run.Crowd, c.Crowd) << c.Notes;
    EXPECT_EQ(turn["Ash"].Over, c.Over) << c.Notes;
    EXPECT_EQ(turn["Ash"].Morale, c.Morale) << c.Notes;
    EXPECT_EQ(turn.Run.Notes, c.Notes);
    EXPECT_EQ(turn["Ash"].Disposition, c.Becomes) << c.Notes;
    EXPECT_FALSE(turn["Ash"].TurnPending);
    EXPECT_EQ(Day(turn["Ash"].LastTurn), kGameStart);
  }
}

TEST(ApplyTurn, SpeaksOfAWomanAndOfATweener) {
  Turn turn("H", "H");
  turn["Bea"].TurnPending = true;
  ScriptDraws(turn.W, {1, 1, 1});
  ApplyTurn(turn.Run, turn["Bea"], nullptr);
  EXPECT_EQ(turn.Run.Notes, "Bea's turn was completed, and she is now a face. ");
}

TEST(ApplyTurn, RemembersTheLastTurnForAYear) {
  struct Case {
    int DaysAgo;
    std::vector<int> Memory;  // draws of 15
    bool IsTooSoon;
  };
  const Case kCases[] = {
      {0, {}, true},        {90, {}, true},    {91, {10}, true},       {91, {11, 5}, true},
      {91, {11, 6}, false}, {180, {10}, true}, {180, {15, 15}, false}, {181, {5}, true},
      {181, {6}, false},    {365, {5}, true},  {365, {6}, false},      {366, {}, false},
      {-1, {}, false},
  };
  for (const Case& c : kCases) {
    Turn turn("F", "F");
    turn["Ash"].LastTurn = kGameStart - std::chrono::days(c.DaysAgo);
    std::vector<int> draws = c.Memory;
    if (c.IsTooSoon)
      draws.push_back(40);
    else
      draws.insert(draws.end(), {1, 10, 3});
    ScriptDraws(turn.W, draws);
    turn.Apply();
    EXPECT_EQ(turn.Run.Crowd, c.IsTooSoon ? 48 : 62) << c.DaysAgo << " days ago";
  }
}

TEST(ApplyTurn, LooksAtAlignmentsLast) {
  Turn flat("H", "F");  // too soon as well
  flat["Ash"].LastTurn = kGameStart;
  ScriptDraws(flat.W, {1, 1});
  flat.Apply();
  EXPECT_EQ(flat.Run.Crowd, 42);

  Turn baffling("H", "F");
  baffling["Ash"].LastTurn = kGameStart - std::chrono::days(100);
  baffling["Ash"].TurnPending = false;
  ScriptDraws(baffling.W, {{15, 15}, {15, 15}, {40, 1}});
  baffling.Apply();
  EXPECT_EQ(baffling.Run.Crowd, 36) << "it is remembered before it is seen to make no sense";
}

TEST(ApplyTurn, CutsWhatItPays) {
  Turn turn("F", "F", 8);
  turn.W.Game().Difficulty = kEasy;
  turn["Ash"].TurnPending = false;
  turn["Ash"].Morale = 5;
  ScriptDraws(turn.W, {40});
  turn.Apply();
  EXPECT_EQ(turn["Ash"].Over, 0);
  EXPECT_EQ(turn["Ash"].Morale, 0);
  EXPECT_NE(turn.Run.Notes.find("Ash lost 8 points of overness"), std::string::npos);
}

}  // namespace
}  // namespace grapplemont::test
