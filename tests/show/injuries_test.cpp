#include "show/aftermatch.h"

#include <gtest/gtest.h>

#include "stage.h"

namespace grapplemont::test {
namespace {

TEST(DrawInjuries, GoesByStrainAndCondition) {
  struct Case {
    int Strain, Condition, Odds;  // 0: nothing is drawn
  };
  constexpr Case kCases[] = {{0, 10, 0},   {1, 10, 0},   {2, 10, 0},   {3, 40, 400}, {3, 39, 200},
                             {4, 40, 250}, {4, 39, 125}, {5, 40, 150}, {5, 39, 75}};
  for (const Case& c : kCases) {
    Stage stage;
    stage.Match(kSingles, {"Ash", "Bea"});
    stage.Result("Bea", "Ash");
    stage.Run.Strain = c.Strain;
    stage["Ash"].Condition = stage["Bea"].Condition = c.Condition;
    if (c.Odds == 0)
      ScriptDraws(stage.W, std::vector<int>{});
    else
      ScriptDraws(stage.W, {{c.Odds, 2}, {c.Odds, 1}, {12, 1}, {6, 6}});
    DrawInjuries(stage.Run);
    EXPECT_EQ(stage["Ash"].Status, "Nor");
    EXPECT_EQ(stage["Bea"].Status, c.Odds == 0 ? "Nor" : "Inj");
    EXPECT_EQ(stage.Run.Notes, c.Odds == 0 ? ""
                                           : "Bea has sustained an injury as a result of a bad "
                                             "bump! Broken Arm, out for 6 months. ");
  }
}

TEST(DrawInjuries, ASickBumpThreatensTheLoserAlone) {
  for (const int strain : {1, 4}) {
    Stage stage;
    stage.Match(kTag, {"Ash", "Bea", "Cal", "Dot"});
    stage.Result("Cal", "Ash", kSickBump);
    stage.Run.Strain = strain;
    if (strain == 1)
      ScriptDraws(stage.W, {{40, 1}, {12, 12}, {6, 1}});
    else
      ScriptDraws(stage.W, {{40, 1}, {12, 12}, {6, 1}, {250, 2}, {250, 2}, {250, 2}});
    DrawInjuries(stage.Run);
    EXPECT_EQ(stage["Ash"].InjuryName, "Ripped Bicep");
    EXPECT_EQ(stage["Ash"].StatusMonths, 1);
  }
  Stage worn;
  worn.Match(kSingles, {"Ash", "Bea"});
  worn.Result("Ash", "Bea", kSickBump);
  worn["Bea"].Condition = 39;
  ScriptDraws(worn.W, {{20, 20}});
  DrawInjuries(worn.Run);
  EXPECT_EQ(worn["Bea"].Status, "Nor");
}

TEST(Injure, KnowsTwelveInjuriesAndLeavesTheInjured) {
  constexpr std::string_view kNames[] = {
      "Broken Arm",  "Broken Leg", "Back Injury", "Tricep Tear",  "Neck Injury",  "Eye Injury",
      "Broken Nose", "Torn Calf",  "Knee Injury", "Ankle Injury", "Damaged Hand", "Ripped Bicep"};
  for (int i = 0; i < 12; ++i) {
    Stage stage;
    ScriptDraws(stage.W, {{12, i + 1}, {6, 3}});
    Injure(stage.Run, stage["Ash"]);
    EXPECT_EQ(stage["Ash"].InjuryName, kNames[i]);
    const World before = CopyOf(stage.W);
    Injure(stage.Run, stage["Ash"]);
    ExpectSame(stage.W, before);
  }
}

}  // namespace
}  // namespace grapplemont::test
