#include "show/overchange.h"

#include <gtest/gtest.h>

#include "records/angles.h"
#include "stage.h"

namespace grapplemont::test {
namespace {

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
