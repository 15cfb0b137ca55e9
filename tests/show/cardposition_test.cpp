#include "show/cardposition.h"

#include <gtest/gtest.h>

#include "roster/postings.h"
#include "stage.h"

namespace grapplemont::test {
namespace {

TEST(FittingPosition, ChangesJustAboveEachLimit) {
  struct Case {
    int Size, Over, Fit;
  };
  constexpr Case kCases[] = {
      {1, 0, 6},  {1, 20, 6}, {1, 21, 5}, {1, 40, 5}, {1, 41, 4}, {1, 60, 4}, {1, 61, 3},
      {1, 80, 3}, {1, 81, 2}, {1, 90, 2}, {1, 91, 1}, {2, 20, 6}, {2, 21, 5}, {2, 40, 5},
      {2, 41, 4}, {2, 55, 4}, {2, 56, 3}, {2, 70, 3}, {2, 71, 2}, {2, 80, 2}, {2, 81, 1},
      {3, 10, 6}, {3, 11, 5}, {3, 20, 5}, {3, 21, 4}, {3, 40, 4}, {3, 41, 3}, {3, 50, 3},
      {3, 51, 2}, {3, 65, 2}, {3, 66, 1}, {4, 10, 6}, {4, 11, 5}, {4, 20, 5}, {4, 21, 4},
      {4, 35, 4}, {4, 36, 3}, {4, 45, 3}, {4, 46, 2}, {4, 55, 2}, {4, 56, 1}, {5, 0, 5},
      {5, 5, 5},  {5, 6, 4},  {5, 10, 4}, {5, 11, 3}, {5, 20, 3}, {5, 21, 2}, {5, 35, 2},
      {5, 36, 1}, {6, 0, 3},  {6, 10, 3}, {6, 11, 2}, {6, 25, 2}, {6, 26, 1}, {6, 100, 1},
  };
  for (const Case& c : kCases)
    EXPECT_EQ(FittingPosition(c.Size, c.Over), c.Fit) << "size " << c.Size << ", Over " << c.Over;
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

TEST(CardPosition, DoesNotConcernManagersAndNonWrestlers) {
  for (const int position : {kManager, kNonWrestler}) {
    Stage stage;
    stage["Ash"].Position = position;
    ScriptDraws(stage.W, std::vector<int>{});
    const CardPull pull = CheckCardPosition(stage.W, stage["Ash"]);
    EXPECT_EQ(pull.Over, 0);
    EXPECT_EQ(pull.Morale, 0);
  }
}

}  // namespace
}  // namespace grapplemont::test
