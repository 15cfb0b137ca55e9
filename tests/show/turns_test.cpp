#include "show/turns.h"
#include "records/angles.h"
#include "showrig.h"

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
  constexpr struct {
    std::string_view Turner, Other, Below, Equal, Above;  // "H" turned; "H!" and the crowd is cool
  } kCases[] = {
      {"F", "F", "H", "H", "H"}, {"F", "T", "H", "H", "H!"}, {"F", "H", "T!", "H!", "H!"},
      {"H", "H", "F", "F", "F"}, {"H", "T", "F", "F", "F!"}, {"H", "F", "T!", "T!", "T!"},
      {"T", "F", "H", "H", "H"}, {"T", "H", "F", "F", "F"},  {"T", "T", "H!", "F!", "F!"},
  };
  for (const auto& c : kCases) {
    const std::string_view expected[] = {c.Below, c.Equal, c.Above};
    for (int i = 0; i < 3; ++i) {
      Turn turn(c.Turner, c.Other, 49 + i);
      turn.W.SetChance(std::make_unique<SteadyDraws>(1));
      turn.Apply();
      EXPECT_EQ(turn["Ash"].Disposition, expected[i].substr(0, 1)) << c.Turner << c.Other << i;
      EXPECT_EQ(turn.Run.Crowd, expected[i].size() == 2 ? 42 : 62) << c.Turner << c.Other << i;
    }
  }
  // On nobody is on the own kind.
  for (const auto& [from, to] : {std::pair("F", "H"), {"H", "F"}, {"T", "F"}}) {
    Turn turn(from, "T");
    turn.W.SetChance(std::make_unique<SteadyDraws>(1));
    ApplyTurn(turn.Run, turn["Ash"], nullptr);
    EXPECT_EQ(turn["Ash"].Disposition, to);
  }
}

TEST(ApplyTurn, TellsEachOutcomeAndPaysForIt) {
  constexpr std::string_view
      kDone = "Ash's turn was completed, and he is now a heel. ",
      kFlat = "Ash's turn didn't work very well, and that affected the crowd. ",
      kTooSoon =
          "The fans realised that Ash turned not too long ago, and so this time they didn't "
          "care so much. ",
      kBaffling = "The fans were baffled by Ash's behaviour, and that killed their enthusiasm. ";
  const struct {
    std::string_view Turner, Other;
    int DaysAgo;  // of the last turn
    bool IsPending;
    std::vector<ScriptedDraw> Draws;
    int Crowd, Over, Morale;
    std::string_view Notes;
    int Lost;  // points of Over
    std::string_view Becomes;
  } kCases[] = {
      {"F", "F", 999, true, {{10, 7}, {10, 2}, {3, 3}}, 68, 49, 80, kDone, 1, "H"},
      {"H", "F", 999, true, {{15, 15}, {20, 20}}, 42, 25, 50, kFlat, 25, "T"},
      {"F", "F", 90, true, {{40, 40}}, 48, 35, 30, kTooSoon, 15, "H"},
      {"F", "F", 999, false, {{40, 1}}, 36, 38, 69, kBaffling, 12, "F"},
  };
  for (const auto& c : kCases) {
    Turn turn(c.Turner, c.Other);
    turn.W.Game().Difficulty = kEasy;
    turn["Ash"].TurnPending = c.IsPending;
    turn["Ash"].LastTurn = kGameStart - std::chrono::days(c.DaysAgo);
    ScriptDraws(turn.W, c.Draws);
    turn.Apply();
    EXPECT_EQ(turn.Run.Crowd, c.Crowd) << c.Notes;
    EXPECT_EQ(turn["Ash"].Over, c.Over) << c.Notes;
    EXPECT_EQ(turn["Ash"].Morale, c.Morale) << c.Notes;
    EXPECT_EQ(turn.Run.Notes, std::string(c.Notes) + "Ash lost " + std::to_string(c.Lost) +
                                  " points of overness from this match. ");
    EXPECT_EQ(turn["Ash"].Disposition, c.Becomes) << c.Notes;
    EXPECT_FALSE(turn["Ash"].TurnPending);
    EXPECT_EQ(Day(turn["Ash"].LastTurn), kGameStart);
  }
}

TEST(ApplyTurn, RemembersTheLastTurnForAYear) {
  const struct {
    int DaysAgo;
    std::vector<int> Memory;  // draws of 15
    bool IsTooSoon;
  } kCases[] = {{0, {}, true},       {90, {}, true},        {91, {10}, true},
                {91, {11, 5}, true}, {180, {11, 6}, false}, {181, {5}, true},
                {365, {6}, false},   {366, {}, false},      {-1, {}, false}};
  for (const auto& c : kCases) {
    Turn turn("F", "F");
    turn["Ash"].LastTurn = kGameStart - std::chrono::days(c.DaysAgo);
    std::vector<int> draws = c.Memory;
    draws.insert(draws.end(), c.IsTooSoon ? 1 : 3, 3);
    ScriptDraws(turn.W, draws);
    turn.Apply();
    EXPECT_EQ(turn.Run.Crowd, c.IsTooSoon ? 48 : 64) << c.DaysAgo << " days ago";
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

/// Everybody is in it: Ash and Bea against Cal and Dot, Eli to Hal running in.
struct Booking : Stage {
  using Stage::Stage;
  void RunIns() {
    S.Other1 = Uid("Eli");
    S.Other2 = Uid("Fay");
    S.Other3 = Uid("Gus");
    S.Other4 = Uid("Hal");
  }
  /// "Eli on Bea, Fay on nobody".
  std::string Turns() {
    std::string turns;
    for (const TurnCall& call : BookedTurns(W, S)) {
      const Worker* other = W.FindWorker(call.Other);
      turns += (turns.empty() ? "" : ", ") + W.FindWorker(call.Turner)->Name.Str() + " on " +
               (other ? other->Name.Str() : "nobody");
    }
    return turns;
  }
};

TEST(BookedTurns, OfSinglesNeedAPurposeAndItsOccasion) {
  constexpr struct {
    int Finish, Aftermath;
    std::string_view RunIn, Winner, Loser, Saver;  // purposes 5, 10, 11, 31; Bea wins over Ash
  } kCases[] = {
      {kClean, 1, "", "", "", ""},
      {kCountOut, 1, "", "Bea on Ash", "", ""},
      {kInterference, 1, "Eli on Ash", "Bea on Ash", "", ""},
      {kBotchedInterference, 1, "Eli on Bea", "", "", ""},
      {kClean, 2, "", "", "Ash on nobody", ""},
      {kClean, 4, "Eli on Ash", "", "", ""},
      {kClean, 7, "", "", "Ash on Bea", ""},
      {kClean, 8, "", "Bea on Ash", "", ""},
      {kClean, 10, "Eli on Ash", "Bea on Ash", "", ""},
      {kClean, 11, "Eli on Bea", "", "Ash on Bea", ""},
      {kClean, 12, "", "", "Ash on Eli", ""},
      {kClean, 19, "", "Bea on Ash", "Ash on Bea", ""},
      {kClean, 21, "", "", "Ash on Bea", ""},
      {kDqThroughInterference, 26, "", "", "", "Fay on Eli"},
  };
  for (const auto& c : kCases) {
    const std::pair<int, std::string_view> purposes[] = {
        {5, c.RunIn}, {10, c.Winner}, {11, c.Loser}, {31, c.Saver}, {1, ""}, {3, ""}};
    for (const auto& [purpose, turns] : purposes) {
      Booking booking;
      booking.Match(kSingles, {"Ash", "Bea"});
      booking.Result("Bea", "Ash", c.Finish);
      booking.RunIns();
      booking.S.Aftermath = c.Aftermath;
      booking.S.Purpose = purpose;
      EXPECT_EQ(booking.Turns(), turns)
          << "finish " << c.Finish << ", aftermath " << c.Aftermath << ", purpose " << purpose;
    }
  }
}

TEST(BookedTurns, OfTeamsGoByFinishAftermathAndPurpose) {
  constexpr struct {
    int Finish, Aftermath, Purpose;
    std::string_view Turns;  // Bea pins Cal
  } kCases[] = {
      {kClean, 1, 1, ""},
      {kPartnerTurns, 1, 1, "Dot on Cal"},
      {kClean, 4, 1, "Ash on Bea"},
      {kClean, 1, 12, "Ash on Cal"},
      {kClean, 1, 14, "Cal on Bea"},
      {kClean, 1, 16, "Ash on Cal, Bea on Cal"},
      {kInterference, 1, 18, "Eli on Cal"},
      {kBotchedInterference, 1, 18, "Eli on Bea"},
      {kDqThroughInterference, 1, 18, "Eli on Bea"},
      {kInterference, 1, 19, "Eli on Cal, Fay on Cal"},
      {kDqThroughInterference, 12, 18, "Eli on Bea"},
      {kClean, 16, 14, "Cal on Dot"},
      {kClean, 16, 17, "Cal on Dot, Dot on Cal"},
      {kPartnerTurns, 17, 12, "Dot on Cal, Ash on Cal"},
      {kBotchedInterference, 13, 14, "Cal on Eli"},
      {kInterference, 18, 36, "Gus on Eli, Hal on Eli"},
      {kClean, 21, 34, "Gus on Ash"},
      {kClean, 23, 36, "Gus on Cal, Hal on Cal"},
      {kClean, 27, 36, ""},
  };
  for (const auto& c : kCases) {
    Booking booking;
    booking.Match(kTag, {"Ash", "Bea", "Cal", "Dot"});
    booking.Result("Bea", "Cal", c.Finish);
    booking.RunIns();
    booking.S.Aftermath = c.Aftermath;
    booking.S.Purpose = c.Purpose;
    EXPECT_EQ(booking.Turns(), c.Turns)
        << "finish " << c.Finish << ", aftermath " << c.Aftermath << ", purpose " << c.Purpose;
  }
}

TEST(BookedTurns, ChooseTheActAtWhichATurnCanComeOff) {
  Booking booking;
  booking.Match(kSingles, {"Ash", "Bea"});
  booking.Result("Bea", "Ash", kInterference);
  booking.RunIns();
  booking.S.Aftermath = after1::kTwoOnWinner;
  booking.S.Purpose = purpose1::kTurnRunIn;
  EXPECT_EQ(booking.Turns(), "Eli on Ash");
  booking["Ash"].Disposition = "H";  // no Face's turn on a Heel is liked
  EXPECT_EQ(booking.Turns(), "Eli on Bea");
  booking["Bea"].Disposition = "H";
  EXPECT_EQ(booking.Turns(), "Eli on Ash");
}

TEST(BookedTurns, OfTeamsInADrawLookAcrossTheRing) {
  Booking booking;
  booking.Match(kTag, {"Dot", "Cal", "Bea", "Ash"});
  booking.Draw(kNoContest);
  booking.RunIns();
  booking.S.Purpose = purpose2::kTurnFirstTeam;
  EXPECT_EQ(booking.Turns(), "Dot on Bea, Cal on Bea");
  booking.S.Purpose = purpose2::kTurnWorker4;
  EXPECT_EQ(booking.Turns(), "Ash on Dot");
  booking.S.Purpose = purpose2::kTurnOthers12;
  EXPECT_EQ(booking.Turns(), "Eli on nobody, Fay on nobody");
  booking.S.Purpose = purpose2::kGoodMatch;
  booking.Result("Bea", "Dot", kPartnerTurns);
  EXPECT_EQ(booking.Turns(), "Cal on Dot") << "by who takes the fall";
}

TEST(BookedTurns, OfBigTeamsAreTheirFinish) {
  constexpr struct {
    int Style, Finish;
    std::string_view Turns;
  } kCases[] = {
      {kThreeOnThree, 2, ""}, {kThreeOnThree, 3, "Ash on Bea"}, {kThreeOnThree, 8, "Fay on Dot"},
      {kThreeOnThree, 9, ""}, {kFourOnFour, 4, "Bea on Ash"},   {kFourOnFour, 10, "Hal on Eli"},
      {kFourOnFour, 11, ""}};
  for (const auto& c : kCases) {
    Booking booking;
    booking.Match(c.Style, {"Ash", "Bea", "Cal", "Dot", "Eli", "Fay", "Gus", "Hal"});
    booking.Result("Ash", "Hal", c.Finish);
    EXPECT_EQ(booking.Turns(), c.Turns) << c.Style << ", " << c.Finish;
  }
}

TEST(BookedTurns, OfInterviewsAreThoseWhoSpeak) {
  constexpr std::string_view kTurns[] = {"Ash on Bea", "Ash on Cal, Bea on Cal", "Bea on Cal",
                                         "Bea on Dot, Cal on Dot"};
  for (int style = 1; style <= 4; ++style) {
    Booking booking;
    booking.Talk(kInterview, style, {"Ash", "Bea", "Cal", "Dot", "Eli"});
    for (const int purpose : {int(kVerbalAttack), int(kTalkTurn)}) {
      booking.S.Purpose = purpose;
      EXPECT_EQ(booking.Turns(), purpose == kTalkTurn ? kTurns[style - 1] : "") << style;
    }
  }
}

TEST(BookedTurns, OfAnglesAreSomeAlwaysAndSomeOfThePending) {
  constexpr struct {
    int Angle;
    std::string_view Always, Pending;
  } kCases[] = {
      {kWalking, "", ""},
      {kAmbush, "", "Dot on Bea"},
      {kHeelTurnAngle, "Ash on Bea", "Ash on Bea"},
      {kStableInduction, "", "Ash on nobody"},
      {kStableKickOut, "", "Ash on Gus"},
      {kTeamFaceTurn, "Ash on Cal, Bea on Dot", "Ash on Cal, Bea on Dot"},
      {kRejectedProposal, "", "Bea on Ash"},
  };
  for (const auto& c : kCases)
    for (const bool isPending : {false, true}) {
      Booking booking(Eight().Stable("The Kiln", {"Fay", "Gus", "Ash"}));
      booking["Gus"].Over = 60;
      booking["Ash"].Over = 70;
      booking.Talk(kAngle, c.Angle, {"Ash", "Bea", "Cal", "Dot"});
      booking.S.Text = "The Kiln";
      for (Worker& worker : booking.W.Workers()) worker.TurnPending = isPending;
      EXPECT_EQ(booking.Turns(), isPending ? c.Pending : c.Always) << "angle " << c.Angle;
    }
}

}  // namespace
}  // namespace grapplemont::test
