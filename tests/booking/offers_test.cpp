#include "booking/wizard/offers.h"

#include <gtest/gtest.h>

#include "booking/ring.h"
#include "booking/wizard/matchrules.h"
#include "booking/wizard/roster.h"
#include "records/modWresCheck.h"
#include "show/turns.h"
#include "support/randomworld.h"

namespace grapplemont::test {
namespace {

using Codes = std::vector<int>;
using Lines = std::vector<std::string>;

Segment Singles(const World& world, int type, bool won) {
  Segment match = MatchOf(world, kSingles, type, {"Man 1", "Man 2"});
  StoreResult(match, won ? 1 : 0, {});
  return match;
}

/// Man 1 beats Man 3.
Segment TagMatch(const World& world, int type, bool won) {
  Segment match = MatchOf(world, kTag, type, {"Man 1", "Man 2", "Man 3", "Man 4"});
  StoreResult(match, won ? 1 : 0, {3});
  return match;
}

TEST(Finishes, OfASinglesMatchGoByItsType) {
  const World world = BookingRoster().Game("CWA");
  const Codes kPlain = {1, 3, 4}, kCheats = {1, 3, 4, 5}, kBumps = {1, 3, 4, 10};
  const Codes kOffered[] = {{1, 3, 4, 2, 13, 5},
                            kPlain,
                            kCheats,
                            kCheats,
                            kPlain,
                            kPlain,
                            kPlain,
                            kCheats,
                            kBumps,
                            kPlain,
                            kPlain,
                            kBumps,
                            kCheats,
                            kCheats,
                            {1, 3, 4, 5, 10},
                            {10},
                            {1, 3, 4, 5, 10},
                            {1, 3, 4, 5, 10},
                            kPlain};
  for (int type = kPlainSingles; type <= kBuckNaked; ++type)
    EXPECT_EQ(OfferedFinishes(world, Singles(world, type, true)), kOffered[type - 1])
        << "type " << type;
  EXPECT_EQ(OfferedFinishes(world, Singles(world, kPlainSingles, false)), (Codes{6, 7, 8}));
}

TEST(Finishes, OfATagMatchGoByItsTypeAndThePartner) {
  World world = BookingRoster().Game("CWA");
  const Codes kOffered[] = {
      {1, 2, 13, 3, 4, 5, 11}, {1, 3, 4, 5, 11}, {1, 3, 4}, {1, 3, 4, 10}, {1, 3, 4, 11}};
  const Codes kWithTurn[] = {{1, 2, 13, 3, 4, 5, 11, 12},
                             {1, 3, 4, 5, 11, 12},
                             {1, 3, 4},
                             {1, 3, 4, 10},
                             {1, 3, 4, 11, 12}};
  for (int type = kPlainTag; type <= kTagTables; ++type) {
    Named(world.Workers(), "Man 4").TurnPending = false;
    Named(world.Workers(), "Man 3").TurnPending = true;  // the one who falls
    EXPECT_EQ(OfferedFinishes(world, TagMatch(world, type, true)), kOffered[type - 1]);
    Named(world.Workers(), "Man 4").TurnPending = true;
    EXPECT_EQ(OfferedFinishes(world, TagMatch(world, type, true)), kWithTurn[type - 1]);
  }
  EXPECT_EQ(OfferedFinishes(world, TagMatch(world, kPlainTag, false)), (Codes{6, 7, 8}));
}

TEST(Finishes, OfBiggerTeamsNameWhoIsReadyToTurn) {
  World world = BookingRoster().Game("CWA");
  Lines people;
  for (int i = 1; i <= 8; ++i) people.push_back("Man " + std::to_string(i));
  Segment eight = MatchOf(world, kFourOnFour, kSurvivor, people);
  StoreResult(eight, 1, {5});
  people.resize(6);
  Segment six = MatchOf(world, kThreeOnThree, 1, people);
  StoreResult(six, 1, {4});
  EXPECT_EQ(OfferedFinishes(world, six), (Codes{1, 2}));
  for (const char* name : {"Man 2", "Man 6", "Man 8"})
    Named(world.Workers(), name).TurnPending = true;
  EXPECT_EQ(OfferedFinishes(world, six), (Codes{1, 2, 4, 8}));
  EXPECT_EQ(OfferedFinishes(world, eight), (Codes{1, 2, 4, 8, 10}));
  StoreResult(six, 0, {});
  StoreResult(eight, 0, {});
  EXPECT_EQ(OfferedFinishes(world, six), (Codes{4, 8, 9, 10, 11}));
  EXPECT_EQ(OfferedFinishes(world, eight), (Codes{4, 8, 10, 11, 12, 13}));
  EXPECT_EQ(OfferedFinishes(world, MatchOf(world, kThreeWay, 1, {})), Codes());
}

TEST(Aftermaths, OfASinglesMatchFollowItsFinish) {
  const World world = BookingRoster().Game("CWA");
  const Codes kAlone = {19, 21, 22, 20, 23, 4, 5, 6, 1};
  const auto after = [&](Codes start, const Codes& end) {
    start.insert(start.end(), end.begin(), end.end());
    return start;
  };
  const std::pair<int, Codes> kWon[] = {
      {kClean, after({2, 3, 24, 18, 7, 8}, kAlone)},
      {kCountOut, after({2, 3, 24, 18, 7, 8}, kAlone)},
      {kInterference, {2, 3, 24, 18, 9, 10, 25, 26, 27, 1}},
      {kBotchedInterference, {2, 3, 24, 18, 11, 12, 26, 27, 1}},
      {kCheating, after({2, 3, 24, 18}, kAlone)},
      {kSickBump, after({2, 3, 24, 18}, kAlone)},
      {kDqThroughInterference, {2, 3, 24, 18, 11, 12, 25, 26, 27, 1}},
  };
  for (const auto& [finish, codes] : kWon) {
    Segment match = Singles(world, kPlainSingles, true);
    match.Finish = finish;
    if (NeedsFinishRunIn(kSingles, finish)) match.Other1 = 5;
    EXPECT_EQ(OfferedAftermaths(world, match), codes) << "finish " << finish;
  }
  Segment draw = Singles(world, kPlainSingles, false);
  draw.Finish = kDoubleDq;
  EXPECT_EQ(OfferedAftermaths(world, draw), (Codes{19, 21, 22, 23, 4, 5, 6, 1}));
  draw.Finish = kNoContest;
  draw.Other1 = 5;
  EXPECT_EQ(OfferedAftermaths(world, draw), (Codes{13, 14, 15, 16, 17, 1}));
}

TEST(Aftermaths, OfATagMatchFollowItsFinishAndRunIns) {
  World world = BookingRoster().Game("CWA");
  const Codes kAlone = {20, 21, 22, 23, 24, 25, 26, 27, 1};
  struct Row {
    bool Won;
    int Finish, RunIns;
    Codes Offered;
  };
  const Row kRows[] = {
      {true, kClean, 0, {2, 3, 16, 20, 21, 22, 23, 24, 25, 26, 27, 1}},
      {true, kPartnerTurns, 0, {17, 20, 21, 22, 23, 24, 25, 26, 27, 1}},
      {true, kInterference, 1, {2, 3, 16, 12, 18, 19, 1}},
      {true, kInterference, 2, {2, 3, 16, 11, 18, 19, 15, 1}},
      {true, kBotchedInterference, 1, {2, 3, 16, 13, 18, 19, 1}},
      {true, kBotchedInterference, 2, {2, 3, 16, 14, 18, 19, 15, 1}},
      {true, kDqThroughInterference, 1, {2, 3, 16, 12, 18, 19, 1}},
      {true, kDqThroughInterference, 2, {2, 3, 16, 11, 18, 19, 15, 1}},
      {false, kDoubleDq, 0, {8, 9, 10, 20, 21, 22, 23, 24, 25, 26, 27, 1}},
      {false, kNoContest, 1, {8, 9, 10, 1}},
      {false, kNoContest, 2, {8, 9, 10, 15, 1}},
  };
  for (const Row& row : kRows) {
    Segment match = TagMatch(world, kPlainTag, row.Won);
    match.Finish = row.Finish;
    if (row.RunIns > 0) match.Other1 = 5;
    if (row.RunIns > 1) match.Other2 = 6;
    EXPECT_EQ(OfferedAftermaths(world, match), row.Offered)
        << "finish " << row.Finish << ", run-ins " << row.RunIns;
  }
  for (const char* name : {"Man 1", "Man 4"}) Named(world.Workers(), name).TurnPending = true;
  Segment match = TagMatch(world, kPlainTag, true);
  match.Finish = kClean;
  EXPECT_EQ(OfferedAftermaths(world, match),
            (Codes{2, 3, 7, 16, 20, 21, 22, 23, 24, 25, 26, 27, 1}))
      << "of the losers alone";
}

Lines PurposesRead(const World& world, const Segment& match) {
  Lines lines;
  for (const int code : OfferedPurposes(world, match))
    lines.push_back(PhraseText(world, match, PurposesOf(match.Style), code));
  return lines;
}

TEST(Purposes, OfASinglesMatch) {
  World world = BookingRoster()
                    .Worker("New Man", [](Worker& w) { w.Debuted = false; })
                    .Game("CWA")
                    .Feud("Man 2", "Man 1");
  Segment match = Singles(world, kBraAndPanties, true);
  match.Finish = kInterference;
  match.Other1 = UidOf(world, "New Man");
  match.Aftermath = after1::kFailedSave;
  match.Other2 = 6;
  EXPECT_EQ(PurposesRead(world, match),
            (Lines{"Debut New Man", "Put Man 1 over", "Put Man 2 over", "Put New Man over",
                   "Put Man 6 over", "Put on a good match", "End feud", "Continue feud",
                   "Eye Candy", "None"}));
  Segment plain = MatchOf(world, kSingles, kPlainSingles, {"Man 1", "New Man"});
  StoreResult(plain, 1, {});
  plain.Finish = kClean;
  EXPECT_EQ(PurposesRead(world, plain), (Lines{"Debut New Man", "Put Man 1 over",
                                               "Put New Man over", "Put on a good match", "None"}));
  Segment draw = Singles(world, kPlainSingles, false);
  draw.Finish = kDoubleDq;
  EXPECT_EQ(PurposesRead(world, draw),
            (Lines{"Put on a good match", "Put both workers over", "Continue feud", "None"}));
  draw.Finish = kNoContest;
  draw.Other1 = 7;
  EXPECT_EQ(PurposesRead(world, draw), (Lines{"Put on a good match", "Put both workers over",
                                              "Put Man 7 over", "Continue feud", "None"}));
}

/// Everybody is ready to turn; who is offered depends on the occasion.
struct TurnRow {
  int Finish, Aftermath;
  Codes Turns;
};

void ReadyAll(World& world) {
  for (Worker& worker : world.Workers()) {
    worker.TurnPending = true;
    worker.Disposition = "F";
  }
}

Codes TurnsAmong(const World& world, const Segment& match, const Codes& turns) {
  Codes found;
  for (const int code : OfferedPurposes(world, match))
    if (std::find(turns.begin(), turns.end(), code) != turns.end()) found.push_back(code);
  return found;
}

TEST(Purposes, TurnWhoActsInASinglesMatch) {
  World world = BookingRoster().Game("CWA");
  ReadyAll(world);
  const TurnRow kRows[] = {
      {kClean, 1, {}},
      {kClean, 2, {11}},
      {kClean, 3, {11}},
      {kClean, 4, {5}},
      {kClean, 5, {5}},
      {kClean, 6, {}},
      {kClean, 7, {11}},
      {kClean, 8, {10}},
      {kClean, 18, {}},
      {kClean, 19, {10, 11}},
      {kClean, 20, {11}},
      {kClean, 21, {10}},
      {kClean, 22, {11}},
      {kClean, 23, {}},
      {kClean, 24, {}},
      {kCountOut, 1, {10}},
      {kInterference, 1, {10, 5}},
      {kInterference, 9, {10, 11, 5}},
      {kInterference, 10, {10, 5}},
      {kInterference, 26, {10, 5, 31}},
      {kInterference, 27, {10, 5}},
      {kDqThroughInterference, 10, {10, 5}},
      {kBotchedInterference, 1, {5}},
      {kBotchedInterference, 11, {11, 5}},
      {kBotchedInterference, 12, {11, 5}},
      {kCheating, 1, {10}},
      {kSickBump, 1, {}},
      {kDqThroughInterference, 1, {}},
      {kDqThroughInterference, 11, {11, 5}},
      {kDqThroughInterference, 25, {}},
      {kDqThroughInterference, 26, {31}},
  };
  for (const TurnRow& row : kRows) {
    Segment match = Singles(world, kPlainSingles, true);
    match.Finish = row.Finish;
    match.Aftermath = row.Aftermath;
    if (NeedsFinishRunIn(kSingles, row.Finish)) match.Other1 = 5;
    if (NeedsAftermathRunIn(kSingles, row.Aftermath))
      (row.Aftermath >= after1::kSave ? match.Other2 : match.Other1) = 6;
    EXPECT_EQ(TurnsAmong(world, match, {5, 10, 11, 31}), row.Turns)
        << "finish " << row.Finish << ", aftermath " << row.Aftermath;
  }
}

TEST(Purposes, TurnWhoActsInATagMatch) {
  World world = BookingRoster().Game("CWA");
  ReadyAll(world);
  const Codes kTurns = {12, 13, 14, 15, 16, 17, 18, 19, 33, 34, 35, 36};
  const TurnRow kRows[] = {
      {kClean, 1, {}},
      {kClean, 2, {17, 14, 15}},
      {kClean, 3, {16, 12, 13}},
      {kClean, 4, {12}},
      {kClean, 5, {13}},
      {kClean, 6, {14}},
      {kClean, 7, {15}},
      {kClean, 16, {14, 15}},
      {kClean, 20, {}},
      {kClean, 21, {36, 34, 35}},
      {kClean, 22, {36, 34, 35}},
      {kClean, 23, {36, 34, 35}},
      {kClean, 24, {36, 34, 35}},
      {kClean, 25, {36, 34, 35}},
      {kClean, 26, {36, 34, 35}},
      {kClean, 27, {}},
      {kCountOut, 1, {12}},
      {kCheating, 1, {12}},
      {kMiscommunication, 1, {}},
      {kPartnerTurns, 1, {15}},
      {kPartnerTurns, 17, {16, 12, 13, 15}},
      {kInterference, 1, {12, 19, 18, 33}},
      {kInterference, 11, {12, 19, 18, 33}},
      {kInterference, 18, {12, 19, 18, 33, 36, 34, 35}},
      {kBotchedInterference, 14, {17, 14, 15, 19, 18, 33}},
      {kDqThroughInterference, 1, {}},
      {kInterference, 12, {16, 12, 13, 19, 18, 33}},
      {kDqThroughInterference, 12, {17, 14, 15, 19, 18, 33}},
      {kDqThroughInterference, 13, {17, 14, 15}},
  };
  for (const TurnRow& row : kRows) {
    Segment match = TagMatch(world, kPlainTag, true);
    match.Finish = row.Finish;
    match.Aftermath = row.Aftermath;
    if (NeedsFinishRunIn(kTag, row.Finish)) {
      match.Other1 = 5;
      match.Other2 = 6;
    }
    if (NeedsAftermathRunIn(kTag, row.Aftermath)) {
      match.Other3 = 7;
      match.Other4 = 8;
    }
    EXPECT_EQ(TurnsAmong(world, match, kTurns), row.Turns)
        << "finish " << row.Finish << ", aftermath " << row.Aftermath;
  }
}

/// Whoever a turn's words name turns in the show, on somebody on whom a turn can come off.
void ExpectTurns(const World& world, Segment match, int purpose) {
  match.Purpose = purpose;
  const std::string words = PhraseText(world, match, PurposesOf(match.Style), purpose);
  SCOPED_TRACE(words + ", style " + std::to_string(match.Style) + ", finish " +
               std::to_string(match.Finish) + ", aftermath " + std::to_string(match.Aftermath));
  const std::vector<TurnCall> calls = BookedTurns(world, match);
  for (int uid = 1; uid <= 8; ++uid) {
    if (words.find(WorkerName(world, uid)) == std::string::npos) continue;
    const auto turn = std::find_if(calls.begin(), calls.end(),
                                   [&](const TurnCall& call) { return call.Turner == uid; });
    ASSERT_NE(turn, calls.end());
    EXPECT_TRUE(CanTurn(*world.FindWorker(uid), world.FindWorker(turn->Other)));
  }
}

void ExpectEveryTurn(const World& world, Segment match) {
  if (NeedsFinishRunIn(match.Style, match.Finish)) {
    match.Other1 = 5;
    if (match.Style == kTag) match.Other2 = 6;
  }
  for (const int aftermath : OfferedAftermaths(world, match)) {
    Segment after = match;
    after.Aftermath = aftermath;
    int uid = 7;
    for (Word* runIn : AftermathRunIns(after)) *runIn = uid++;
    for (const int purpose : OfferedPurposes(world, after))
      if (PhraseText(world, after, PurposesOf(after.Style), purpose).starts_with("Turn "))
        ExpectTurns(world, after, purpose);
  }
}

TEST(Purposes, OfferNoTurnThatTheShowWouldNotBring) {
  Dice dice(17);
  for (int i = 0; i < 40; ++i) {
    World world = BookingRoster().Game("CWA");
    for (Worker& worker : world.Workers()) {
      worker.TurnPending = !dice.OneIn(4);
      worker.Disposition = dice.OneIn(3) ? "T" : dice.OneIn(2) ? "F" : "H";
    }
    for (Segment match : {Singles(world, kPlainSingles, true), TagMatch(world, kPlainTag, true)})
      for (const int finish : OfferedFinishes(world, match)) {
        match.Finish = finish;
        ExpectEveryTurn(world, match);
      }
  }
}

TEST(Aftermaths, SetThreeOnWhomTheRunInAttacked) {
  const World world = BookingRoster().Game("CWA");
  Segment match = TagMatch(world, kPlainTag, true);
  match.Other1 = 5;
  for (const auto& [finish, words] :
       {std::pair(kInterference, "Three-on-two on Man 3 \\ Man 4"),
        std::pair(kDqThroughInterference, "Three-on-two on Man 1 \\ Man 2")}) {
    match.Finish = finish;
    EXPECT_EQ(PhraseText(world, match, AftermathsOf(kTag), after2::kThreeOnTwo), words);
  }
}

TEST(Purposes, PutRunInsOverAfterATagWin) {
  const World world = BookingRoster().Game("CWA");
  Segment match = TagMatch(world, kPlainTag, true);
  match.Finish = kInterference;
  const Codes kRunIns = {20, 21, 37, 38};
  const std::pair<Word*, Codes> kRows[] = {{&match.Other1, {20}},
                                           {&match.Other2, {20, 21}},
                                           {&match.Other3, {20, 21, 37}},
                                           {&match.Other4, {20, 21, 37, 38}}};
  int uid = 5;
  for (const auto& [runIn, offered] : kRows) {
    *runIn = uid++;
    EXPECT_EQ(TurnsAmong(world, match, kRunIns), offered) << "up to " << uid - 5 << " run-ins";
  }
}

TEST(Purposes, DebutEachOfATagMatchAndThePairsOfNewcomers) {
  const Codes kDebuts = {22, 23, 24, 25, 26, 27, 28, 29, 30, 39, 40, 41};
  const std::pair<Codes, Codes> kRows[] = {
      {{1}, {24}},
      {{2}, {25}},
      {{3}, {26}},
      {{4}, {27}},
      {{5}, {29}},
      {{6}, {30}},
      {{7}, {39}},
      {{8}, {40}},
      {{1, 3}, {24, 26}},
      {{1, 2}, {22, 24, 25}},
      {{3, 4}, {23, 26, 27}},
      {{5, 6}, {28, 29, 30}},
      {{7, 8}, {41, 39, 40}},
  };
  for (const auto& [newcomers, offered] : kRows) {
    World world = BookingRoster().Game("CWA");
    for (const int uid : newcomers) world.FindWorker(uid)->Debuted = false;
    Segment match = TagMatch(world, kPlainTag, true);
    match.Finish = kInterference;
    match.Other1 = 5;
    match.Other2 = 6;
    match.Aftermath = after2::kSave;
    match.Other3 = 7;
    match.Other4 = 8;
    EXPECT_EQ(TurnsAmong(world, match, kDebuts), offered) << newcomers.front();
  }
}

TEST(Results, OfferADrawToTwoSidesOfThePlainTypeAlone) {
  std::vector<std::pair<int, int>> offered;
  for (const MatchTypeRow& row : kMatchTypes) {
    Segment match = EmptySegment();
    match.Kind = kMatch;
    match.Style = row.Style;
    match.MatchType = row.Code;
    if (OffersDraw(match)) offered.emplace_back(row.Style, row.Code);
  }
  EXPECT_EQ(offered, (std::vector<std::pair<int, int>>{{1, 1}, {2, 1}, {7, 1}, {8, 1}}));
}

TEST(RunInRoster, KeepsToTheSplitAndLeavesThoseInTheRingOut) {
  World world = BookingRoster().Worker("Cook", kNonWrestler, 30).Game("CWA");
  for (const char* name : {"Man 1", "Man 3", "Cook"}) Named(world.Workers(), name).Split = "Red";
  const auto names = [&](const char* split) {
    Lines found;
    for (const Worker* worker : RunInRoster(world, Singles(world, 1, true), {false, split}))
      found.push_back(worker->Name.Str());
    return found;
  };
  EXPECT_EQ(names("Red"), (Lines{"Man 3", "Cook"}));
  EXPECT_EQ(names("All").size(), 15u);
}

TEST(Purposes, OfATagMatch) {
  const auto isNew = [](Worker& w) { w.Debuted = false; };
  World world = BookingRoster()
                    .Worker("New A", isNew)
                    .Worker("New B", isNew)
                    .Game("CWA")
                    .TagFeud("Man 2", "Man 1", "New B", "New A");
  Segment match = MatchOf(world, kTag, kPlainTag, {"Man 1", "Man 2", "New A", "New B"});
  StoreResult(match, 1, {match.Worker[2]});
  match.Finish = kInterference;
  match.Other1 = 5;
  EXPECT_EQ(PurposesRead(world, match),
            (Lines{"Debut New A \\ New B", "Debut New A", "Debut New B", "Put Man 1 \\ Man 2 over",
                   "Put New A \\ New B over", "Put Man 1 over", "Put Man 2 over", "Put New A over",
                   "Put New B over", "Put Man 5 over", "Put on a good match", "End Feud",
                   "Continue Feud", "None"}));
  StoreResult(match, 0, {});
  match.Finish = kNoContest;
  match.Other2 = 6;
  EXPECT_EQ(PurposesRead(world, match),
            (Lines{"Debut New A \\ New B", "Debut New A", "Debut New B", "Put on a good match",
                   "Put both teams over", "Put Man 5 over", "Put Man 5 \\ Man 6 over",
                   "Continue Feud", "None"}));
}

TEST(CanTurn, LooksAtBothSides) {
  struct Row {
    const char* Turner;
    const char* Partner;  // empty for nobody
    bool Can;
  };
  for (const Row& row :
       {Row{"F", "F", true}, Row{"F", "H", false}, Row{"F", "T", true}, Row{"H", "F", false},
        Row{"H", "H", true}, Row{"H", "T", true}, Row{"T", "F", true}, Row{"T", "H", true},
        Row{"T", "T", false}, Row{"F", "", true}, Row{"T", "", true}, Row{"H", "", false}}) {
    Worker turner, partner;
    turner.Disposition = row.Turner;
    partner.Disposition = row.Partner;
    turner.TurnPending = true;
    const Worker* other = *row.Partner ? &partner : nullptr;
    EXPECT_EQ(CanTurn(turner, other), row.Can) << row.Turner << row.Partner;
    turner.TurnPending = false;
    EXPECT_FALSE(CanTurn(turner, other));
  }
}

// --- Titles

Lines TitlesFor(const World& world, int style, int type, const Lines& people) {
  Lines names;
  for (const Title* title : OfferedTitles(world, MatchOf(world, style, type, people)))
    names.push_back(title->Name.Str());
  return names;
}

TEST(Titles, FitTheirMatch) {
  const Change<Worker> light = [](Worker& w) { w.Weight = "L"; };
  SmallWorld small = BookingRoster();
  for (int i = 1; i <= 30; ++i) small.Worker("Light " + std::to_string(i), light);
  World world = small.Title("Crown")
                    .Title("Light", {}, {}, [](Title& t) { t.Lightweight = true; })
                    .Title("Women", {}, {}, [](Title& t) { t.Woman = true; })
                    .Title("Gone", {}, {}, [](Title& t) { t.Suspended = true; })
                    .Title("Straps", "Man 1", "Man 2")
                    .Promotion("NEW", kSmall)
                    .Title("Theirs")
                    .Game("CWA");
  const auto lights = [](int count) {
    Lines names;
    for (int i = 1; i <= count; ++i) names.push_back("Light " + std::to_string(i));
    return names;
  };
  EXPECT_EQ(TitlesFor(world, kSingles, 1, {"Man 1", "Man 2"}), Lines{"Crown"});
  EXPECT_EQ(TitlesFor(world, kSingles, 1, {"Light 1", "Man 2"}), Lines{"Crown"});
  EXPECT_EQ(TitlesFor(world, kSingles, 1, lights(2)), (Lines{"Crown", "Light"}));
  EXPECT_EQ(TitlesFor(world, kSingles, 1, {"Woman 1", "Woman 2"}), (Lines{"Crown", "Women"}));
  EXPECT_EQ(TitlesFor(world, kSingles, 1, {"Woman 1", "Man 2"}), Lines{"Crown"});
  EXPECT_EQ(TitlesFor(world, kThreeWay, 1, {"Woman 1", "Woman 2", "Man 3"}), Lines{"Crown"});
  EXPECT_EQ(TitlesFor(world, kThreeWay, 1, {"Woman 1", "Woman 2", "Woman 3"}),
            (Lines{"Crown", "Women"}));
  EXPECT_EQ(TitlesFor(world, kFourWay, 1, {"Woman 1", "Woman 2", "Woman 3", "Man 1"}),
            Lines{"Crown"});
  for (const int style : {kTag, kThreeTeams, kFourTeams})
    EXPECT_EQ(TitlesFor(world, style, 1, lights(8)), Lines{"Straps"});
  for (const int style : {kThreeOnThree, kFourOnFour})
    EXPECT_EQ(TitlesFor(world, style, 1, lights(8)), Lines());
  for (const auto& [type, count] :
       {std::pair(kTenMan, 10), std::pair(kTwentyMan, 20), std::pair(kRoyalRumble, 30)}) {
    Lines field = lights(count);
    EXPECT_EQ(TitlesFor(world, kSpecial, type, field), (Lines{"Crown", "Light"}));
    field.back() = "Man 1";
    EXPECT_EQ(TitlesFor(world, kSpecial, type, field), Lines{"Crown"});
  }
}

TEST(Titles, MissTheirChampion) {
  World world = BookingRoster()
                    .Title("Crown", "Man 4")
                    .Title("Vacant")
                    .Title("Straps", "Man 2", "Man 1")
                    .Game("CWA");
  const auto misses = [&](int style, const Lines& people, const char* title) {
    return IsChampionMissing(MatchOf(world, style, 3, people), Named(world.Titles(), title));
  };
  EXPECT_TRUE(misses(kSingles, {"Man 1", "Man 2"}, "Crown"));
  EXPECT_FALSE(misses(kSingles, {"Man 4", "Man 2"}, "Crown"));
  EXPECT_FALSE(misses(kSingles, {"Man 1", "Man 2"}, "Vacant"));
  EXPECT_FALSE(misses(kFourWay, {"Man 1", "Man 2", "Man 3", "Man 4"}, "Crown"));
  EXPECT_FALSE(misses(kSpecial, {"Man 1", "Man 2", "Man 3", "Man 5", "Man 6", "Man 4"}, "Crown"));
  for (int place = 1; place <= 30; ++place) {
    Segment royal = MatchOf(world, kSpecial, kRoyalRumble, {});
    royal.Worker[static_cast<std::size_t>(place - 1)] = 4;
    EXPECT_FALSE(IsChampionMissing(royal, Named(world.Titles(), "Crown"))) << place;
    royal.Style = kFourWay;
    EXPECT_EQ(IsChampionMissing(royal, Named(world.Titles(), "Crown")), place > 4) << place;
  }
  EXPECT_TRUE(misses(kSpecial, {"Man 1", "Man 2", "Man 3", "Man 5", "Man 6"}, "Crown"));
  EXPECT_FALSE(misses(kTag, {"Man 3", "Man 4", "Man 1", "Man 2"}, "Straps"));
  EXPECT_TRUE(misses(kTag, {"Man 1", "Man 4", "Man 3", "Man 2"}, "Straps")) << "apart";
  EXPECT_FALSE(misses(kFourTeams,
                      {"Man 3", "Man 4", "Man 5", "Man 6", "Man 7", "Man 8", "Man 2", "Man 1"},
                      "Straps"));
}

}  // namespace
}  // namespace grapplemont::test
