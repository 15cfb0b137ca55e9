#include "show/aftermatch.h"

#include <gtest/gtest.h>

#include "stage.h"

namespace grapplemont::test {
namespace {

/// One whose place on the card is nobody's business, so that nothing is drawn for it.
Worker& Manager(Stage& stage) {
  stage["Ash"].Position = kManager;
  return stage["Ash"];
}

TEST(AfterMatch, WearsByStrain) {
  struct Case {
    int Strain, Of, Draw, Condition, After;
  };
  constexpr Case kCases[] = {
      {1, 2, 1, 100, 96},  {1, 2, 2, 100, 95},   {2, 5, 1, 100, 94},  {2, 5, 5, 100, 90},
      {3, 7, 1, 100, 91},  {3, 7, 7, 100, 85},   {4, 16, 1, 100, 87}, {4, 16, 16, 100, 72},
      {5, 30, 1, 100, 79}, {5, 30, 30, 100, 50}, {5, 30, 30, 49, 0},  {1, 2, 2, 5, 0},
  };
  for (const Case& c : kCases) {
    Stage stage;
    Worker& ash = Manager(stage);
    ash.Attitude = 0;
    ash.Condition = c.Condition;
    stage.Run.Strain = c.Strain;
    ScriptDraws(stage.W, {{c.Of, c.Draw}});
    AfterMatch(stage.Run, ash, false);
    EXPECT_EQ(ash.Condition, c.After) << "Strain " << c.Strain << ", draw " << c.Draw;
  }
}

/// Morale after a match of quality and crowd `rated`, for skills of 50 but `technical`.
int MoraleAfter(int attitude, int over, int technical, int rated, int morale = 50) {
  Stage stage;
  Worker& ash = Manager(stage);
  ash.Attitude = attitude;
  ash.Over = over;
  ash.Technical = technical;
  ash.Morale = morale;
  stage.Rate(rated, rated);
  ScriptDraws(stage.W, {{2, 1}});
  AfterMatch(stage.Run, ash, false);
  return ash.Morale;
}

TEST(AfterMatch, MovesMoraleByAttitudeAndDistance) {
  // Over and skills of 50 make a standing of 50, which a rating of 35 meets.
  constexpr int kRated[] = {36, 35, 34, 30, 29, 25, 24};
  struct Case {
    int Attitude;
    std::array<int, 7> Change;
  };
  constexpr Case kCases[] = {
      {100, {3, 0, -5, -5, -10, -10, -17}}, {75, {3, 0, -5, -5, -10, -10, -17}},
      {74, {3, 0, -5, -5, -10, -10, -15}},  {50, {3, 0, -5, -5, -10, -10, -15}},
      {49, {2, 0, -3, -3, -6, -6, -9}},     {25, {2, 0, -3, -3, -6, -6, -9}},
      {24, {0, 0, 0, 0, 0, 0, 0}},          {0, {0, 0, 0, 0, 0, 0, 0}},
  };
  for (const Case& c : kCases)
    for (std::size_t i = 0; i < c.Change.size(); ++i)
      EXPECT_EQ(MoraleAfter(c.Attitude, 50, 50, kRated[i]), 50 + c.Change[i])
          << "Attitude " << c.Attitude << ", rated " << kRated[i];
}

TEST(AfterMatch, TakesStandingFromOverAndTheBetterSkill) {
  EXPECT_EQ(MoraleAfter(60, 80, 50, 56), 50) << "80 x 0.7 + 50 x 0.3 = 71";
  EXPECT_EQ(MoraleAfter(60, 80, 50, 57), 53);
  EXPECT_EQ(MoraleAfter(60, 50, 91, 55), 50) << "half of 50 + 91 = 70";
  EXPECT_EQ(MoraleAfter(60, 50, 91, 56), 53);
}

TEST(AfterMatch, WeighsTheMatchAsItsRating) {
  Stage stage;
  Worker& ash = Manager(stage);
  ash.Morale = 50;
  stage.Rate(0, 50);
  ScriptDraws(stage.W, {{2, 1}});
  AfterMatch(stage.Run, ash, false);
  EXPECT_EQ(ash.Morale, 50) << "the loud crowd makes it 35";
}

TEST(AfterMatch, HoldsMoraleWithinItsLimits) {
  EXPECT_EQ(MoraleAfter(80, 50, 50, 90, 99), 100);
  EXPECT_EQ(MoraleAfter(80, 50, 50, 0, 16), 0);
}

TEST(AfterMatch, PleasesTheWinnerAndLeavesTheRest) {
  Stage stage;
  Worker& ash = Manager(stage);
  ash.Morale = 50;
  stage.Rate(0, 0);
  stage.Run.Strain = 5;
  ScriptDraws(stage.W, {{3, 2}});
  AfterMatch(stage.Run, ash, true);
  EXPECT_EQ(ash.Morale, 52);
  EXPECT_EQ(ash.Condition, 100);
}

TEST(AfterMatch, LiftsTheUnknownByAGreatMatch) {
  struct Case {
    int Over, Quality, After;
  };
  constexpr Case kCases[] = {
      {80, 91, 80}, {79, 91, 84}, {79, 90, 79}, {40, 66, 40}, {39, 66, 42},
      {39, 65, 39}, {34, 91, 42}, {35, 91, 40},  // the second look sees what the first gave
  };
  for (const Case& c : kCases)
    for (const bool isWinner : {false, true}) {
      Stage stage;
      Worker& ash = Manager(stage);
      ash.Attitude = 0;
      ash.Over = c.Over;
      stage.Rate(c.Quality, 50);
      ScriptDraws(stage.W, {{isWinner ? 3 : 2, 1}});
      AfterMatch(stage.Run, ash, isWinner);
      EXPECT_EQ(ash.Over, c.After) << c.Over << " in a match of " << c.Quality;
      EXPECT_EQ(stage.Run.Notes, c.After == c.Over ? "" : "Ash gained overness from this match. ");
    }
}

TEST(AfterMatch, SumsUpBeforeItLimits) {
  Stage stage;
  Worker& ash = stage["Ash"];
  ash.Position = kJobber;  // 3 fits: -3 and -5 in morale
  ash.Morale = 6;
  ash.Attitude = 60;
  stage.Rate(80, 80);
  ScriptDraws(stage.W, {{6, 1}, {2, 1}});
  ash.Over = 36;  // 3 fits
  AfterMatch(stage.Run, ash, false);
  EXPECT_EQ(ash.Morale, 1) << "6 - 3 - 5 + 3";
}

TEST(AfterMatch, PullsByTheCardBeforeAGreatMatchLifts) {
  Stage stage;
  Worker& ash = stage["Ash"];
  ash.Position = kMainEvent;  // 3 fits
  ash.Over = 40;
  ash.Attitude = 0;
  stage.Rate(66, 0);
  ScriptDraws(stage.W, {{6, 1}, {2, 1}});
  AfterMatch(stage.Run, ash, false);
  EXPECT_EQ(ash.Over, 42) << "40 - 1 + 3";
}

}  // namespace
}  // namespace grapplemont::test
