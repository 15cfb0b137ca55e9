#include <gtest/gtest.h>

#include "records/angles.h"
#include "show/overchange.h"
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
      {"cleanly, not above by 10", 50, 60, "F", "F", 1, 1, 0, {1, 1}, 51, 60},
      {"cleanly, above by 10", 50, 61, "F", "F", 1, 1, 0, {1, 1}, 51, 60},
      {"not cleanly", 50, 61, "F", "F", 3, 1, 0, {1, 1}, 50, 61},
      {"crowd not above the loser", 50, 61, "F", "F", 2, 1, 61, {1, 1}, 51, 61},
      {"crowd above the loser", 50, 61, "F", "F", 2, 1, 62, {1, 1}, 51, 62},
      {"winner by luck, not by 10", 50, 60, "F", "F", 2, 1, 0, {1, 2}, 50, 60},
      {"winner by luck", 50, 61, "F", "F", 2, 1, 0, {1, 2}, 51, 61},
      {"winner cleanly, not by 7", 50, 57, "F", "F", 1, 1, 0, {1, 1}, 50, 57},
      {"winner cleanly, by 7", 50, 58, "F", "F", 1, 1, 0, {1, 1}, 51, 58},
      {"and a louder crowd is no help", 50, 57, "F", "F", 2, 1, 100, {2, 2}, 50, 56},
      {"winner before a louder crowd", 50, 58, "F", "F", 2, 1, 51, {1, 1}, 51, 58},
      {"everything", 50, 61, "F", "F", 1, 1, 100, {2, 2}, 53, 60},
      {"Heels shake hands", 50, 50, "H", "H", 1, 19, 0, {4, 1, 3, 1}, 46, 47},
      {"a Face winner refuses", 50, 50, "F", "H", 1, 21, 0, {4, 1, 1}, 46, 50},
      {"a Heel winner refuses", 50, 50, "H", "F", 1, 21, 0, {1, 1}, 50, 50},
      {"a Face winner runs", 50, 50, "F", "F", 1, 24, 0, {1, 1}, 48, 50},
      {"a Face loser refuses", 50, 50, "F", "F", 1, 22, 0, {1, 4, 1}, 50, 46},
      {"a Face loser runs", 50, 50, "F", "F", 1, 18, 0, {1, 1}, 50, 48},
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

TEST(TalkOver, GainsAndLosesByDistance) {
  struct Case {
    std::string_view Why;
    int Over, Overall;
    bool IsSecondary;
    int Of, Draw;  // 0 for no draw
    int After;
  };
  constexpr Case kCases[] = {
      {"sensation", 50, 91, false, 4, 3, 53},
      {"sensation beside", 50, 91, true, 2, 2, 51},
      {"sensation beside, nothing gained", 50, 91, true, 2, 1, 50},
      {"no sensation", 50, 90, false, 3, 3, 53},
      {"for the top too", 92, 95, false, 4, 4, 96},
      {"as high as he", 91, 91, false, 0, 0, 91},
      {"clearly above", 50, 59, false, 3, 1, 51},
      {"clearly above, beside", 50, 59, true, 2, 2, 51},
      {"above", 50, 58, false, 0, 0, 50},
      {"nothing below 91 lifts the top", 90, 90, false, 0, 0, 90},
      {"held at 100", 99, 100, false, 4, 4, 100},
      {"a little below", 50, 35, false, 0, 0, 50},
      {"below", 50, 34, false, 0, 0, 48},
      {"below, beside", 50, 34, true, 0, 0, 48},
      {"not far below", 50, 30, false, 0, 0, 48},
      {"far below", 50, 29, false, 4, 4, 44},
      {"far below, beside", 50, 29, true, 0, 0, 48},
  };
  for (const Case& c : kCases) {
    Stage stage;
    stage.Talk(kInterview, kSingleTalk, {"Ash"});
    stage["Ash"].Over = c.Over;
    stage.Rate(0, 0, c.Overall);
    if (c.Of == 0)
      ScriptDraws(stage.W, std::vector<int>{});
    else
      ScriptDraws(stage.W, {{c.Of, c.Draw}});
    TalkOver(stage.Run, stage["Ash"], c.IsSecondary);
    EXPECT_EQ(stage["Ash"].Over, c.After) << c.Why;
  }
}

TEST(TalkConsequences, ReachWhoeverSpeaksByStyle) {
  struct Case {
    int Style;
    std::vector<int> After;  // a draw of 4 gives 4, the manager's of 2 gives 1
    std::vector<int> Draws;
  };
  const Case kCases[] = {
      {kSingleTalk, {54, 50, 50, 50, 50}, {4}},
      {kTeamTalk, {54, 54, 50, 50, 50}, {4, 4}},
      {kManagedTalk, {54, 51, 50, 50, 50}, {4, 2}},
      {kManagedTeamTalk, {54, 54, 51, 50, 50}, {4, 4, 2}},
  };
  for (const Case& c : kCases) {
    Stage stage;
    stage.Talk(kInterview, c.Style, {"Ash", "Bea", "Cal", "Dot", "Eli"});
    stage.Rate(0, 0, 100);
    ScriptDraws(stage.W, c.Draws);
    TalkConsequences(stage.Run);
    EXPECT_EQ(stage.Overs(5), c.After) << "style " << c.Style;
  }
}

TEST(TalkConsequences, ReachAnAnglesPeopleAndItsStablesLeader) {
  Stage stage(Eight().Stable("The Kiln", {"Eli", "Fay"}));
  stage["Fay"].Over = 60;
  stage.Talk(kAngle, kTeamFaceTurn, {"Ash", "Bea", "Cal", "Dot"});
  stage.Rate(0, 0, 100);
  ScriptDraws(stage.W, {1, 2, 3, 4});
  TalkConsequences(stage.Run);
  EXPECT_EQ(stage.Overs(6), (std::vector<int>{51, 52, 53, 54, 50, 60}));

  stage.Talk(kAngle, kImpression, {"Ash", "Bea"});
  stage.S.Worker[2] = stage.S.Worker[3] = 0;
  ScriptDraws(stage.W, {1});
  TalkConsequences(stage.Run);
  EXPECT_EQ(stage.Overs(2), (std::vector<int>{52, 52})) << "the one who is aped gains nothing";

  stage.Talk(kAngle, kStableAttack, {"Ash"});
  stage.S.Worker[1] = 0;
  stage.S.Text = "The Kiln";
  ScriptDraws(stage.W, {1, 4});
  TalkConsequences(stage.Run);
  EXPECT_EQ(stage.Overs(6), (std::vector<int>{53, 52, 53, 54, 50, 64}));
  EXPECT_NE(stage.Run.Notes.find("Fay gained overness from this segment. "), std::string::npos);
}

TEST(TalkConsequences, CountALeaderWhoIsKickedOutOnce) {
  Stage stage(Eight().Stable("The Kiln", {"Ash", "Bea"}));
  stage["Ash"].Over = 60;
  stage.Talk(kAngle, kStableKickOut, {"Ash"});
  stage.S.Text = "The Kiln";
  stage.Rate(0, 0, 100);
  ScriptDraws(stage.W, {2});
  TalkConsequences(stage.Run);
  EXPECT_EQ(stage.Overs(2), (std::vector<int>{62, 50}));
  EXPECT_EQ(stage["Ash"].Stable, "None");
}

/// Runs an angle at which nobody gains or loses.
void RunAngle(Stage& stage, int angle, std::initializer_list<const char*> cast) {
  stage.Talk(kAngle, angle, cast);
  stage.Rate(0, 0, 50);
  ScriptDraws(stage.W, std::vector<int>{});
  TalkConsequences(stage.Run);
}

TEST(TalkConsequences, MoveManagers) {
  for (const int angle : {kManagementIssues, kManagerialDebut, kManagersSurprise}) {
    Stage stage;
    stage["Ash"].Position = kManager;
    stage["Cal"].Manager = stage.Uid("Ash");
    if (angle == kManagementIssues)
      RunAngle(stage, angle, {"Ash", "Bea", "Cal"});
    else
      RunAngle(stage, angle, {"Ash", "Bea"});
    EXPECT_EQ(stage["Bea"].Manager, stage.Uid("Ash")) << angle;
    EXPECT_EQ(stage["Ash"].Manager, 0) << angle;
    EXPECT_EQ(stage["Cal"].Manager, angle == kManagementIssues ? 0 : stage.Uid("Ash")) << angle;
    EXPECT_EQ(stage.Run.Notes,
              std::string(angle == kManagementIssues ? "Ash no longer manages Cal. " : "") +
                  "Ash now manages Bea. ");
  }
}

TEST(TalkConsequences, TakeIntoAStable) {
  Stage stage(Eight().Stable("The Kiln", {"Eli", "Fay"}));
  stage.S.Text = "The Kiln";
  RunAngle(stage, kStableInduction, {"Ash"});
  EXPECT_EQ(stage["Ash"].Stable, "The Kiln");
  RunAngle(stage, kStableDebut, {"Bea"});
  EXPECT_EQ(stage["Bea"].Stable, "None");
  RunAngle(stage, kStableKickOut, {"Ash"});
  EXPECT_EQ(stage.Run.Notes, "Ash joined The Kiln. Ash is out of The Kiln. ");
}

TEST(TalkConsequences, AwardVacantTitles) {
  Stage stage(Eight()
                  .Title("CWA Crown")
                  .Title("CWA Pair", {}, {}, [](Title& t) { t.Singles = false; })
                  .Team("The Kindling", "Dot", "Cal"));
  stage.S.TitleName = "CWA Crown";
  RunAngle(stage, kAwardSingles, {"Ash", "Bea"});
  const Title& crown = Named(stage.W.Titles(), "CWA Crown");
  EXPECT_EQ(crown.Holder, stage.Uid("Bea"));
  EXPECT_EQ(crown.Reigns[0].Holder, "Bea");
  EXPECT_EQ(crown.Reigns[1].Holder, "Vacant");

  stage.S.TitleName = "CWA Pair";
  RunAngle(stage, kAwardTag, {"Ash", "Cal", "Dot"});
  const Title& pair = Named(stage.W.Titles(), "CWA Pair");
  EXPECT_EQ(pair.Holder, stage.Uid("Cal"));
  EXPECT_EQ(pair.Partner, stage.Uid("Dot"));
  EXPECT_EQ(pair.Reigns[0].Holder, "The Kindling");

  stage.S.TitleName = "CWA Crown";
  RunAngle(stage, kAwardSingles, {"Ash", "Eli"});
  EXPECT_EQ(crown.Holder, stage.Uid("Bea")) << "won it earlier in the show";
  EXPECT_EQ(stage.Run.Notes,
            "Bea was awarded the CWA Crown. The Kindling were awarded the CWA Pair Titles. ");
}

}  // namespace
}  // namespace grapplemont::test
