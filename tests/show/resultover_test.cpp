#include "show/overchange.h"

#include <gtest/gtest.h>

#include "stage.h"

namespace grapplemont::test {
namespace {

struct SinglesCase {
  std::string_view Why;
  int WinnerOver, LoserOver;
  std::string_view WinnerIs, LoserIs;
  int Finish, Aftermath, Crowd;
  std::vector<int> Draws;
  int WinnerAfter, LoserAfter;
};

TEST(ShiftOverSingles, DoesEachOfItsTestsAlone) {
  const SinglesCase kCases[] = {
      {"nothing between equals", 50, 50, "F", "F", 1, 1, 100, {2, 2}, 50, 50},
      {"loser, just not above by 5", 50, 55, "F", "F", 2, 1, 0, {2, 2}, 50, 55},
      {"loser above by 5", 50, 56, "F", "F", 2, 1, 0, {2, 2}, 50, 55},
      {"and not lucky", 50, 56, "F", "F", 2, 1, 0, {3, 3}, 50, 56},
      {"cleanly, not above by 10", 50, 60, "F", "F", 1, 1, 0, {1, 1}, 51, 60},
      {"cleanly, above by 10", 50, 61, "F", "F", 1, 1, 0, {1, 1}, 51, 60},
      {"not cleanly", 50, 61, "F", "F", 3, 1, 0, {1, 1}, 50, 61},
      {"crowd not above the loser", 50, 61, "F", "F", 2, 1, 61, {1, 1}, 51, 61},
      {"crowd above the loser", 50, 61, "F", "F", 2, 1, 62, {1, 1}, 51, 62},
      {"crowd above a loser by 10", 50, 60, "F", "F", 2, 1, 62, {1, 1}, 51, 60},
      {"winner by luck, not by 10", 50, 60, "F", "F", 2, 1, 0, {1, 2}, 50, 60},
      {"winner by luck", 50, 61, "F", "F", 2, 1, 0, {1, 2}, 51, 61},
      {"winner cleanly, not by 7", 50, 57, "F", "F", 1, 1, 0, {1, 1}, 50, 57},
      {"winner cleanly, by 7", 50, 58, "F", "F", 1, 1, 0, {1, 1}, 51, 58},
      {"and a louder crowd is no help", 50, 57, "F", "F", 2, 1, 100, {2, 2}, 50, 56},
      {"winner before a crowd as he is", 50, 58, "F", "F", 2, 1, 50, {1, 1}, 50, 58},
      {"winner before a louder crowd", 50, 58, "F", "F", 2, 1, 51, {1, 1}, 51, 58},
      {"everything", 50, 61, "F", "F", 1, 1, 100, {2, 2}, 53, 60},
      {"Heels shake hands", 50, 50, "H", "H", 1, 19, 0, {4, 1, 3, 1}, 46, 47},
      {"a Heel winner shakes hands", 50, 50, "H", "F", 1, 19, 0, {5, 1, 1}, 45, 50},
      {"a Heel loser shakes hands", 50, 50, "F", "H", 1, 19, 0, {1, 5, 1}, 50, 45},
      {"Faces and Tweeners may", 50, 50, "T", "F", 1, 19, 0, {1, 1}, 50, 50},
      {"a Face winner refuses", 50, 50, "F", "H", 1, 21, 0, {4, 1, 1}, 46, 50},
      {"a Heel winner refuses", 50, 50, "H", "F", 1, 21, 0, {1, 1}, 50, 50},
      {"a Face winner runs", 50, 50, "F", "F", 1, 24, 0, {1, 1}, 48, 50},
      {"a Heel winner runs", 50, 50, "H", "F", 1, 24, 0, {1, 1}, 50, 50},
      {"a Face loser refuses", 50, 50, "F", "F", 1, 22, 0, {1, 4, 1}, 50, 46},
      {"a Heel loser refuses", 50, 50, "F", "H", 1, 22, 0, {1, 1}, 50, 50},
      {"a Face loser runs", 50, 50, "F", "F", 1, 18, 0, {1, 1}, 50, 48},
      {"a Heel loser runs", 50, 50, "F", "H", 1, 18, 0, {1, 1}, 50, 50},
      {"held at 0", 3, 3, "H", "H", 1, 19, 0, {5, 1, 5, 1}, 0, 0},
      {"held at 100", 89, 100, "F", "F", 2, 1, 120, {1, 1}, 90, 100},
      {"his loss lowers what the crowd must beat", 50, 58, "H", "F", 2, 19, 49, {2, 1, 1}, 49, 58},
  };
  for (const SinglesCase& c : kCases) {
    Stage stage;
    stage.Match(kSingles, {"Bea", "Ash"});
    stage.Result("Bea", "Ash", c.Finish);
    stage.S.Aftermath = c.Aftermath;
    stage["Bea"].Over = c.WinnerOver;
    stage["Bea"].Disposition = c.WinnerIs;
    stage["Ash"].Over = c.LoserOver;
    stage["Ash"].Disposition = c.LoserIs;
    stage.Rate(0, c.Crowd);
    std::vector<ScriptedDraw> draws;  // each of 5
    for (const int draw : c.Draws) draws.emplace_back(5, draw);
    ScriptDraws(stage.W, draws);
    ShiftOver(stage.Run);
    EXPECT_EQ(stage["Bea"].Over, c.WinnerAfter) << c.Why;
    EXPECT_EQ(stage["Ash"].Over, c.LoserAfter) << c.Why;
  }
}

TEST(ShiftOverSingles, TellsWhatCameOfIt) {
  Stage stage;
  stage.W.Game().Difficulty = kEasy;
  stage.Match(kSingles, {"Ash", "Bea"});
  stage.Result("Ash", "Bea");
  stage.S.Aftermath = after1::kHandshake;
  for (const char* name : {"Ash", "Bea"}) stage[name].Disposition = "H";
  stage["Ash"].Over = 2;
  stage["Bea"].Over = 20;
  stage.Rate(0, 10);
  ScriptDraws(stage.W, {{5, 5}, {5, 2}, {5, 1}, {5, 2}});
  ShiftOver(stage.Run);
  EXPECT_EQ(stage.Run.Notes,
            "Bea lost 3 points of overness from this match. "
            "Ash gained 1 point of overness from this match. ")
      << "2 lost of the 5 drawn, 3 gained";
}

TEST(ShiftOver, LeavesDrawsAndOtherStylesAlone) {
  Stage stage;
  ScriptDraws(stage.W, std::vector<int>{});
  stage.Match(kSingles, {"Ash", "Bea"});
  stage.Draw(kDoubleDq);
  ShiftOver(stage.Run);
  stage.Match(kThreeWay, {"Ash", "Bea", "Cal"});
  stage.Result("Ash", "Bea");
  ShiftOver(stage.Run);
  EXPECT_EQ(stage.Overs(3), (std::vector<int>{50, 50, 50}));
}

TEST(ShiftOverTeams, DoesEachOfItsTestsAlone) {
  struct Case {
    std::string_view Why;
    std::array<int, 4> Overs;  // Ash and Bea, who win, Cal and Dot
    int Finish, Crowd;
    std::vector<int> Draws;  // Cal, Dot, Bea, Ash
    std::vector<int> After;
  };
  const Case kCases[] = {
      {"no gap", {50, 50, 60, 60}, 1, 100, {2, 2, 2, 2}, {50, 50, 60, 60}},
      {"gap, luck for Cal", {50, 50, 60, 61}, 3, 0, {2, 1, 1, 1}, {50, 50, 59, 61}},
      {"gap, luck for Dot", {50, 50, 60, 61}, 3, 0, {1, 2, 1, 1}, {50, 50, 60, 60}},
      {"gap, luck for Bea", {50, 50, 60, 61}, 3, 0, {1, 1, 2, 1}, {50, 51, 60, 61}},
      {"gap, luck for Ash", {50, 50, 60, 61}, 3, 0, {1, 1, 1, 2}, {51, 50, 60, 61}},
      {"gap, cleanly", {50, 50, 60, 61}, 1, 0, {1, 1, 1, 1}, {51, 51, 59, 60}},
      {"gap, crowd above each but Dot", {40, 50, 60, 71}, 3, 71, {1, 1, 1, 1}, {41, 51, 61, 71}},
      {"gap, crowd above Ash alone", {40, 50, 60, 61}, 3, 50, {1, 1, 1, 1}, {41, 50, 60, 61}},
      {"everything", {50, 50, 60, 61}, 1, 100, {2, 2, 2, 2}, {53, 53, 59, 60}},
      {"held", {0, 99, 100, 100}, 1, 120, {1, 1, 2, 2}, {3, 100, 100, 100}},
  };
  for (const Case& c : kCases) {
    Stage stage;
    stage.Match(kTag, {"Ash", "Bea", "Cal", "Dot"});
    stage.Result("Bea", "Dot", c.Finish);
    for (int i = 0; i < 4; ++i)
      stage.W.Workers()[i + 1].Over = c.Overs[static_cast<std::size_t>(i)];
    stage.Rate(0, c.Crowd);
    const std::vector<int>& d = c.Draws;
    ScriptDraws(stage.W, {{8, d[0]}, {6, d[1]}, {5, d[2]}, {5, d[3]}});
    ShiftOver(stage.Run);
    EXPECT_EQ(stage.Overs(4), c.After) << c.Why;
  }
}

TEST(ShiftOverTeams, KnowsTheWinnersWhereverTheyStand) {
  Stage stage;
  stage.Match(kTag, {"Ash", "Bea", "Cal", "Dot"});
  stage.Result("Cal", "Ash");
  stage["Ash"].Over = 80;
  ScriptDraws(stage.W, {1, 1, 1, 1});
  ShiftOver(stage.Run);
  EXPECT_EQ(stage.Overs(4), (std::vector<int>{79, 49, 51, 51}));
  EXPECT_EQ(stage.Run.Notes,
            "Ash lost overness from this match. Bea lost overness from this match. "
            "Dot gained overness from this match. Cal gained overness from this match. ");
}

TEST(ReportOver, SaysWhatTheDifficultyAllows) {
  struct Case {
    int Difficulty, Change;
    bool IsMatch, FeudEnding;
    std::string_view Says;
  };
  constexpr Case kCases[] = {
      {1, 0, true, false, ""},
      {1, 1, true, false, "Ash gained 1 point of overness from this match. "},
      {1, -1, true, false, "Ash lost 1 points of overness from this match. "},
      {1, -12, false, false, "Ash lost 12 points of overness from this segment. "},
      {1, 7, true, true, "Ash gained 7 points of overness from this feud ending. "},
      {2, 1, false, false, "Ash gained overness from this segment. "},
      {4, -1, true, false, "Ash lost overness from this match. "},
      {4, -1, false, true, "Ash lost overness from this feud ending. "},
  };
  for (const Case& c : kCases) {
    Stage stage;
    stage.W.Game().Difficulty = c.Difficulty;
    stage.Run.FeudEnding = c.FeudEnding;
    ReportOver(stage.Run, stage["Ash"], c.Change, c.IsMatch);
    EXPECT_EQ(stage.Run.Notes, c.Says);
  }
}

}  // namespace
}  // namespace grapplemont::test
