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

/// What a list offers for a match that is as far as this, with these run-ins at its finish.
struct OfferRow {
  int Style, Type;
  bool Won;
  int Finish, RunIns;
  Codes Offered;
};

using Offers = std::vector<int>(const World&, const Segment&);

void ExpectOffers(const World& world, Offers* offers, std::initializer_list<OfferRow> rows) {
  for (const OfferRow& row : rows) {
    Segment match = row.Style == kSingles ? Singles(world, row.Type, row.Won)
                                          : TagMatch(world, row.Type, row.Won);
    match.Finish = row.Finish;
    match.Other1 = row.RunIns > 0 ? 5 : 0;
    match.Other2 = row.RunIns > 1 ? 6 : 0;
    EXPECT_EQ(offers(world, match), row.Offered) << "style " << row.Style << ", type " << row.Type
                                                 << ", finish " << row.Finish << row.RunIns;
  }
}

TEST(Finishes, GoByTypeResultAndPartner) {
  World world = BookingRoster().Game("CWA");
  world.FindWorker(3)->TurnPending = true;  // the one who falls
  ExpectOffers(world, OfferedFinishes,
               {{kSingles, kPlainSingles, true, 0, 0, {1, 3, 4, 2, 13, 5}},
                {kSingles, kHardcore, true, 0, 0, {1, 3, 4, 5}},
                {kSingles, kCage, true, 0, 0, {1, 3, 4}},
                {kSingles, kHellInACell, true, 0, 0, {1, 3, 4, 5, 10}},
                {kSingles, kHighIncident, true, 0, 0, {10}},
                {kSingles, kPlainSingles, false, 0, 0, {6, 7, 8}},
                {kTag, kPlainTag, true, 0, 0, {1, 2, 13, 3, 4, 5, 11}},
                {kTag, kPlainTag, false, 0, 0, {6, 7, 8}}});
  world.FindWorker(4)->TurnPending = true;
  ExpectOffers(world, OfferedFinishes,
               {{kTag, kPlainTag, true, 0, 0, {1, 2, 13, 3, 4, 5, 11, 12}},
                {kTag, kTagCage, true, 0, 0, {1, 3, 4}},
                {kTag, kTagLadder, true, 0, 0, {1, 3, 4, 10}},
                {kTag, kTagTables, true, 0, 0, {1, 3, 4, 11, 12}}});
}

TEST(Finishes, OfBiggerTeamsNameWhoIsReadyToTurn) {
  World world = BookingRoster().Game("CWA");
  Segment six =
      MatchOf(world, kThreeOnThree, 1, {"Man 1", "Man 2", "Man 3", "Man 4", "Man 5", "Man 6"});
  StoreResult(six, 1, {4});
  EXPECT_EQ(OfferedFinishes(world, six), (Codes{1, 2}));
  for (const int uid : {2, 6, 8}) world.FindWorker(uid)->TurnPending = true;
  EXPECT_EQ(OfferedFinishes(world, six), (Codes{1, 2, 4, 8}));
  StoreResult(six, 0, {});
  EXPECT_EQ(OfferedFinishes(world, six), (Codes{4, 8, 9, 10, 11}));
  EXPECT_EQ(OfferedFinishes(world, MatchOf(world, kThreeWay, 1, {})), Codes());
}

TEST(Aftermaths, FollowTheFinishAndItsRunIns) {
  World world = BookingRoster().Game("CWA");
  ExpectOffers(
      world, OfferedAftermaths,
      {{kSingles, 1, true, kClean, 0, {2, 3, 24, 18, 7, 8, 19, 21, 22, 20, 23, 4, 5, 6, 1}},
       {kSingles, 1, true, kCheating, 0, {2, 3, 24, 18, 19, 21, 22, 20, 23, 4, 5, 6, 1}},
       {kSingles, 1, true, kInterference, 1, {2, 3, 24, 18, 9, 10, 25, 26, 27, 1}},
       {kSingles, 1, true, kDqThroughInterference, 1, {2, 3, 24, 18, 11, 12, 25, 26, 27, 1}},
       {kSingles, 1, false, kDoubleDq, 0, {19, 21, 22, 23, 4, 5, 6, 1}},
       {kSingles, 1, false, kNoContest, 1, {13, 14, 15, 16, 17, 1}},
       {kTag, 1, true, kPartnerTurns, 0, {17, 20, 21, 22, 23, 24, 25, 26, 27, 1}},
       {kTag, 1, true, kInterference, 1, {2, 3, 16, 12, 18, 19, 1}},
       {kTag, 1, true, kInterference, 2, {2, 3, 16, 11, 18, 19, 15, 1}},
       {kTag, 1, true, kBotchedInterference, 1, {2, 3, 16, 13, 18, 19, 1}},
       {kTag, 1, true, kBotchedInterference, 2, {2, 3, 16, 14, 18, 19, 15, 1}},
       {kTag, 1, false, kDoubleDq, 0, {8, 9, 10, 20, 21, 22, 23, 24, 25, 26, 27, 1}},
       {kTag, 1, false, kNoContest, 1, {8, 9, 10, 1}},
       {kTag, 1, false, kNoContest, 2, {8, 9, 10, 15, 1}}});
  for (const int uid : {1, 4}) world.FindWorker(uid)->TurnPending = true;
  // Of the losers alone.
  ExpectOffers(world, OfferedAftermaths,
               {{kTag, 1, true, kClean, 0, {2, 3, 7, 16, 20, 21, 22, 23, 24, 25, 26, 27, 1}}});
}

Lines PurposesRead(const World& world, const Segment& match) {
  Lines lines;
  for (const int code : OfferedPurposes(world, match))
    lines.push_back(PhraseText(world, match, PurposesOf(match.Style), code));
  return lines;
}

Codes PurposesAmong(const World& world, const Segment& match, const Codes& codes) {
  Codes found;
  for (const int code : OfferedPurposes(world, match))
    if (std::find(codes.begin(), codes.end(), code) != codes.end()) found.push_back(code);
  return found;
}

/// Fills the run-ins that the match asks for, from Man 5 on.
void RunIn(Segment& match) {
  int uid = 5;
  if (NeedsFinishRunIn(match.Style, match.Finish)) {
    match.Other1 = uid++;
    if (match.Style == kTag) match.Other2 = uid++;
  }
  for (Word* runIn : AftermathRunIns(match)) *runIn = uid++;
}

/// Everybody is ready to turn; who is offered depends on the occasion.
TEST(Purposes, TurnWhoActs) {
  const struct {
    int Style, Finish, Aftermath;
    Codes Turns;
  } kRows[] = {
      {kSingles, kClean, 1, {}},
      {kSingles, kClean, 3, {11}},
      {kSingles, kClean, 5, {5}},
      {kSingles, kClean, 8, {10}},
      {kSingles, kClean, 19, {10, 11}},
      {kSingles, kInterference, 9, {10, 11, 5}},
      {kSingles, kInterference, 26, {10, 5, 31}},
      {kSingles, kBotchedInterference, 11, {11, 5}},
      {kSingles, kDqThroughInterference, 25, {}},
      {kTag, kClean, 2, {17, 14, 15}},
      {kTag, kClean, 3, {16, 12, 13}},
      {kTag, kClean, 6, {14}},
      {kTag, kClean, 24, {36, 34, 35}},
      {kTag, kCountOut, 1, {12}},
      {kTag, kPartnerTurns, 17, {16, 12, 13, 15}},
      {kTag, kInterference, 12, {16, 12, 13, 19, 18, 33}},
      {kTag, kInterference, 18, {12, 19, 18, 33, 36, 34, 35}},
      {kTag, kDqThroughInterference, 13, {17, 14, 15}},
  };
  World world = BookingRoster().Game("CWA");
  for (Worker& worker : world.Workers()) worker.TurnPending = true;
  for (const auto& row : kRows) {
    Segment match = row.Style == kSingles ? Singles(world, 1, true) : TagMatch(world, 1, true);
    match.Finish = row.Finish;
    match.Aftermath = row.Aftermath;
    RunIn(match);
    const Codes turns = row.Style == kSingles
                            ? Codes{5, 10, 11, 31}
                            : Codes{12, 13, 14, 15, 16, 17, 18, 19, 33, 34, 35, 36};
    EXPECT_EQ(PurposesAmong(world, match, turns), row.Turns)
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
  RunIn(match);
  for (const int aftermath : OfferedAftermaths(world, match)) {
    Segment after = match;
    after.Aftermath = aftermath;
    RunIn(after);
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

TEST(Purposes, DebutEachOfATagMatchAndThePairsOfNewcomers) {
  const Codes kDebuts = {22, 23, 24, 25, 26, 27, 28, 29, 30, 39, 40, 41};
  const std::pair<Codes, Codes> kRows[] = {
      {{1, 3, 5, 7}, {24, 26, 29, 39}},
      {{2, 4, 6, 8}, {25, 27, 30, 40}},
      {{1, 2, 5, 6}, {22, 24, 25, 28, 29, 30}},
      {{3, 4, 7, 8}, {23, 26, 27, 41, 39, 40}},
  };
  for (const auto& [newcomers, offered] : kRows) {
    World world = BookingRoster().Game("CWA");
    for (const int uid : newcomers) world.FindWorker(uid)->Debuted = false;
    Segment match = TagMatch(world, kPlainTag, true);
    match.Finish = kInterference;
    match.Aftermath = after2::kSave;
    RunIn(match);
    EXPECT_EQ(PurposesAmong(world, match, kDebuts), offered) << newcomers.front();
    EXPECT_EQ(PurposesAmong(world, match, {20, 21, 37, 38}), (Codes{20, 21, 37, 38}));
  }
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
  for (const std::string pair : {"FF", "FT", "HH", "HT", "TF", "TH", "FH", "HF", "TT"}) {
    Worker turner, partner;
    turner.Disposition = pair.substr(0, 1);
    partner.Disposition = pair.substr(1);
    turner.TurnPending = true;
    EXPECT_EQ(CanTurn(turner, &partner), pair != "FH" && pair != "HF" && pair != "TT") << pair;
    EXPECT_EQ(CanTurn(turner, nullptr), pair[0] != 'H') << pair;
    turner.TurnPending = false;
    EXPECT_FALSE(CanTurn(turner, &partner));
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
  Lines lights;
  for (int i = 1; i <= 10; ++i)
    small.Worker(lights.emplace_back("Light " + std::to_string(i)), light);
  const World world = small.Title("Crown")
                          .Title("Light", {}, {}, [](Title& t) { t.Lightweight = true; })
                          .Title("Women", {}, {}, [](Title& t) { t.Woman = true; })
                          .Title("Gone", {}, {}, [](Title& t) { t.Suspended = true; })
                          .Title("Straps", "Man 1", "Man 2")
                          .Promotion("NEW", kSmall)
                          .Title("Theirs")
                          .Game("CWA");
  EXPECT_EQ(TitlesFor(world, kSingles, 1, {"Light 1", "Man 2"}), Lines{"Crown"});
  EXPECT_EQ(TitlesFor(world, kSingles, 1, {"Woman 1", "Woman 2"}), (Lines{"Crown", "Women"}));
  EXPECT_EQ(TitlesFor(world, kFourWay, 1, {"Woman 1", "Woman 2", "Woman 3", "Man 1"}),
            Lines{"Crown"});
  for (const int style : {kTag, kThreeTeams, kFourTeams})
    EXPECT_EQ(TitlesFor(world, style, 1, lights), Lines{"Straps"});
  EXPECT_EQ(TitlesFor(world, kFourOnFour, 1, lights), Lines());
  EXPECT_EQ(TitlesFor(world, kSpecial, kTenMan, lights), (Lines{"Crown", "Light"}));
  lights.back() = "Man 1";
  EXPECT_EQ(TitlesFor(world, kSpecial, kTenMan, lights), Lines{"Crown"});
}

TEST(Titles, MissTheirChampion) {
  const World world = BookingRoster()
                          .Title("Crown", "Man 4")
                          .Title("Vacant")
                          .Title("Straps", "Man 2", "Man 1")
                          .Game("CWA");
  struct Row {
    int Style;
    std::vector<int> People;
    const char* Title;
    bool Misses;
  };
  for (const Row& row :
       {Row{kSingles, {1, 2}, "Crown", true}, Row{kSingles, {4, 2}, "Crown", false},
        Row{kSingles, {1, 2}, "Vacant", false}, Row{kFourWay, {1, 2, 3, 4}, "Crown", false},
        Row{kFourWay, {1, 2, 3, 5, 4}, "Crown", true},  // beyond the places
        Row{kSpecial, {1, 2, 3, 5, 6, 4}, "Crown", false}, Row{kTag, {3, 4, 1, 2}, "Straps", false},
        Row{kTag, {1, 4, 3, 2}, "Straps", true},  // apart
        Row{kFourTeams, {3, 4, 5, 6, 7, 8, 2, 1}, "Straps", false}}) {
    Segment match = MatchOf(world, row.Style, 3, {});
    std::copy(row.People.begin(), row.People.end(), match.Worker.begin());
    EXPECT_EQ(IsChampionMissing(match, Named(world.Titles(), row.Title)), row.Misses)
        << row.Style << row.Title << row.People.back();
  }
  Segment royal = MatchOf(world, kSpecial, kRoyalRumble, {});
  royal.Worker[29] = 4;
  EXPECT_FALSE(IsChampionMissing(royal, Named(world.Titles(), "Crown")));
}

}  // namespace
}  // namespace grapplemont::test
