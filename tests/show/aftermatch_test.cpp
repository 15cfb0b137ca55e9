#include <gtest/gtest.h>

#include "roster/postings.h"
#include "show/aftermatch.h"
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

TEST(FittingPosition, ChangesJustAboveEachLimit) {
  // Each place counts as often as the Over that it fits.
  constexpr int kSums[] = {15641, 13716, 9846, 8791, 6135, 5568};
  for (int size = kGlobal; size <= kBackyard; ++size) {
    int sum = 0;
    for (int over = 0; over <= 100; ++over) sum += (over + 1) * FittingPosition(size, over);
    EXPECT_EQ(sum, kSums[size - 1]) << size;
  }
}

const char* const kHotMail =
    "Road Agent: Ash is losing heat because you are pushing him too much.\n";
const char* const kColdMail =
    "Road Agent: Ash is losing morale because you are not pushing him enough.\n";
const char* const kTooHigh =
    "Ash: I think you might be pushing me too high up the card, the fans seem to be resenting "
    "me.\n";
const char* const kPolite = "Ash: I think i should be higher up the card.\n";
const char* const kBlunt = "Ash: I should be higher on the card, promote me up the roster.\n";

TEST(CardPosition, PullsAtWhoStandsInTheWrongPlace) {
  struct Case {
    int Position, Over, Attitude, Mood;
    int OverPull, MoralePull;
    std::string Mails;
  };
  const Case kCases[] = {
      // in a Regional promotion
      {3, 40, 81, 2, 0, 0, ""},                                 // in place
      {4, 40, 61, 1, 0, 0, ""},                                 // a little low
      {4, 40, 61, 2, 0, 0, kPolite},                            //
      {4, 40, 60, 2, 0, 0, kBlunt},                             //
      {5, 40, 60, 3, 0, -3, ""},                                // low
      {5, 40, 61, 2, 0, -3, kPolite},                           //
      {6, 40, 60, 6, 0, -8, kColdMail},                         // far too low
      {6, 40, 60, 2, 0, -8, kColdMail + std::string(kBlunt)},   //
      {3, 35, 81, 1, 0, 0, ""},                                 // a little high
      {3, 35, 81, 2, 0, 0, kTooHigh},                           //
      {3, 35, 80, 2, 0, 0, ""},                                 //
      {2, 35, 50, 2, -1, 0, ""},                                // high
      {1, 35, 80, 2, -3, 0, kHotMail},                          // far too high
      {1, 10, 81, 2, -3, 0, kHotMail + std::string(kTooHigh)},  //
  };
  for (const Case& c : kCases) {
    Stage stage;
    Worker& ash = stage["Ash"];
    ash.Position = c.Position;
    ash.Over = c.Over;
    ash.Attitude = c.Attitude;
    ScriptDraws(stage.W, {{6, c.Mood}});
    const CardPull pull = CheckCardPosition(stage.W, ash);
    EXPECT_EQ(pull.Over, c.OverPull) << c.Position << " at " << c.Over;
    EXPECT_EQ(pull.Morale, c.MoralePull) << c.Position << " at " << c.Over;
    EXPECT_EQ(stage.Mails(), c.Mails) << c.Position << " at " << c.Over;
  }
}

TEST(CardPosition, SpeaksOfAWomanAsSuch) {
  Stage stage;
  Worker& bea = stage["Bea"];
  ScriptDraws(stage.W, {1, 1});
  bea.Position = kMainEvent;
  bea.Over = 0;
  CheckCardPosition(stage.W, bea);
  bea.Position = kJobber;
  bea.Over = 100;
  CheckCardPosition(stage.W, bea);
  EXPECT_EQ(stage.Mails(),
            "Road Agent: Bea is losing heat because you are pushing her too much.\n"
            "Road Agent: Bea is losing morale because you are not pushing her enough.\n");
}

TEST(CardPosition, LetsTheLegendSpeakHisWay) {
  Stage stage;
  Worker& legend = stage["Ash"];
  legend.Name = "Maul Gantry";
  ScriptDraws(stage.W, {2, 2, 2});
  legend.Position = kJobber - 2;
  legend.Over = 40;
  legend.Attitude = 61;
  CheckCardPosition(stage.W, legend);
  legend.Attitude = 60;
  CheckCardPosition(stage.W, legend);
  legend.Position = kMidcard;
  legend.Over = 35;
  legend.Attitude = 100;
  CheckCardPosition(stage.W, legend);  // is never pushed too high, if you ask him
  EXPECT_EQ(stage.Mails(),
            "Maul Gantry: Brother, I think Maulamania should be running wild higher up the card!\n"
            "Maul Gantry: I should be higher on the card, promote me up the roster, brother!\n");
}

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

TEST(HurtOthers, SparesThePartnerAndBringsMailsByPlace) {
  struct Case {
    std::string_view Stiff;
    std::string_view Mails;
    std::array<int, 4> Condition;
  };
  const Case kCases[] = {
      {"Cal",
       "Ash: Cal was working too stiff, i could have been injured.\n"
       "Bea: I think Cal was too reckless in my match, i could have been seriously hurt.\n",
       {90, 90, 100, 100}},
      {"Ash",
       "Cal: Can you talk to Ash? There is a big difference between being enthusiastic and just "
       "being reckless.\n"
       "Dot: Ash was working too stiffly, i could have been badly hurt.\n",
       {100, 100, 90, 90}},
  };
  for (const Case& c : kCases) {
    Stage stage;
    stage.Match(kTag, {"Ash", "Bea", "Cal", "Dot"});
    ScriptDraws(stage.W, {{10, 10}, {10, 10}});
    HurtOthers(stage.Run, stage[c.Stiff]);
    EXPECT_EQ(stage.Mails(), c.Mails);
    for (int i = 0; i < 4; ++i)
      EXPECT_EQ(stage.W.Workers()[i + 1].Condition, c.Condition[static_cast<std::size_t>(i)]);
  }
}

TEST(HurtOthers, IsNoCaseForAMailBelowTheHardestBlow) {
  Stage stage;
  stage.Match(kSingles, {"Ash", "Bea"});
  stage["Ash"].Condition = 4;
  ScriptDraws(stage.W, {{10, 9}, {10, 1}});
  HurtOthers(stage.Run, stage["Bea"]);
  HurtOthers(stage.Run, stage["Ash"]);
  EXPECT_EQ(stage["Ash"].Condition, 0);
  EXPECT_EQ(stage["Bea"].Condition, 99);
  EXPECT_EQ(stage.Mails(), "");
}

TEST(Injure, LeavesTheInjured) {
  Stage stage;
  ScriptDraws(stage.W, {{12, 7}, {6, 3}});
  Injure(stage.Run, stage["Ash"]);
  EXPECT_EQ(stage["Ash"].InjuryName, "Broken Nose");
  const World before = CopyOf(stage.W);
  Injure(stage.Run, stage["Ash"]);
  ExpectSame(stage.W, before);
}

}  // namespace
}  // namespace grapplemont::test
