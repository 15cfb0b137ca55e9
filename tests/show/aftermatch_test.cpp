#include "show/aftermatch.h"

#include "roster/postings.h"
#include "showrig.h"
#include "support/newsof.h"

namespace grapplemont::test {
namespace {

TEST(AfterMatch, SumsUpBeforeItLimits) {
  constexpr struct {
    int Position, Over, Morale, Attitude, Quality, Crowd;
    int OverAfter, MoraleAfter;
  } kCases[] = {{kJobber, 36, 6, 60, 80, 80, 39, 1},     // 3 fits: 6 - 3 - 5 + 3
                {kMainEvent, 40, 50, 0, 66, 0, 42, 50},  // 40 - 1 + 3
                {4, 34, 50, 0, 91, 0, 42, 50}};          // lifted twice
  for (const auto& c : kCases) {
    Stage stage;
    Worker& ash = stage["Ash"];
    ash.Position = c.Position;
    ash.Over = c.Over;
    ash.Morale = c.Morale;
    ash.Attitude = c.Attitude;
    stage.Rate(c.Quality, c.Crowd);
    ScriptDraws(stage.W, {{6, 1}, {2, 1}});
    AfterMatch(stage.Run, ash, false);
    EXPECT_EQ(ash.Over, c.OverAfter);
    EXPECT_EQ(ash.Morale, c.MoraleAfter);
  }
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

TEST(CardPosition, PullsAtWhoStandsInTheWrongPlace) {
  const std::string hot = "Road Agent: Ash is losing heat because you are pushing him too much.\n";
  const std::string cold =
      "Road Agent: Ash is losing morale because you are not pushing him enough.\n";
  const std::string tooHigh =
      "Ash: I think you might be pushing me too high up the card, the fans seem to be resenting "
      "me.\n";
  const std::string polite = "Ash: I think i should be higher up the card.\n";
  const std::string blunt = "Ash: I should be higher on the card, promote me up the roster.\n";
  const struct {
    int Position, Over, Attitude, Mood;
    int OverPull, MoralePull;
    std::string Mails;
  } kCases[] = {
      // in a Regional promotion
      {3, 40, 81, 2, 0, 0, ""},              // in place
      {4, 40, 61, 1, 0, 0, ""},              // a little low
      {4, 40, 61, 2, 0, 0, polite},          //
      {5, 40, 60, 2, 0, -3, blunt},          // low
      {6, 40, 60, 2, 0, -8, cold + blunt},   // far too low
      {3, 35, 81, 1, 0, 0, ""},              // a little high
      {3, 35, 80, 2, 0, 0, ""},              //
      {2, 35, 81, 2, -1, 0, tooHigh},        // high
      {1, 35, 81, 2, -3, 0, hot + tooHigh},  // far too high
  };
  for (const auto& c : kCases) {
    Stage stage;
    Worker& ash = stage["Ash"];
    ash.Position = c.Position;
    ash.Over = c.Over;
    ash.Attitude = c.Attitude;
    ash.Morale = 50;
    stage.Run.Strain = 0;
    stage.Rate(35, 35);  // what it takes off Morale by attitude is not meant here
    ash.Brawl = ash.Technical = ash.Speed = 60;
    ScriptDraws(stage.W, {{6, c.Mood}});
    const int byTheMatch = c.Over == 40 ? 0 : 3;
    AfterMatch(stage.Run, ash, false);
    EXPECT_EQ(ash.Over, c.Over + c.OverPull) << c.Position << " at " << c.Over;
    EXPECT_EQ(ash.Morale, 50 + byTheMatch + c.MoralePull) << c.Position << " at " << c.Over;
    EXPECT_EQ(NewsOf(stage.W), c.Mails) << c.Position << " at " << c.Over;
  }
}

TEST(CardPosition, SpeaksOfAWomanAsSuchAndLetsTheLegendSpeakHisWay) {
  Stage stage;
  const auto wears = [&](Worker& worker, int position, int over, int attitude) {
    worker.Position = position;
    worker.Over = over;
    worker.Attitude = attitude;
    stage.Run.Strain = 0;
    ScriptDraws(stage.W, {{6, worker.Name == "Bea" ? 1 : 2}});
    AfterMatch(stage.Run, worker, false);
  };
  Worker& legend = stage["Ash"];
  legend.Name = "Maul Gantry";
  wears(stage["Bea"], kMainEvent, 0, 50);
  wears(stage["Bea"], kJobber, 100, 50);
  wears(legend, kJobber - 2, 40, 61);
  wears(legend, kJobber - 2, 40, 60);
  wears(legend, kMidcard, 35, 100);  // is never pushed too high, if you ask them
  EXPECT_EQ(NewsOf(stage.W),
            "Road Agent: Bea is losing heat because you are pushing her too much.\n"
            "Road Agent: Bea is losing morale because you are not pushing her enough.\n"
            "Maul Gantry: Brother, I think Maulamania should be running wild higher up the card!\n"
            "Maul Gantry: I should be higher on the card, promote me up the roster, brother!\n");
}

TEST(DrawInjuries, GoesByStrainConditionAndSickBumps) {
  constexpr struct {
    int Strain, Condition, Finish;
    int Loser, Winner;  // the odds; 0: nothing is drawn
  } kCases[] = {{2, 10, kClean, 0, 0},      {3, 40, kClean, 400, 400}, {3, 39, kClean, 200, 200},
                {4, 40, kClean, 250, 250},  {5, 39, kClean, 75, 75},   {1, 40, kSickBump, 40, 0},
                {4, 39, kSickBump, 20, 125}};
  for (const auto& c : kCases) {
    Stage stage;
    stage.Match(kSingles, {"Ash", "Bea"});
    stage.Result("Bea", "Ash", c.Finish);
    stage.Run.Strain = c.Strain;
    stage["Ash"].Condition = stage["Bea"].Condition = c.Condition;
    const auto draw = [&](std::vector<ScriptedDraw> draws) {
      if (c.Loser != 0) draws.emplace(draws.begin(), c.Loser, 1);
      if (c.Winner != 0) draws.emplace_back(c.Winner, 2);
      ScriptDraws(stage.W, draws);
      DrawInjuries(stage.Run);
    };
    const std::vector<ScriptedDraw> injury = {{12, 7}, {6, 6}};
    draw(c.Loser == 0 ? std::vector<ScriptedDraw>() : injury);
    EXPECT_EQ(stage["Ash"].Status, c.Loser == 0 ? "Nor" : "Inj");
    EXPECT_EQ(stage["Bea"].Status, "Nor");
    EXPECT_EQ(stage.Run.Notes, c.Loser == 0 ? ""
                                            : "Ash has sustained an injury as a result of a bad "
                                              "bump! Broken Nose, out for 6 months. ");
    draw({});  // nobody is hurt twice
  }
}

TEST(HurtOthers, SparesThePartnerAndBringsMailsByPlace) {
  const struct {
    int Style;
    std::string_view Stiff;
    int Blow;
    std::string_view Mails;
    std::vector<int> Condition;
  } kCases[] = {
      {kTag,
       "Cal",
       10,
       "Ash: Cal was working too stiff, i could have been injured.\n"
       "Bea: I think Cal was too reckless in my match, i could have been seriously hurt.\n",
       {90, 90, 100, 100}},
      {kTag,
       "Ash",
       10,
       "Cal: Can you talk to Ash? There is a big difference between being enthusiastic and just "
       "being reckless.\n"
       "Dot: Ash was working too stiffly, i could have been badly hurt.\n",
       {100, 100, 90, 90}},
      {kSingles, "Bea", 9, "", {91, 100, 100, 100}},
  };
  for (const auto& c : kCases) {
    Stage stage;
    stage.Match(c.Style, {"Ash", "Bea", "Cal", "Dot"});
    ScriptDraws(stage.W,
                std::vector<ScriptedDraw>(c.Style == kTag ? 2U : 1U, ScriptedDraw(10, c.Blow)));
    HurtOthers(stage.Run, stage[c.Stiff]);
    EXPECT_EQ(NewsOf(stage.W), c.Mails);
    for (int i = 0; i < 4; ++i)
      EXPECT_EQ(stage.W.Workers()[i + 1].Condition, c.Condition[static_cast<std::size_t>(i)]);
  }
}

}  // namespace
}  // namespace grapplemont::test
