#include "booking/wizard/refusals.h"

#include <gtest/gtest.h>

#include "booking/ring.h"
#include "booking/wizard/objections.h"

namespace grapplemont::test {
namespace {

using Lines = std::vector<std::string>;

/// Somebody's numbers in a case.
struct Numbers {
  int Over, Attitude;
};

World Roster() {
  return BookingRoster().Game("CWA");
}

void Give(World& world, const std::string& name, Numbers numbers) {
  Worker& worker = Named(world.Workers(), name);
  worker.Over = numbers.Over;
  worker.Attitude = numbers.Attitude;
}

Lines WordsAt(const World& world, const Segment& match, MatchStep step) {
  Lines words;
  for (const Refusal& refusal : RefusalsAt(world, match, step)) words.push_back(refusal.Words);
  return words;
}

std::vector<std::string> Men(int count) {
  std::vector<std::string> names;
  for (int i = 1; i <= count; ++i) names.push_back("Man " + std::to_string(i));
  return names;
}

/// Man 1 is the loser of everything, Man 3 of the fewest, so that both stand on different sides in
/// every style.
Segment LostByMan1(const World& world, int style, int type) {
  Segment match = MatchOf(
      world, style, type,
      Men(style == kSpecial ? 10 : FindMatchStyle(style)->Sides * FindMatchStyle(style)->PerSide));
  match.Winner = UidOf(world, style == kThreeOnThree || style == kFourOnFour ? "Man 6" : "Man 3");
  match.Loser = UidOf(world, "Man 1");
  return match;
}

std::string WinnerOf(const Segment& match) {
  return "Man " + std::to_string(match.Winner);
}

/// A loser and a winner of 50 in Over: how often he objects, and the level of his grievance.
struct GapRow {
  Numbers Loser;
  int Times;
  int Level;
};

TEST(Refusals, OfTheSinglesLoserComeAtTheirThresholds) {
  const GapRow kRows[] = {
      {{81, 96}, 1, 3}, {{80, 96}, 0, 0}, {{81, 75}, 1, 3}, {{71, 74}, 1, 2}, {{71, 75}, 0, 0},
      {{70, 74}, 0, 0}, {{61, 39}, 1, 1}, {{61, 40}, 0, 0}, {{60, 39}, 0, 0}, {{71, 39}, 2, 2},
      {{81, 74}, 2, 3}, {{81, 39}, 3, 3}, {{50, 39}, 0, 0},
  };
  for (const GapRow& row : kRows) {
    SCOPED_TRACE(std::to_string(row.Loser.Over) + ", " + std::to_string(row.Loser.Attitude));
    World world = Roster();
    Give(world, "Man 1", row.Loser);
    Give(world, "Man 2", {50, 96});
    Segment match = MatchOf(world, kSingles, kPlainSingles, {"Man 1", "Man 2"});
    StoreResult(match, UidOf(world, "Man 2"), {});
    match.Finish = kBotchedInterference;
    match.Aftermath = after1::kTantrum;
    EXPECT_EQ(WordsAt(world, match, kResultStep),
              Lines(static_cast<std::size_t>(row.Times),
                    "Man 1: I am not losing this match, he is not in my league."));
    EXPECT_EQ(GrievancesOf(world, match)[UidOf(world, "Man 1")], row.Level);

    StoreResult(match, 0, {});
    EXPECT_EQ(WordsAt(world, match, kResultStep),
              Lines(static_cast<std::size_t>(row.Times),
                    "Man 1: I should win this match, he is not in my league."));
    EXPECT_EQ(GrievancesOf(world, match)[UidOf(world, "Man 1")], row.Level);
    std::swap(match.Worker[0], match.Worker[1]);
    EXPECT_EQ(WordsAt(world, match, kResultStep).size(), static_cast<std::size_t>(row.Times))
        << "a draw asks both";
  }
}

TEST(Refusals, OfMenAgainstWomen) {
  for (const auto& [attitude, level, drawLevel] : {std::tuple(94, 5, 4), std::tuple(95, 0, 0)}) {
    World world = Roster();
    Give(world, "Man 1", {50, attitude});
    Give(world, "Woman 1", {50, 20});
    Segment match = MatchOf(world, kSingles, kPlainSingles, {"Man 1", "Woman 1"});
    match.Aftermath = after1::kTantrum;
    StoreResult(match, UidOf(world, "Woman 1"), {});
    EXPECT_EQ(WordsAt(world, match, kResultStep),
              level ? Lines{"Man 1: I am not losing to a woman."} : Lines());
    EXPECT_EQ(GrievancesOf(world, match)[1], level);
    StoreResult(match, 0, {});
    EXPECT_EQ(WordsAt(world, match, kResultStep),
              level ? Lines{"Man 1: I am not drawing with a woman."} : Lines());
    EXPECT_EQ(GrievancesOf(world, match)[1], drawLevel);
    StoreResult(match, UidOf(world, "Man 1"), {});
    EXPECT_EQ(WordsAt(world, match, kResultStep), Lines()) << "a woman minds nothing";
  }
  World world = Roster();
  Give(world, "Woman 2", {81, 80});
  Give(world, "Woman 1", {50, 20});
  Segment match = MatchOf(world, kSingles, kPlainSingles, {"Woman 1", "Woman 2"});
  StoreResult(match, UidOf(world, "Woman 1"), {});
  EXPECT_EQ(WordsAt(world, match, kResultStep),
            Lines{"Woman 2: I am not losing this match, she is not in my league."});
}

/// Sums of a losing pair against a pair of 100.
struct TagRow {
  bool FirstWins;
  Numbers Losers;
  Lines Says;
  int Level;
};

TEST(Refusals, OfTheLosingPairComeAtTheirThresholds) {
  const std::string kLeague = ": We are not losing this match, they are not in our league.";
  const std::string kPlain = ": We are not losing this match.";
  const TagRow kRows[] = {
      {true, {141, 190}, {kLeague}, 3},
      {true, {140, 190}, {}, 0},
      {false, {131, 190}, {kLeague}, 3},
      {false, {130, 190}, {}, 0},
      {true, {141, 179}, {kLeague, kLeague}, 3},
      {true, {141, 180}, {kLeague}, 3},
      {true, {140, 179}, {}, 0},
      {false, {140, 179}, {kLeague}, 3},
      {false, {121, 129}, {kLeague}, 2},
      {false, {121, 130}, {}, 0},
      {false, {120, 129}, {}, 0},
      {false, {101, 99}, {kPlain}, 1},
      {false, {101, 100}, {}, 0},
      {false, {100, 99}, {}, 0},
      {false, {141, 179}, {kLeague, kLeague}, 3},
      {false, {141, 180}, {kLeague}, 3},
      {true, {121, 129}, {kLeague}, 2},
      {true, {121, 130}, {}, 0},
      {true, {120, 129}, {}, 0},
      {true, {101, 99}, {kPlain}, 1},
      {true, {101, 100}, {}, 0},
      {true, {100, 99}, {}, 0},
      {false, {141, 99}, {kLeague, kLeague, kLeague, kPlain}, 3},
  };
  for (const TagRow& row : kRows) {
    SCOPED_TRACE(std::to_string(row.Losers.Over) + ", " + std::to_string(row.Losers.Attitude));
    World world = Roster();
    const int losing = row.FirstWins ? 3 : 1, winning = row.FirstWins ? 1 : 3;
    const auto man = [](int i) { return "Man " + std::to_string(i); };
    Give(world, man(losing), {row.Losers.Over - 60, row.Losers.Attitude / 2});
    Give(world, man(losing + 1), {60, row.Losers.Attitude - row.Losers.Attitude / 2});
    Give(world, man(winning), {40, 96});
    Give(world, man(winning + 1), {60, 96});
    Segment match = MatchOf(world, kTag, kPlainTag, Men(4));
    StoreResult(match, winning, {losing});
    match.Finish = kCheating;
    Lines expected = row.Says;
    for (std::string& line : expected) line = man(losing) + " \\ " + man(losing + 1) + line;
    EXPECT_EQ(WordsAt(world, match, kResultStep), expected);
    auto levels = GrievancesOf(world, match);
    EXPECT_EQ(levels[losing], row.Level);
    EXPECT_EQ(levels[losing + 1], row.Level);
    EXPECT_EQ(levels[winning], 0);
  }
}

TEST(Refusals, OfPairsInADraw) {
  const std::string kLine = "Man 3 \\ Man 4: We should win this match, they are not in our league.";
  for (const auto& [over, attitude, times, level] :
       {std::tuple(141, 175, 2, 3), std::tuple(140, 175, 1, 1), std::tuple(141, 174, 3, 3),
        std::tuple(121, 174, 2, 2), std::tuple(120, 174, 1, 1), std::tuple(111, 190, 1, 1),
        std::tuple(110, 20, 0, 0)}) {
    SCOPED_TRACE(std::to_string(over) + ", " + std::to_string(attitude));
    World world = Roster();
    Give(world, "Man 3", {over - 60, attitude / 2});
    Give(world, "Man 4", {60, attitude - attitude / 2});
    Give(world, "Man 1", {40, 96});
    Give(world, "Man 2", {60, 96});
    Segment match = MatchOf(world, kTag, kPlainTag, Men(4));
    StoreResult(match, 0, {});
    for (const bool swapped : {false, true}) {
      if (swapped) {
        std::swap(match.Worker[0], match.Worker[2]);
        std::swap(match.Worker[1], match.Worker[3]);
      }
      EXPECT_EQ(WordsAt(world, match, kResultStep), Lines(static_cast<std::size_t>(times), kLine))
          << "a draw asks both pairs";
      EXPECT_EQ(GrievancesOf(world, match)[3], level);
      EXPECT_EQ(GrievancesOf(world, match)[4], level);
    }
  }
}

TEST(Refusals, OfPairsOfMenAgainstAPairWithAWoman) {
  for (const auto& [attitude, minds] : {std::pair(184, true), std::pair(185, false)}) {
    World world = Roster();
    Give(world, "Man 1", {50, 90});
    Give(world, "Man 2", {50, attitude - 90});
    Give(world, "Man 3", {50, 96});
    Segment match = MatchOf(world, kTag, kPlainTag, {"Man 1", "Man 2", "Man 3", "Woman 1"});
    StoreResult(match, 3, {1});
    match.Finish = kCheating;
    EXPECT_EQ(
        WordsAt(world, match, kResultStep),
        minds ? Lines{"Man 1 \\ Man 2: We are not losing to a team including a woman."} : Lines());
    EXPECT_EQ(GrievancesOf(world, match)[2], minds ? 5 : 0);
    StoreResult(match, 0, {});
    EXPECT_EQ(WordsAt(world, match, kResultStep),
              minds ? Lines{"Man 1 \\ Man 2: We are not drawing with a team that has a woman on "
                            "it."}
                    : Lines());
    EXPECT_EQ(GrievancesOf(world, match)[1], minds ? 4 : 0);
    EXPECT_EQ(GrievancesOf(world, match)[2], minds ? 4 : 0);
    StoreResult(match, 1, {3});
    EXPECT_EQ(WordsAt(world, match, kResultStep), Lines()) << "the losers are not both men";
  }
}

TEST(Refusals, OfTheOneLoserOfOtherStylesComeAtTheirThresholds) {
  const GapRow kRows[] = {
      {{81, 96}, 1, 3}, {{80, 96}, 0, 0}, {{71, 94}, 1, 2}, {{71, 95}, 0, 0},
      {{70, 94}, 0, 0}, {{61, 89}, 1, 1}, {{61, 90}, 0, 0}, {{60, 89}, 0, 0},
      {{51, 49}, 1, 1}, {{51, 50}, 0, 0}, {{50, 49}, 0, 0}, {{81, 49}, 4, 3},
  };
  struct Form {
    int Style, Type;
    const char* Words;
  };
  const Form kForms[] = {
      {kThreeWay, kTriangle, ": I am not losing this match to "},
      {kFourWay, 2, ": I am not losing this match to "},
      {kThreeTeams, kTriangle, ": We are not losing this match to them."},
      {kThreeOnThree, 1, ": We are not losing this match to them."},
      {kFourOnFour, kPlainEightMan, ": We are not losing this match to them."},
      {kThreeWay, kElimination, ": I think i am a more worthy winner of this match."},
      {kFourWay, kElimination, ": I think i am a more worthy winner of this match."},
      {kThreeTeams, kElimination, ": We are not losing this match to them."},
      {kFourTeams, kElimination, ": We are not losing this match to them."},
  };
  for (const Form& form : kForms)
    for (const GapRow& row : kRows) {
      SCOPED_TRACE(form.Words + std::to_string(row.Loser.Over) + ", " +
                   std::to_string(row.Loser.Attitude));
      World world = Roster();
      Segment match = LostByMan1(world, form.Style, form.Type);
      Give(world, "Man 1", row.Loser);
      Give(world, WinnerOf(match), {50, 96});
      std::string words = std::string("Man 1") + form.Words;
      if (words.ends_with(" to ")) words += WinnerOf(match);
      EXPECT_EQ(WordsAt(world, match, kResultStep),
                Lines(static_cast<std::size_t>(row.Times), words));
      EXPECT_EQ(GrievancesOf(world, match)[1], row.Level);
    }
}

TEST(Refusals, OfMenWhoLoseOtherStylesToAWoman) {
  struct Form {
    int Style, Type;
    const char* Words;
  };
  const Form kForms[] = {
      {kThreeWay, kTriangle, "Man 1: I am not losing to a woman."},
      {kFourWay, kElimination, "Man 1: I am not losing out to a woman."},
      {kFourTeams, kElimination, "Man 1: We are not losing to a team containing a woman."},
      {kThreeOnThree, 1, "Man 1: We are not losing to a team containing a woman."},
  };
  for (const Form& form : kForms)
    for (const int attitude : {94, 95}) {
      SCOPED_TRACE(form.Words);
      World world = Roster();
      Segment match = LostByMan1(world, form.Style, form.Type);
      Worker& winner = *world.FindWorker(match.Winner);
      winner.Gender = false;
      Give(world, "Man 1", {50, attitude});
      EXPECT_EQ(WordsAt(world, match, kResultStep), attitude < 95 ? Lines{form.Words} : Lines());
      winner.Position = kOpener;
      EXPECT_EQ(GrievancesOf(world, match)[1], attitude < 95 ? 5 : 0);
      winner.Position = kLowerMidcard;
      EXPECT_EQ(GrievancesOf(world, match)[1], 5) << "a woman high on the card";
    }
}

TEST(Refusals, OfNobodyWhoLosesATeamOrABattleRoyalToAWoman) {
  for (const auto& [style, type, people] :
       {std::tuple(kFourOnFour, int(kSurvivor), 8), std::tuple(kSpecial, int(kTenMan), 10)}) {
    World world = Roster();
    Segment match = MatchOf(world, style, type, Men(people));
    StoreResult(match, 6, {1});
    for (int i = 1; i <= people; ++i) Give(world, "Man " + std::to_string(i), {50, 0});
    world.FindWorker(6)->Gender = false;
    EXPECT_EQ(WordsAt(world, match, kResultStep), Lines()) << style;
    EXPECT_EQ(GrievancesOf(world, match)[1], 5) << "but it has its price";
  }
}

TEST(Refusals, OfEveryLoserOfAnElimination) {
  World world = Roster();
  Segment match = MatchOf(world, kFourWay, kElimination, Men(4));
  StoreResult(match, 4, {3, 1, 2});
  for (const char* name : {"Man 1", "Man 2", "Man 3"}) Give(world, name, {91, 96});
  const std::string words = ": I think i am a more worthy winner of this match.";
  EXPECT_EQ(WordsAt(world, match, kResultStep),
            (Lines{"Man 3" + words, "Man 1" + words, "Man 2" + words}));
  EXPECT_EQ(GrievancesOf(world, match), (std::map<int, int>{{1, 3}, {2, 3}, {3, 3}}));
}

TEST(Refusals, OfTheLosingTeamOfASurvivorMatch) {
  World world = Roster();
  Segment match = MatchOf(world, kFourOnFour, kSurvivor, Men(8));
  StoreResult(match, 2, {1, 5, 6, 7, 8});
  for (const char* name : {"Man 1", "Man 6"}) Give(world, name, {86, 96});
  Give(world, "Man 7", {85, 96});
  EXPECT_EQ(WordsAt(world, match, kResultStep),
            Lines{"Man 6: I think my team should win this bout."})
      << "Man 1 was put out, but his team wins";
}

TEST(Refusals, OfEveryEntrantOfABattleRoyal) {
  World world = Roster();
  Segment match = MatchOf(world, kSpecial, kTenMan, Men(10));
  StoreResult(match, 10, {1});
  Give(world, "Man 2", {81, 91});
  Give(world, "Man 3", {81, 92});
  Give(world, "Man 4", {80, 91});
  EXPECT_EQ(WordsAt(world, match, kResultStep),
            Lines{"Man 2: I'm not being in a match where the winner is so much lower than me."});
  EXPECT_EQ(GrievancesOf(world, match), (std::map<int, int>{{2, 2}, {3, 2}}))
      << "the price asks for an Attitude under 95";
}

TEST(Refusals, OfNobodyWhereNobodyIsNamedLoser) {
  World world = Roster();
  for (const int style : {kThreeTeams, kFourTeams}) {
    Segment match = LostByMan1(world, style, style == kThreeTeams ? 4 : 2);
    StoreResult(match, 3, {});
    Give(world, "Man 1", {100, 0});
    EXPECT_EQ(WordsAt(world, match, kResultStep), Lines());
    EXPECT_TRUE(GrievancesOf(world, match).empty());
  }
}

TEST(Refusals, OfWhoIsToBeStripped) {
  struct Row {
    int Type;
    const char* First;
    const char* Second;
    int Attitude, Behaviour;  // of Woman 2
    Lines Says;
  };
  const std::string kMan = ": You're joking, right???";
  const std::string kWoman = ": You're a sick freak! Go to hell!";
  const Row kRows[] = {
      {kPlainSingles, "Man 1", "Woman 2", 90, 90, {}},
      {kBraAndPanties, "Man 1", "Woman 2", 20, 20, {"Man 1" + kMan}},
      {kBraAndPanties, "Woman 2", "Man 1", 20, 20, {"Man 1" + kMan}},
      {kBraAndPanties, "Woman 1", "Woman 2", 90, 90, {}},
      {kBuckNaked, "Man 1", "Man 2", 20, 20, {"Man 1" + kMan, "Man 2" + kMan}},
      {kBuckNaked, "Woman 1", "Woman 2", 30, 30, {}},
      {kBuckNaked, "Woman 1", "Woman 2", 31, 30, {"Woman 2" + kWoman}},
      {kBuckNaked, "Woman 2", "Woman 1", 30, 31, {"Woman 2" + kWoman}},
  };
  for (const Row& row : kRows) {
    World world = Roster();
    Named(world.Workers(), "Woman 2").Attitude = row.Attitude;
    Named(world.Workers(), "Woman 2").Behaviour = row.Behaviour;
    const Segment match = MatchOf(world, kSingles, row.Type, {row.First, row.Second});
    EXPECT_EQ(WordsAt(world, match, kPeopleStep), row.Says);
    for (const Refusal& refusal : RefusalsAt(world, match, kPeopleStep))
      EXPECT_TRUE(refusal.IsFinal);
  }
}

TEST(Refusals, OfTheFinish) {
  struct Row {
    int Style, Finish;
    int LoserOver, LoserAttitude, WinnerOver, RunInOver;
    bool HighSpots;
    Lines Says;
    int Level;
  };
  const std::string kCleanly = "Man 1: I am not losing this match cleanly.";
  const std::string kBetter =
      "Man 1: If i am to lose this match by interference, i want someone better to run in.";
  const std::string kTeam = "Man 1 \\ Man 2: We are not losing this match cleanly.";
  const Row kRows[] = {
      {kSingles, kClean, 50, 39, 79, 0, true, {kCleanly}, 1},
      {kSingles, kClean, 50, 39, 80, 0, true, {}, 0},
      {kSingles, kClean, 50, 40, 50, 0, true, {}, 0},
      {kSingles, kCheating, 50, 39, 50, 0, true, {}, 0},
      {kSingles, kInterference, 50, 39, 50, 69, true, {kBetter}, 1},
      {kSingles, kInterference, 50, 39, 50, 70, true, {}, 0},
      {kSingles, kInterference, 50, 40, 50, 10, true, {}, 0},
      {kSingles, kBotchedInterference, 50, 39, 50, 10, true, {}, 0},
      {kSingles, kSickBump, 50, 96, 50, 0, false, {"Man 1: I'm not taking a sick bump, sorry."}, 0},
      {kSingles, kSickBump, 50, 96, 50, 0, true, {}, 0},
      {kTag, kClean, 100, 99, 129, 0, true, {kTeam}, 1},
      {kTag, kClean, 100, 99, 130, 0, true, {}, 0},
      {kTag, kClean, 100, 100, 100, 0, true, {}, 0},
      {kTag, kInterference, 100, 20, 100, 10, true, {}, 0},
      {kTag, kSickBump, 100, 190, 100, 0, false, {"Man 1: I'm not taking a sick bump, sorry."}, 0},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(std::to_string(row.Style) + ", finish " + std::to_string(row.Finish) + ", " +
                 std::to_string(row.WinnerOver));
    World world = Roster();
    const bool tag = row.Style == kTag;
    const int half = tag ? 2 : 1;
    Give(world, "Man 1", {row.LoserOver / half, row.LoserAttitude / half});
    Give(world, "Man 2", {row.LoserOver / half, row.LoserAttitude - row.LoserAttitude / 2});
    Give(world, "Man 3", {row.WinnerOver / half, 96});
    Give(world, "Man 4", {row.WinnerOver - row.WinnerOver / 2, 96});
    Give(world, "Man 5", {row.RunInOver, 96});
    Named(world.Workers(), "Man 1").HighSpots = row.HighSpots;
    Segment match =
        MatchOf(world, row.Style, 1, tag ? Men(4) : std::vector<std::string>{"Man 3", "Man 1"});
    StoreResult(match, 3, {1});
    match.Finish = row.Finish;
    if (row.RunInOver) match.Other1 = UidOf(world, "Man 5");
    match.Aftermath = after1::kTantrum;
    EXPECT_EQ(WordsAt(world, match, kFinishStep), row.Says);
    EXPECT_EQ(GrievancesOf(world, match)[1], row.Level);
  }
}

/// What may follow a singles match that Man 1 has lost.
struct AfterRow {
  int Aftermath;
  const char* Disposition;  // of loser and winner
  bool TurnPending;
  int Attitude;
  Lines Says;
  int LoserLevel, WinnerLevel;
};

TEST(Refusals, OfTheAftermath) {
  using namespace after1;
  const std::string kHeat =
      "Man 1: If i am to lose, i want to do something after the match to get my heat back.";
  const std::string kHand = ": I don't think refusing a handshake is good for my character.";
  const std::string kRun = "Man 1: I don't think running away is good for my character.";
  const std::string kCheap =
      "Man 1: I don't think cheap-shotting on a handshake is good for my character.";
  std::vector<AfterRow> rows = {
      {kNothing, "T", false, 29, {kHeat}, 1, 0},
      {kNothing, "T", false, 30, {}, 0, 0},
      {kLoserRuns, "H", false, 96, {}, 0, 0},
      {kLoserRuns, "F", false, 96, {kRun}, 2, 0},
      {kLoserRuns, "F", true, 96, {kRun}, 2, 0},
      {kLoserRuns, "F", false, 29, {kHeat, kRun}, 2, 0},
      {kCheapShot, "F", false, 96, {kCheap}, 2, 0},
      {kCheapShot, "F", true, 96, {}, 0, 0},
      {kCheapShot, "T", false, 96, {}, 0, 0},
      {kFirstRefusesHand, "F", false, 96, {"Man 3" + kHand}, 0, 2},
      {kFirstRefusesHand, "F", true, 96, {}, 0, 0},
      {kFirstRefusesHand, "H", false, 96, {}, 0, 0},
      {kSecondRefusesHand, "F", false, 96, {"Man 1" + kHand}, 2, 0},
      {kSecondRefusesHand, "F", true, 96, {}, 0, 0},
  };
  // The loser's temper, code by code: the handshakes are passed over, yet have their price.
  for (const int code :
       {kAttacksReferee, kTantrum, kRevengeAttack, kGetsRevenge, kTwoOnWinner, kTwoOnRunIn})
    rows.push_back({code, "T", false, 29, {}, 0, 0});
  for (const int code :
       {kHandshake, kCheapShot, kFirstRefusesHand, kSecondRefusesHand, kBrawlToTheBack})
    rows.push_back({code, "T", false, 29, {}, 1, 0});
  for (const int code :
       {kRunInOnFirst, kRunInOnSecond, kRunInOnBoth, kBeatDown, kTwoOnLoser, kAttacksRunIn,
        kLoserRuns, kWinnerRuns, kAssaultGoesOn, kSave, kFailedSave})
    rows.push_back({code, "T", false, 29, {kHeat}, 1, 0});
  for (const AfterRow& row : rows) {
    SCOPED_TRACE(std::to_string(row.Aftermath) + row.Disposition);
    World world = Roster();
    for (const char* name : {"Man 1", "Man 3"}) {
      Give(world, name, {50, row.Attitude});
      Named(world.Workers(), name).Disposition = row.Disposition;
      Named(world.Workers(), name).TurnPending = row.TurnPending;
    }
    Segment match = MatchOf(world, kSingles, kPlainSingles, {"Man 3", "Man 1"});
    StoreResult(match, 3, {});
    match.Finish = kCheating;
    match.Aftermath = row.Aftermath;
    EXPECT_EQ(WordsAt(world, match, kAftermathStep), row.Says);
    auto levels = GrievancesOf(world, match);
    EXPECT_EQ(levels[1], row.LoserLevel);
    EXPECT_EQ(levels[3], row.WinnerLevel);
  }
}

/// Whoever refuses the hand speaks, by his place; what it costs goes by who has won.
TEST(Refusals, OfTheHandLookAtThePlaceAndTheirPriceAtTheResult) {
  using namespace after1;
  struct Row {
    int Aftermath, Winner;
    const char* Speaks;
    int Level1, Level3;  // of Man 1, named first, and of Man 3
  };
  for (const Row& row :
       {Row{kFirstRefusesHand, 1, "Man 1", 2, 0}, Row{kFirstRefusesHand, 3, "Man 1", 0, 2},
        Row{kSecondRefusesHand, 1, "Man 3", 0, 2}, Row{kSecondRefusesHand, 3, "Man 3", 2, 0}}) {
    SCOPED_TRACE(std::to_string(row.Aftermath) + ", won by " + std::to_string(row.Winner));
    World world = Roster();
    for (const char* name : {"Man 1", "Man 3"}) Named(world.Workers(), name).Disposition = "F";
    Segment match = MatchOf(world, kSingles, kPlainSingles, {"Man 1", "Man 3"});
    StoreResult(match, row.Winner, {});
    match.Finish = kCheating;
    match.Aftermath = row.Aftermath;
    EXPECT_EQ(WordsAt(world, match, kAftermathStep),
              Lines{std::string(row.Speaks) +
                    ": I don't think refusing a handshake is good for my character."});
    EXPECT_EQ(GrievancesOf(world, match)[1], row.Level1);
    EXPECT_EQ(GrievancesOf(world, match)[3], row.Level3);
  }
}

TEST(Refusals, OfAHandshakeAfterADrawStillCome) {
  World world = Roster();
  Segment match = MatchOf(world, kSingles, kPlainSingles, {"Man 3", "Man 1"});
  StoreResult(match, 0, {});
  match.Aftermath = after1::kSecondRefusesHand;
  Named(world.Workers(), "Man 1").Disposition = "F";
  EXPECT_EQ(WordsAt(world, match, kAftermathStep).size(), 1u);
  EXPECT_TRUE(GrievancesOf(world, match).empty());
}

TEST(Refusals, GiveWhyTheyAreFinal) {
  struct Row {
    int Style, Type, Winner, Loser;
    const char* Controls;
    const char* Veto;
  };
  const Row kRows[] = {
      {kSingles, 1, 3, 1, "Man 1", "Because he has creative control, you cannot challenge this."},
      {kSingles, 1, 3, 1, "Man 3", ""},
      {kTag, 1, 3, 1, "Man 2", "Because they have creative control, you cannot challenge this."},
      {kTag, 1, 3, 1, "Man 4", ""},
      {kThreeWay, 2, 3, 1, "Man 1", "Because he has creative control, you cannot challenge this."},
      {kThreeTeams, 2, 3, 1, "Man 1", "Because of creative control, you cannot challenge this."},
      {kThreeOnThree, 1, 5, 1, "Man 1", "Because of creative control, you cannot challenge this."},
      {kThreeOnThree, 1, 5, 1, "Man 2", ""},
      {kFourOnFour, 2, 5, 1, "Man 1",
       "Because he has creative control, you cannot challenge this."},
      {kFourOnFour, 2, 5, 1, "Man 2", ""},
  };
  for (const Row& row : kRows) {
    World world = Roster();
    const MatchStyleRow& style = *FindMatchStyle(row.Style);
    const auto people = row.Style == kSingles ? std::vector<std::string>{"Man 1", "Man 3"}
                                              : Men(style.Sides * style.PerSide);
    Segment match = MatchOf(world, row.Style, row.Type, people);
    StoreResult(match, row.Winner, {row.Loser});
    Give(world, "Man 1", {100, 96});
    Named(world.Workers(), row.Controls).CreativeControl = true;
    const auto refusals = RefusalsAt(world, match, kResultStep);
    ASSERT_FALSE(refusals.empty());
    for (const Refusal& refusal : refusals) EXPECT_EQ(refusal.Veto, row.Veto);
  }
}

TEST(Grievances, OfTheLastBoutOfAFeud) {
  struct Row {
    bool FirstWins;
    Numbers Loser;
    int Level;
  };
  for (const Row& row : {Row{true, {76, 96}, 4}, Row{true, {75, 96}, 0}, Row{false, {71, 96}, 4},
                         Row{false, {70, 96}, 0}, Row{true, {61, 74}, 2}, Row{true, {61, 75}, 0},
                         Row{true, {60, 74}, 0}, Row{false, {61, 74}, 2}, Row{false, {61, 75}, 0},
                         Row{false, {60, 74}, 0}, Row{true, {81, 96}, 4}}) {
    SCOPED_TRACE(std::to_string(row.Loser.Over));
    World world = Roster();
    Give(world, "Man 1", row.Loser);
    Give(world, "Man 2", {50, 96});
    Segment match = MatchOf(world, kSingles, kPlainSingles,
                            row.FirstWins ? std::vector<std::string>{"Man 2", "Man 1"}
                                          : std::vector<std::string>{"Man 1", "Man 2"});
    StoreResult(match, UidOf(world, "Man 2"), {});
    match.Finish = kCheating;
    match.Aftermath = after1::kTantrum;
    match.Purpose = purpose1::kEndFeud;
    EXPECT_EQ(GrievancesOf(world, match)[1], row.Level);
    match.Purpose = purpose1::kContinueFeud;
    EXPECT_LT(GrievancesOf(world, match)[1], 4);
  }
}

TEST(Grievances, TakeMoraleDownToNothing) {
  World world = Roster();
  Segment match = MatchOf(world, kSingles, kPlainSingles, {"Man 1", "Woman 1"});
  StoreResult(match, UidOf(world, "Woman 1"), {});
  match.Finish = kCheating;
  Give(world, "Man 1", {60, 50});
  Worker& loser = Named(world.Workers(), "Man 1");
  loser.Morale = 70;
  EXPECT_EQ(GrievanceText(world, match), "Man 1 -50");
  ApplyBookingGrievances(world, match);
  EXPECT_EQ(loser.Morale, 20);
  ApplyBookingGrievances(world, match);
  EXPECT_EQ(loser.Morale, 0);
}

TEST(RefusalBoxes, LetThePlayerInsistAndPayForIt) {
  World world = Roster();
  Give(world, "Man 1", {91, 70});
  Named(world.Workers(), "Man 1").Morale = 80;
  BookingPlay play(std::move(world));
  const std::string words = "Man 1: I am not losing this match, he is not in my league.";
  const auto insist = [&](std::initializer_list<bool> answers) {
    for (const bool answer : answers) {
      play.Desk.ExpectSay("Refusal!", words);
      play.Desk.ExpectAsk("Continue?", "Contine Anyway?", answer, ui::Default::No);
    }
  };
  play.Book();
  play.ChooseMatch("1 vs 1", "Singles");
  play.ChoosePeople({"Man 1", "Man 2"});
  play.Next();
  play.Desk.Pick("cmbwinner", "Man 2");
  EXPECT_EQ(play.Desk.Text("txtsay"), words + "\n" + words);
  insist({false});
  play.Next();
  EXPECT_EQ(play.Desk.TopName(), "frmBook1vs1Winner");
  insist({true, false});
  play.Next();
  EXPECT_EQ(play.Desk.TopName(), "frmBook1vs1Winner");
  insist({true, true});
  for (int step = 5; step < 9; ++step) play.Next();
  EXPECT_EQ(Named(play.World().Workers(), "Man 1").Morale, 80) << "nothing is paid yet";
  play.Complete();
  play.Reopen();
  EXPECT_EQ(Named(play.World().Workers(), "Man 1").Morale, 65) << "the highest level alone counts";
}

TEST(RefusalBoxes, CannotBePassedAgainstCreativeControl) {
  World world = Roster();
  Give(world, "Woman 2", {91, 80});
  Named(world.Workers(), "Woman 2").CreativeControl = true;
  BookingPlay play(std::move(world));
  play.Book();
  play.ChooseMatch("1 vs 1", "Singles");
  play.ChoosePeople({"Woman 2", "Woman 1"});
  play.Next();
  play.Desk.Pick("cmbwinner", "Woman 1");
  play.Desk.ExpectSay("Refusal!", "Woman 2: I am not losing this match, she is not in my league.");
  play.Desk.ExpectSay("Creative Control",
                      "Because she has creative control, you cannot challenge this.");
  play.Desk.Click("cmddone");
  EXPECT_EQ(play.Desk.TopName(), "frmBook1vs1Winner");
}

TEST(RefusalBoxes, EndTheStepOutrightWhereNothingHelps) {
  BookingPlay play(Roster());
  play.Book();
  play.ChooseMatch("1 vs 1", "Buck Naked");
  play.Desk.ExpectSay("Refusal!", "Man 1: You're joking, right???");
  play.ChoosePeople({"Man 1", "Man 2"});
  EXPECT_EQ(play.Desk.TopName(), "frmBook1vs1");
}

}  // namespace
}  // namespace grapplemont::test
