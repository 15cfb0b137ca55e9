#include "show/overchange.h"
#include "showrig.h"

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
      {"everything", 50, 61, "F", "F", 1, 1, 100, {2, 2}, 53, 60},
      {"Heels shake hands", 50, 50, "H", "H", 1, 19, 0, {4, 1, 3, 1}, 46, 47},
      {"a Face winner refuses", 50, 50, "F", "H", 1, 21, 0, {4, 1, 1}, 46, 50},
      {"a Face winner runs", 50, 50, "F", "F", 1, 24, 0, {1, 1}, 48, 50},
      {"a Face loser refuses", 50, 50, "F", "F", 1, 22, 0, {1, 4, 1}, 50, 46},
      {"a Face loser runs", 50, 50, "F", "F", 1, 18, 0, {1, 1}, 50, 48},
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

TEST(ShiftOverTeams, DrawsForEachOfTheFour) {
  // Cal and Dot, 21 above the two who win.
  const struct {
    int Finish, Crowd;
    std::vector<int> Draws;  // Cal, Dot, Bea, Ash
    std::vector<int> After;
  } kCases[] = {{kCountOut, 0, {2, 1, 1, 1}, {50, 50, 59, 61}},
                {kCountOut, 0, {1, 1, 2, 1}, {50, 51, 60, 61}},
                {kClean, 100, {2, 2, 2, 2}, {53, 53, 59, 60}}};
  for (const auto& c : kCases) {
    Stage stage;
    stage.Match(kTag, {"Ash", "Bea", "Cal", "Dot"});
    stage.Result("Bea", "Dot", c.Finish);
    stage["Cal"].Over = 60;
    stage["Dot"].Over = 61;
    stage.Rate(0, c.Crowd);
    const std::vector<int>& d = c.Draws;
    ScriptDraws(stage.W, {{8, d[0]}, {6, d[1]}, {5, d[2]}, {5, d[3]}});
    ShiftOver(stage.Run);
    EXPECT_EQ(stage.Overs(4), c.After);
  }
}

TEST(ReportOver, SaysWhatTheDifficultyAllows) {
  constexpr struct {
    int Difficulty, Change;
    bool IsMatch, FeudEnding;
    std::string_view Says;
  } kCases[] = {
      {kEasy, 0, true, false, ""},
      {kEasy, 1, true, false, "Ash gained 1 point of overness from this match. "},
      {kEasy, -1, true, false, "Ash lost 1 points of overness from this match. "},
      {kEasy, 7, true, true, "Ash gained 7 points of overness from this feud ending. "},
      {kEasy + 1, -2, false, false, "Ash lost overness from this segment. "},
  };
  for (const auto& c : kCases) {
    Stage stage;
    stage.W.Game().Difficulty = c.Difficulty;
    stage.Run.FeudEnding = c.FeudEnding;
    stage.S.Kind = c.IsMatch ? kMatch : kAngle;
    ReportOver(stage.Run, stage["Ash"], c.Change, "");
    EXPECT_EQ(stage.Run.Notes, c.Says);
  }
}

TEST(TalkConsequences, GiveAndTakeByDistance) {
  constexpr struct {
    std::string_view Why;
    int Over, Overall;
    int Of, Draw;  // 0 for no draw
    int After;
    int DrawBeside, Beside;  // of 2, for a manager who stands by; 0 for no draw
  } kCases[] = {
      {"sensation", 50, 91, 4, 3, 53, 2, 51},       {"no sensation", 50, 90, 3, 3, 53, 1, 50},
      {"for the top too", 92, 95, 4, 4, 96, 2, 93}, {"as high as he", 91, 91, 0, 0, 91, 0, 91},
      {"clearly above", 50, 59, 3, 1, 51, 2, 51},   {"above", 50, 58, 0, 0, 50, 0, 50},
      {"a little below", 50, 35, 0, 0, 50, 0, 50},  {"not far below", 50, 30, 0, 0, 48, 0, 48},
      {"far below", 50, 29, 4, 4, 44, 0, 48},
  };
  for (const auto& c : kCases) {
    Stage stage;
    stage.Talk(kInterview, kManagedTalk, {"Ash", "Bea", "Cal"});
    stage["Ash"].Over = stage["Bea"].Over = c.Over;
    stage.Rate(0, 0, c.Overall);
    std::vector<ScriptedDraw> draws;
    if (c.Of != 0) draws.emplace_back(c.Of, c.Draw);
    if (c.DrawBeside != 0) draws.emplace_back(2, c.DrawBeside);
    ScriptDraws(stage.W, draws);
    TalkConsequences(stage.Run);
    EXPECT_EQ(stage.Overs(3), (std::vector<int>{c.After, c.Beside, 50})) << c.Why;
  }
}

TEST(TalkConsequences, ReachWhoeverSpeaksByStyle) {
  const struct {
    int Style;
    std::vector<int> After, Draws;  // a draw of 4 gives 4, the manager's of 2 gives 1
  } kCases[] = {
      {kSingleTalk, {54, 50, 50, 50}, {4}},
      {kTeamTalk, {54, 54, 50, 50}, {4, 4}},
      {kManagedTeamTalk, {54, 54, 51, 50}, {4, 4, 2}},
  };
  for (const auto& c : kCases) {
    Stage stage;
    stage.Talk(kInterview, c.Style, {"Ash", "Bea", "Cal", "Dot", "Eli"});
    stage.Rate(0, 0, 100);
    ScriptDraws(stage.W, c.Draws);
    TalkConsequences(stage.Run);
    EXPECT_EQ(stage.Overs(4), c.After) << "style " << c.Style;
  }
}

TEST(TalkConsequences, ReachAnAnglesPeopleAndItsStablesLeaderOnce) {
  const struct {
    int Angle;
    std::initializer_list<const char*> People;
    std::vector<int> Draws, After;  // of Ash, Bea, Cal, Dot; Eli and Fay, who leads the stable
  } kCases[] = {
      {kTeamFaceTurn, {"Ash", "Bea", "Cal", "Dot"}, {1, 2, 3, 4}, {51, 52, 53, 54, 50, 60}},
      {kImpression, {"Ash", "Bea"}, {1}, {51, 50, 50, 50, 50, 60}},  // who is aped gains nothing
      {kStableAttack, {"Ash"}, {1, 4}, {51, 50, 50, 50, 50, 64}},
      {kStableKickOut, {"Fay"}, {2}, {50, 50, 50, 50, 50, 62}},
  };
  for (const auto& c : kCases) {
    Stage stage(Eight().Stable("The Kiln", {"Eli", "Fay"}));
    stage["Fay"].Over = 60;
    stage.Talk(kAngle, c.Angle, c.People);
    stage.S.Text = "The Kiln";
    stage.Rate(0, 0, 100);
    ScriptDraws(stage.W, c.Draws);
    TalkConsequences(stage.Run);
    EXPECT_EQ(stage.Overs(6), c.After) << "angle " << c.Angle;
  }
}

/// Runs an angle at which nobody gains or loses.
void RunAngle(Stage& stage, int angle, std::initializer_list<const char*> cast) {
  stage.Talk(kAngle, angle, cast);
  stage.Rate(0, 0, 50);
  ScriptDraws(stage.W, std::vector<int>{});
  TalkConsequences(stage.Run);
}

TEST(TalkConsequences, MoveManagersAndMembers) {
  const struct {
    int Angle;
    std::initializer_list<const char*> People;
    std::string_view Notes;
  } kCases[] = {{kManagementIssues,
                 {"Ash", "Bea", "Cal"},
                 "Ash no longer manages Cal. Ash now manages Bea. "},
                {kManagersSurprise, {"Ash", "Bea"}, "Ash now manages Bea. "},
                {kStableInduction, {"Ash"}, "Ash joined The Kiln. "},
                {kStableKickOut, {"Eli"}, "Eli is out of The Kiln. "},
                {kStableDebut, {"Bea"}, ""}};
  for (const auto& c : kCases) {
    Stage stage(Eight().Stable("The Kiln", {"Eli", "Fay"}));
    stage.S.Text = "The Kiln";
    stage["Cal"].Manager = stage.Uid("Ash");
    RunAngle(stage, c.Angle, c.People);
    EXPECT_EQ(stage.Run.Notes, c.Notes) << c.Angle;
    EXPECT_EQ(stage["Cal"].Manager, c.Angle == kManagementIssues ? 0 : stage.Uid("Ash"));
    EXPECT_EQ(stage["Bea"].Manager, c.Notes.ends_with("Bea. ") ? stage.Uid("Ash") : 0);
    EXPECT_EQ(stage["Ash"].Stable, c.Angle == kStableInduction ? "The Kiln" : "None");
    EXPECT_EQ(stage["Eli"].Stable, c.Angle == kStableKickOut ? "None" : "The Kiln");
  }
}

TEST(TalkConsequences, AwardVacantTitles) {
  Stage stage(Eight()
                  .Title("CWA Crown")
                  .Title("CWA Pair", {}, {}, [](Title& t) { t.Singles = false; })
                  .Team("The Kindling", "Dot", "Cal"));
  stage.S.TitleName = "CWA Crown";
  RunAngle(stage, kAwardSingles, {"Ash", "Bea"});
  RunAngle(stage, kAwardSingles, {"Ash", "Eli"});  // it has been won by then
  EXPECT_EQ(stage.W.Titles()[1].Holder, stage.Uid("Bea"));
  EXPECT_EQ(stage.W.Titles()[1].Reigns[0].Holder, "Bea");
  EXPECT_EQ(stage.W.Titles()[1].Reigns[1].Holder, "Vacant");
  stage.S.TitleName = "CWA Pair";
  RunAngle(stage, kAwardTag, {"Ash", "Cal", "Dot"});
  EXPECT_EQ(stage.W.Titles()[2].Holder, stage.Uid("Cal"));
  EXPECT_EQ(stage.W.Titles()[2].Partner, stage.Uid("Dot"));
  EXPECT_EQ(stage.Run.Notes,
            "Bea was awarded the CWA Crown. The Kindling were awarded the CWA Pair Titles. ");
}

}  // namespace
}  // namespace grapplemont::test
