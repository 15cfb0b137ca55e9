#include "booking/wizard/refusals.h"

#include <gtest/gtest.h>

#include "booking/ring.h"
#include "booking/wizard/foresight.h"
#include "booking/wizard/objections.h"

namespace grapplemont::test {
namespace {

using Lines = std::vector<std::string>;
using Levels = std::map<int, int>;

/// Somebody's numbers in a case.
struct Numbers {
  int Over, Attitude;
};

/// Men have the uids of their numbers, and 50 and 96 for Over and Attitude.
World Roster() {
  World world = BookingRoster().Game("CWA");
  for (Worker& worker : world.Workers()) worker.Over = 50;
  return world;
}

void Give(World& world, int man, const Numbers& numbers) {
  world.FindWorker(man)->Over = numbers.Over;
  world.FindWorker(man)->Attitude = numbers.Attitude;
}

Lines WordsAt(const World& world, const Segment& match, MatchStep step) {
  Lines words;
  for (const Refusal& refusal : RefusalsAt(world, match, step)) words.push_back(refusal.Words);
  return words;
}

/// Of Man 1 and on, ended in a way that nobody minds. Winner 0 is a draw.
Segment Match(const World& world, int style, int type, int winner, const std::vector<int>& losers) {
  Segment match = MatchOf(world, style, type, {});
  for (int man = 1; man <= EntrantsOf(match); ++man)
    match.Worker[static_cast<std::size_t>(man - 1)] = man;
  StoreResult(match, winner, losers);
  match.Finish = kCheating;
  match.Aftermath = after1::kTantrum;
  return match;
}

/// What is said to a result, and the levels of the grievances when the player insists.
struct ResultRow {
  int Style, Type, Winner;
  std::vector<int> Losers;     // as in their boxes
  std::map<int, Numbers> Who;  // of those who are not like all others
  std::vector<int> Women;
  Lines Says;
  Levels Minds;
};

Lines Times(int count, const std::string& line) {
  return Lines(static_cast<std::size_t>(count), line);
}

const std::string kLeague = "Man 1: I am not losing this match, he is not in my league.";
const std::string kShouldWin = "Man 1: I should win this match, he is not in my league.";
const std::string kThird = "Man 1: I am not losing this match to Man 3";
const std::string kWorthy = "Man 1: I think i am a more worthy winner of this match.";
const std::string kThem = "Man 1: We are not losing this match to them.";
const std::string kFirstPair = "Man 1 \\ Man 2: ", kSecondPair = "Man 3 \\ Man 4: ";
const std::string kPairLeague = "We are not losing this match, they are not in our league.";
const std::string kPairPlain = "We are not losing this match.";
const std::string kPairDraw = "We should win this match, they are not in our league.";

const ResultRow kSinglesRows[] = {
    ResultRow(kSingles, 1, 2, {}, {{1, {81, 96}}}, {}, {kLeague}, {{1, 3}}),
    ResultRow(kSingles, 1, 2, {}, {{1, {80, 96}}}, {}, {}, {}),
    ResultRow(kSingles, 1, 2, {}, {{1, {71, 74}}}, {}, {kLeague}, {{1, 2}}),
    ResultRow(kSingles, 1, 2, {}, {{1, {71, 75}}}, {}, {}, {}),
    ResultRow(kSingles, 1, 2, {}, {{1, {61, 39}}}, {}, {kLeague}, {{1, 1}}),
    ResultRow(kSingles, 1, 2, {}, {{1, {61, 40}}}, {}, {}, {}),
    ResultRow(kSingles, 1, 2, {}, {{1, {81, 39}}}, {}, Times(3, kLeague), {{1, 3}}),
    ResultRow(kSingles, 1, 0, {}, {{1, {71, 74}}}, {}, {kShouldWin}, {{1, 2}}),
    ResultRow(kSingles, 1, 0, {}, {{2, {81, 96}}}, {}, {"Man 2" + kShouldWin.substr(5)}, {{2, 3}}),
    ResultRow(kSingles, 1, 2, {}, {{1, {50, 94}}}, {2}, {"Man 1: I am not losing to a woman."},
              {{1, 5}}),
    ResultRow(kSingles, 1, 2, {}, {{1, {50, 95}}}, {2}, {}, {}),
    ResultRow(kSingles, 1, 0, {}, {{1, {50, 94}}}, {2}, {"Man 1: I am not drawing with a woman."},
              {{1, 4}}),
    ResultRow(kSingles, 1, 1, {}, {{2, {50, 40}}}, {2}, {}, {}),
    ResultRow(kSingles, 1, 2, {}, {{1, {81, 96}}}, {1, 2},
              {"Man 1: I am not losing this match, she is not in my league."}, {{1, 3}}),
};

// The bounds of a pair are of sums: theirs against 100.
const ResultRow kTagRows[] = {
    ResultRow(kTag, 1, 1, {3}, {{3, {91, 96}}, {4, {50, 94}}}, {}, {kSecondPair + kPairLeague},
              {{3, 3}, {4, 3}}),
    ResultRow(kTag, 1, 1, {3}, {{3, {90, 96}}, {4, {50, 94}}}, {}, {}, {}),
    ResultRow(kTag, 1, 1, {3}, {{3, {71, 65}}, {4, {50, 64}}}, {}, {kSecondPair + kPairLeague},
              {{3, 2}, {4, 2}}),
    ResultRow(kTag, 1, 1, {3}, {{3, {71, 65}}, {4, {50, 65}}}, {}, {}, {}),
    ResultRow(kTag, 1, 1, {3}, {{3, {51, 50}}, {4, {50, 49}}}, {}, {kSecondPair + kPairPlain},
              {{3, 1}, {4, 1}}),
    ResultRow(kTag, 1, 3, {1}, {{1, {81, 96}}, {2, {50, 94}}}, {}, {kFirstPair + kPairLeague},
              {{1, 3}, {2, 3}}),
    ResultRow(kTag, 1, 3, {1}, {{1, {91, 50}}, {2, {50, 49}}}, {},
              {kFirstPair + kPairLeague, kFirstPair + kPairLeague, kFirstPair + kPairLeague,
               kFirstPair + kPairPlain},
              {{1, 3}, {2, 3}}),
    ResultRow(kTag, 1, 0, {}, {{3, {91, 87}}, {4, {50, 88}}}, {}, Times(2, kSecondPair + kPairDraw),
              {{3, 3}, {4, 3}}),
    ResultRow(kTag, 1, 0, {}, {{3, {71, 87}}, {4, {50, 87}}}, {}, Times(2, kSecondPair + kPairDraw),
              {{3, 2}, {4, 2}}),
    ResultRow(kTag, 1, 0, {}, {{1, {61, 96}}}, {}, {kFirstPair + kPairDraw}, {{1, 1}, {2, 1}}),
    ResultRow(kTag, 1, 3, {1}, {{1, {50, 90}}, {2, {50, 94}}}, {4},
              {kFirstPair + "We are not losing to a team including a woman."}, {{1, 5}, {2, 5}}),
    ResultRow(kTag, 1, 3, {1}, {{1, {50, 90}}, {2, {50, 95}}}, {4}, {}, {}),
    ResultRow(kTag, 1, 0, {}, {{1, {50, 90}}, {2, {50, 94}}}, {4},
              {kFirstPair + "We are not drawing with a team that has a woman on it."},
              {{1, 4}, {2, 4}}),
};

// A woman high on the card has her price however patient a loser is.
const ResultRow kOtherRows[] = {
    ResultRow(kThreeWay, kTriangle, 3, {1}, {{1, {81, 96}}}, {}, {kThird}, {{1, 3}}),
    ResultRow(kThreeWay, kTriangle, 3, {1}, {{1, {80, 96}}}, {}, {}, {}),
    ResultRow(kThreeWay, kTriangle, 3, {1}, {{1, {71, 94}}}, {}, {kThird}, {{1, 2}}),
    ResultRow(kThreeWay, kTriangle, 3, {1}, {{1, {71, 95}}}, {}, {}, {}),
    ResultRow(kThreeWay, kTriangle, 3, {1}, {{1, {61, 89}}}, {}, {kThird}, {{1, 1}}),
    ResultRow(kThreeWay, kTriangle, 3, {1}, {{1, {51, 49}}}, {}, {kThird}, {{1, 1}}),
    ResultRow(kThreeWay, kTriangle, 3, {1}, {{1, {81, 49}}}, {}, Times(4, kThird), {{1, 3}}),
    ResultRow(kFourWay, 2, 3, {1}, {{1, {81, 96}}}, {}, {kThird}, {{1, 3}}),
    ResultRow(kThreeWay, kElimination, 3, {1, 2}, {{1, {81, 96}}}, {}, {kWorthy}, {{1, 3}}),
    ResultRow(kFourWay, kElimination, 4, {3, 1, 2}, {{1, {81, 96}}, {2, {80, 96}}, {3, {81, 96}}},
              {}, {"Man 3" + kWorthy.substr(5), kWorthy}, {{1, 3}, {3, 3}}),
    ResultRow(kThreeTeams, kTriangle, 3, {1}, {{1, {81, 96}}}, {}, {kThem}, {{1, 3}}),
    ResultRow(kFourTeams, kElimination, 3, {1, 5, 7}, {{1, {81, 96}}}, {}, {kThem}, {{1, 3}}),
    ResultRow(kThreeOnThree, 1, 6, {1}, {{1, {81, 96}}}, {}, {kThem}, {{1, 3}}),
    ResultRow(kFourOnFour, kPlainEightMan, 6, {1}, {{1, {81, 96}}}, {}, {kThem}, {{1, 3}}),
    ResultRow(kThreeTeams, kThreeTeamsTlc, 3, {}, {{1, {100, 0}}}, {}, {}, {}),
    ResultRow(kThreeWay, kTriangle, 3, {1}, {{1, {50, 94}}}, {3},
              {"Man 1: I am not losing to a woman."}, {{1, 5}}),
    ResultRow(kThreeWay, kTriangle, 3, {1}, {{1, {50, 95}}}, {3}, {}, {{1, 5}}),
    ResultRow(kThreeWay, kElimination, 3, {1, 2}, {{1, {50, 94}}}, {3},
              {"Man 1: I am not losing out to a woman."}, {{1, 5}, {2, 5}}),
    ResultRow(kThreeOnThree, 1, 6, {1}, {{1, {50, 94}}}, {6},
              {"Man 1: We are not losing to a team containing a woman."}, {{1, 5}}),
    ResultRow(kFourOnFour, kSurvivor, 6, {1, 2, 3, 4}, {{1, {50, 0}}}, {6}, {},
              {{1, 5}, {2, 5}, {3, 5}, {4, 5}}),
    ResultRow(kFourOnFour, kSurvivor, 2, {1, 5, 6, 7, 8},
              {{1, {76, 96}}, {6, {76, 96}}, {7, {75, 96}}}, {},
              {"Man 6: I think my team should win this bout."}, {}),
    ResultRow(kSpecial, kTenMan, 10, {1}, {{2, {71, 91}}, {3, {71, 92}}, {4, {70, 91}}}, {},
              {"Man 2: I'm not being in a match where the winner is so much lower than me."},
              {{2, 2}, {3, 2}}),
};

TEST(Refusals, OfTheResultAndTheirPrice) {
  for (const auto& rows : {std::span<const ResultRow>(kSinglesRows), {kTagRows}, {kOtherRows}})
    for (const ResultRow& row : rows) {
      SCOPED_TRACE("style " + std::to_string(row.Style) + ", row " +
                   std::to_string(&row - rows.data()));
      World world = Roster();
      for (const auto& [man, numbers] : row.Who) Give(world, man, numbers);
      for (const int uid : row.Women) world.FindWorker(uid)->Gender = false;
      const Segment match = Match(world, row.Style, row.Type, row.Winner, row.Losers);
      EXPECT_EQ(WordsAt(world, match, kResultStep), row.Says);
      EXPECT_EQ(GrievancesOf(world, match), row.Minds);
    }
}

TEST(Refusals, PutNoPriceOnAWomanLowOnTheCard) {
  World world = Roster();
  world.FindWorker(3)->Gender = false;
  world.FindWorker(3)->Position = kOpener;
  Give(world, 1, {50, 95});
  EXPECT_EQ(GrievancesOf(world, Match(world, kThreeWay, kTriangle, 3, {1})), Levels());
}

TEST(Refusals, OfWhoIsToBeStripped) {
  const std::string kMan = ": You're joking, right???";
  const std::string kWoman = ": You're a sick freak! Go to hell!";
  const struct {
    int Type;
    const char *First, *Second;
    int Attitude, Behaviour;  // of Woman 2
    Lines Says;
  } kRows[] = {
      {kPlainSingles, "Man 1", "Woman 2", 90, 90, {}},
      {kBraAndPanties, "Woman 2", "Man 1", 90, 90, {"Man 1" + kMan}},
      {kBuckNaked, "Man 1", "Man 2", 20, 20, {"Man 1" + kMan, "Man 2" + kMan}},
      {kBuckNaked, "Woman 1", "Woman 2", 30, 30, {}},
      {kBuckNaked, "Woman 1", "Woman 2", 31, 30, {"Woman 2" + kWoman}},
      {kBuckNaked, "Woman 2", "Woman 1", 30, 31, {"Woman 2" + kWoman}},
  };
  for (const auto& row : kRows) {
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
  const std::string kCleanly = "Man 1: I am not losing this match cleanly.";
  const std::string kBetter =
      "Man 1: If i am to lose this match by interference, i want someone better to run in.";
  const std::string kBump = "Man 1: I'm not taking a sick bump, sorry.";
  const struct {
    int Style, Finish;
    Numbers Loser;  // Man 1, as much as half of their team
    int WinnerOver, RunInOver;
    Lines Says;
    int Level;
  } kRows[] = {
      {kSingles, kClean, {50, 39}, 79, 0, {kCleanly}, 1},
      {kSingles, kClean, {50, 39}, 80, 0, {}, 0},
      {kSingles, kClean, {50, 40}, 50, 0, {}, 0},
      {kSingles, kInterference, {50, 39}, 50, 69, {kBetter}, 1},
      {kSingles, kInterference, {50, 39}, 50, 70, {}, 0},
      {kSingles, kInterference, {50, 40}, 50, 10, {}, 0},
      {kSingles, kSickBump, {50, 96}, 50, 0, {kBump}, 0},
      {kTag, kClean, {50, 49}, 64, 0, {"Man 1 \\ Man 2: We are not losing this match cleanly."}, 1},
      {kTag, kClean, {50, 49}, 65, 0, {}, 0},
      {kTag, kClean, {50, 50}, 50, 0, {}, 0},
      {kTag, kSickBump, {50, 96}, 50, 0, {kBump}, 0},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(std::to_string(row.Style) + ", finish " + std::to_string(row.Finish) + ", " +
                 std::to_string(row.WinnerOver));
    World world = Roster();
    const int winner = row.Style == kTag ? 3 : 2;
    for (const int man : {1, winner - 1}) Give(world, man, row.Loser);
    for (const int man : {winner, winner + 1}) Give(world, man, {row.WinnerOver, 96});
    Give(world, 5, {row.RunInOver, 96});
    world.FindWorker(1)->HighSpots = false;
    Segment match = Match(world, row.Style, 1, winner, {1});
    match.Finish = row.Finish;
    match.Other1 = row.RunInOver ? 5 : 0;
    EXPECT_EQ(WordsAt(world, match, kFinishStep), row.Says);
    EXPECT_EQ(GrievancesOf(world, match),
              row.Level ? (row.Style == kTag ? Levels{{1, 1}, {2, 1}} : Levels{{1, 1}}) : Levels());
  }
}

TEST(Refusals, OfTheAftermath) {
  using namespace after1;
  const std::string kHeat =
      ": If i am to lose, i want to do something after the match to get my heat back.";
  const std::string kHand = ": I don't think refusing a handshake is good for my character.";
  const std::string kRun = "Man 1: I don't think running away is good for my character.";
  const std::string kCheap =
      "Man 1: I don't think cheap-shotting on a handshake is good for my character.";
  const struct {
    int Aftermath, Winner;    // of Man 1, named first, and Man 2
    const char* Disposition;  // of both
    bool TurnPending;
    int Attitude;
    Lines Says;
    Levels Minds;
  } kRows[] = {
      {kNothing, 2, "T", false, 29, {"Man 1" + kHeat}, {{1, 1}}},
      {kNothing, 2, "T", false, 30, {}, {}},
      {kRevengeAttack, 2, "T", false, 29, {}, {}},
      // The handshakes are passed over, yet have their price.
      {kHandshake, 2, "T", false, 29, {}, {{1, 1}}},
      {kBrawlToTheBack, 2, "T", false, 29, {}, {{1, 1}}},
      {kBeatDown, 2, "T", false, 29, {"Man 1" + kHeat}, {{1, 1}}},
      {kLoserRuns, 2, "F", true, 96, {kRun}, {{1, 2}}},
      {kLoserRuns, 2, "F", false, 29, {"Man 1" + kHeat, kRun}, {{1, 2}}},
      {kCheapShot, 2, "F", false, 96, {kCheap}, {{1, 2}}},
      {kCheapShot, 2, "F", true, 96, {}, {}},
      // Whoever refuses the hand speaks, by their place; what it costs goes by who has won.
      {kFirstRefusesHand, 1, "F", false, 96, {"Man 1" + kHand}, {{1, 2}}},
      {kFirstRefusesHand, 2, "F", false, 96, {"Man 1" + kHand}, {{2, 2}}},
      {kFirstRefusesHand, 1, "F", true, 96, {}, {}},
      {kSecondRefusesHand, 1, "F", false, 96, {"Man 2" + kHand}, {{2, 2}}},
      {kSecondRefusesHand, 2, "F", false, 96, {"Man 2" + kHand}, {{1, 2}}},
      {kSecondRefusesHand, 0, "F", false, 96, {"Man 2" + kHand}, {}},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(std::to_string(row.Aftermath) + row.Disposition + std::to_string(row.Winner));
    World world = Roster();
    for (const int man : {1, 2}) {
      Give(world, man, {50, row.Attitude});
      world.FindWorker(man)->Disposition = row.Disposition;
      world.FindWorker(man)->TurnPending = row.TurnPending;
    }
    Segment match = Match(world, kSingles, 1, row.Winner, {});
    match.Aftermath = row.Aftermath;
    EXPECT_EQ(WordsAt(world, match, kAftermathStep), row.Says);
    EXPECT_EQ(GrievancesOf(world, match), row.Minds);
  }
}

TEST(Refusals, GiveWhyTheyAreFinal) {
  const struct {
    int Style, Type, Winner, Controls;
    const char* Veto;
  } kRows[] = {
      {kSingles, 1, 2, 1, "Because he has creative control, you cannot challenge this."},
      {kTag, 1, 3, 2, "Because they have creative control, you cannot challenge this."},
      {kThreeWay, 2, 3, 1, "Because he has creative control, you cannot challenge this."},
      {kThreeOnThree, 1, 5, 1, "Because of creative control, you cannot challenge this."},
      {kFourOnFour, 2, 5, 1, "Because he has creative control, you cannot challenge this."},
  };
  for (const auto& row : kRows) {
    World world = Roster();
    Give(world, 1, {100, 96});
    world.FindWorker(row.Controls)->CreativeControl = true;
    const auto refusals =
        RefusalsAt(world, Match(world, row.Style, row.Type, row.Winner, {1}), kResultStep);
    ASSERT_FALSE(refusals.empty());
    for (const Refusal& refusal : refusals) EXPECT_EQ(refusal.Veto, row.Veto);
    const PriceTold told =
        TellPrice(world, Match(world, row.Style, row.Type, row.Winner, {1}), EmptySegment());
    EXPECT_TRUE(told.Text.starts_with("It cannot be booked like this.\n")) << told.Text;
    EXPECT_TRUE(told.Text.ends_with(row.Veto)) << told.Text;
    EXPECT_FALSE(told.IsFree);
  }
}

TEST(Grievances, OfTheLastBoutOfAFeud) {
  struct Row {
    int Loser;
    Numbers Has;
    int Level;
  };
  for (const Row& row : {Row{2, {76, 96}, 4}, Row{2, {75, 96}, 0}, Row{1, {71, 96}, 4},
                         Row{1, {70, 96}, 0}, Row{2, {61, 74}, 2}, Row{2, {61, 75}, 0}}) {
    SCOPED_TRACE(std::to_string(row.Has.Over));
    World world = Roster();
    Give(world, row.Loser, row.Has);
    Segment match = Match(world, kSingles, 1, 3 - row.Loser, {});
    match.Purpose = purpose1::kEndFeud;
    EXPECT_EQ(GrievancesOf(world, match)[row.Loser], row.Level);
    match.Purpose = purpose1::kContinueFeud;
    EXPECT_LT(GrievancesOf(world, match)[row.Loser], 3);
  }
}

}  // namespace
}  // namespace grapplemont::test
