#include "show/turncalls.h"

#include <algorithm>
#include <iterator>

#include "records/angles.h"
#include "show/consequences.h"
#include "show/segmentroles.h"
#include "show/turns.h"
#include "storylines/stables.h"

namespace grapplemont {

namespace {

enum class Step { Finish, Aftermath };

bool Shows(const Segment& segment, Step step, int code) {
  return code == (step == Step::Finish ? segment.Finish : segment.Aftermath);
}

/// Something that a worker does in a match and that can be the occasion of his turn.
struct Act {
  Step When;
  int Code;
  Part By;
  Part On;
};
// 1 vs 1: the first act of the one who is to turn says on whom.
constexpr Act kSinglesActs[] = {
    {Step::Finish, kCountOut, Part::Winner, Part::Loser},
    {Step::Finish, kInterference, Part::Winner, Part::Loser},
    {Step::Finish, kInterference, Part::Other1, Part::Loser},
    {Step::Finish, kBotchedInterference, Part::Other1, Part::Loser},
    {Step::Finish, kCheating, Part::Winner, Part::Loser},
    {Step::Aftermath, after1::kAttacksReferee, Part::Loser, Part::Nobody},
    {Step::Aftermath, after1::kTantrum, Part::Loser, Part::Nobody},
    {Step::Aftermath, after1::kRunInOnFirst, Part::Other1, Part::Worker1},
    {Step::Aftermath, after1::kRunInOnSecond, Part::Other1, Part::Worker2},
    {Step::Aftermath, after1::kRevengeAttack, Part::Loser, Part::Winner},
    {Step::Aftermath, after1::kBeatDown, Part::Winner, Part::Loser},
    {Step::Aftermath, after1::kGetsRevenge, Part::Loser, Part::Winner},
    {Step::Aftermath, after1::kTwoOnLoser, Part::Winner, Part::Loser},
    {Step::Aftermath, after1::kTwoOnLoser, Part::Other1, Part::Loser},
    {Step::Aftermath, after1::kTwoOnWinner, Part::Loser, Part::Winner},
    {Step::Aftermath, after1::kTwoOnWinner, Part::Other1, Part::Winner},
    {Step::Aftermath, after1::kAttacksRunIn, Part::Loser, Part::Other1},
    {Step::Aftermath, after1::kHandshake, Part::Winner, Part::Loser},
    {Step::Aftermath, after1::kHandshake, Part::Loser, Part::Winner},
    {Step::Aftermath, after1::kCheapShot, Part::Loser, Part::Winner},
    {Step::Aftermath, after1::kFirstRefusesHand, Part::Worker1, Part::Worker2},
    {Step::Aftermath, after1::kSecondRefusesHand, Part::Worker2, Part::Worker1},
    {Step::Aftermath, after1::kSave, Part::Other2, Part::Other1},
};
// 2 vs 2: who turns on his partner, whatever the purpose.
constexpr Act kBetrayals[] = {
    {Step::Finish, kPartnerTurns, Part::LosersPartner, Part::Loser},
    {Step::Aftermath, after2::kFirstTurns, Part::Worker1, Part::Worker2},
    {Step::Aftermath, after2::kSecondTurns, Part::Worker2, Part::Worker1},
    {Step::Aftermath, after2::kThirdTurns, Part::Worker3, Part::Worker4},
    {Step::Aftermath, after2::kFourthTurns, Part::Worker4, Part::Worker3},
};
// 2 vs 2: on whom the run-ins of the finish turn, and those of the aftermath.
constexpr Act kFinishRunIns[] = {
    {Step::Finish, kInterference, Part::Others12, Part::Loser},
    {Step::Finish, kBotchedInterference, Part::Others12, Part::Loser},
    {Step::Finish, kDqThroughInterference, Part::Others12, Part::Winner},
};
constexpr Act kAftermathRunIns[] = {
    {Step::Aftermath, after2::kSave, Part::Others34, Part::Other1},
    {Step::Aftermath, after2::kRunInOnFirst, Part::Others34, Part::Worker1},
    {Step::Aftermath, after2::kRunInOnSecond, Part::Others34, Part::Worker2},
    {Step::Aftermath, after2::kRunInOnThird, Part::Others34, Part::Worker3},
    {Step::Aftermath, after2::kRunInOnFourth, Part::Others34, Part::Worker4},
    {Step::Aftermath, after2::kRunInOnFirstTeam, Part::Others34, Part::FirstTeam},
    {Step::Aftermath, after2::kRunInOnSecondTeam, Part::Others34, Part::SecondTeam},
};

/// Whom a purpose of booking turns.
struct TurnPurpose {
  int Purpose;
  Part Turners;
};
constexpr TurnPurpose kSinglesTurns[] = {{purpose1::kTurnRunIn, Part::Other1},
                                         {purpose1::kTurnWinner, Part::Winner},
                                         {purpose1::kTurnLoser, Part::Loser},
                                         {purpose1::kTurnRunIn2, Part::Other2}};
constexpr TurnPurpose kTeamTurns[] = {
    {purpose2::kTurnWorker1, Part::Worker1},     {purpose2::kTurnWorker2, Part::Worker2},
    {purpose2::kTurnWorker3, Part::Worker3},     {purpose2::kTurnWorker4, Part::Worker4},
    {purpose2::kTurnFirstTeam, Part::FirstTeam}, {purpose2::kTurnSecondTeam, Part::SecondTeam}};
constexpr TurnPurpose kFinishRunInTurns[] = {{purpose2::kTurnOther1, Part::Other1},
                                             {purpose2::kTurnOthers12, Part::Others12},
                                             {purpose2::kTurnOther2, Part::Other2}};
constexpr TurnPurpose kAftermathRunInTurns[] = {{purpose2::kTurnOther3, Part::Other3},
                                                {purpose2::kTurnOther4, Part::Other4},
                                                {purpose2::kTurnOthers34, Part::Others34}};

/// An interview's turners, and the place of the one they turn on.
struct TalkTurn {
  int Style;
  int Turners[2];  // places; 0 for none
  int On;
};
constexpr TalkTurn kTalkTurns[] = {{kSingleTalk, {1, 0}, 2},
                                   {kTeamTalk, {1, 2}, 3},
                                   {kManagedTalk, {2, 0}, 3},
                                   {kManagedTeamTalk, {2, 3}, 4}};

/// The leader of the angle's stable, in place of a box.
constexpr int kTheLeader = -1;

struct AngleTurn {
  int Angle;
  int Turner;  // place
  int On;      // place, kTheLeader, or 0 for nobody
  bool OnlyPending;
};
constexpr AngleTurn kAngleTurns[] = {
    {kBetterEnemies, 1, 2, false},   {kFaceTurnAngle, 1, 2, false},
    {kHeelTurnAngle, 1, 2, false},   {kTeamFaceTurn, 1, 3, false},
    {kTeamFaceTurn, 2, 4, false},    {kTeamHeelTurn, 1, 3, false},
    {kTeamHeelTurn, 2, 4, false},    {kAmbush, 4, 2, true},
    {kManagementIssues, 1, 3, true}, {kDivaFever, 3, 1, true},
    {kStableInduction, 1, 0, true},  {kStableKickOut, 1, kTheLeader, true},
    {kStalkerReveal, 1, 2, true},    {kStalkerCaught, 1, 2, true},
    {kRejectedProposal, 2, 1, true},
};

using Calls = std::vector<TurnCall>;

void Add(Calls& calls, int turner, int other) {
  const bool isThere = std::any_of(calls.begin(), calls.end(),
                                   [&](const TurnCall& call) { return call.Turner == turner; });
  if (turner != 0 && !isThere) calls.push_back({turner, other});
}

/// One after the other on those they turn on; where there are fewer of these, on the last.
void AddAll(Calls& calls, const std::vector<int>& turners, const std::vector<int>& others) {
  for (std::size_t i = 0; i < turners.size(); ++i)
    Add(calls, turners[i], others.empty() ? 0 : others[std::min(i, others.size() - 1)]);
}

template <std::size_t N>
std::vector<int> TurnersOf(const Segment& segment, const TurnPurpose (&purposes)[N]) {
  for (const TurnPurpose& row : purposes)
    if (segment.Purpose == row.Purpose) return PeopleOf(segment, row.Turners);
  return {};
}

template <std::size_t N>
const Act* ActOf(const Segment& segment, const Act (&acts)[N]) {
  for (const Act& act : acts)
    if (Shows(segment, act.When, act.Code)) return &act;
  return nullptr;
}

void AddSinglesTurns(Calls& calls, const Segment& segment) {
  const std::vector<int> turners = TurnersOf(segment, kSinglesTurns);
  for (const Act& act : kSinglesActs)
    if (Shows(segment, act.When, act.Code) && PeopleOf(segment, act.By) == turners)
      AddAll(calls, turners, PeopleOf(segment, act.On));
}

void AddTagTurns(Calls& calls, const Segment& segment) {
  for (const Act& act : kBetrayals)
    if (Shows(segment, act.When, act.Code))
      AddAll(calls, PeopleOf(segment, act.By), PeopleOf(segment, act.On));
  const std::vector<int> winners = PeopleOf(segment, Part::WinningTeam);
  for (const int turner : TurnersOf(segment, kTeamTurns)) {
    const bool hasWon = std::find(winners.begin(), winners.end(), turner) != winners.end();
    AddAll(calls, {turner}, PeopleOf(segment, hasWon ? Part::Loser : Part::Winner));
  }
  const Act* finish = ActOf(segment, kFinishRunIns);
  AddAll(calls, TurnersOf(segment, kFinishRunInTurns),
         PeopleOf(segment, finish ? finish->On : Part::Nobody));
  if (const Act* runIn = ActOf(segment, kAftermathRunIns))
    AddAll(calls, TurnersOf(segment, kAftermathRunInTurns), PeopleOf(segment, runIn->On));
}

/// 3 vs 3 and 4 vs 4: from kFirstTurns on, a finish for each worker.
void AddBigTeamTurns(Calls& calls, const Segment& segment) {
  const int place = segment.Finish - kFirstTurns + 1;
  if (place < 1 || place > EntrantsOf(segment)) return;
  const int turner = segment.Worker[static_cast<std::size_t>(place - 1)];
  Add(calls, turner, PartnerOf(segment, turner));
}

int At(const Segment& segment, int place) {
  return place < 1 ? 0 : int(segment.Worker[static_cast<std::size_t>(place - 1)]);
}

void AddTalkTurns(Calls& calls, const Segment& segment) {
  if (segment.Purpose != kTalkTurn) return;
  for (const TalkTurn& row : kTalkTurns)
    if (segment.Style == row.Style)
      for (const int place : row.Turners) Add(calls, At(segment, place), At(segment, row.On));
}

int LeaderBeside(const World& world, const Segment& segment, int uid) {
  int leader = 0, over = -1;
  for (const Worker* member : ActiveMembers(world, segment.Text))
    if (member->Uid != uid && member->Over > over) {
      leader = member->Uid;
      over = member->Over;
    }
  return leader;
}

void AddAngleTurns(Calls& calls, const World& world, const Segment& segment) {
  for (const AngleTurn& row : kAngleTurns) {
    if (segment.Style != row.Angle) continue;
    const int turner = At(segment, row.Turner);
    const Worker* worker = world.FindWorker(turner);
    if (!worker || (row.OnlyPending && !worker->TurnPending)) continue;
    Add(calls, turner,
        row.On == kTheLeader ? LeaderBeside(world, segment, turner) : At(segment, row.On));
  }
}

void AddMatchTurns(Calls& calls, const Segment& segment) {
  if (segment.Style == kSingles) AddSinglesTurns(calls, segment);
  if (segment.Style == kTag) AddTagTurns(calls, segment);
  if (segment.Style == kThreeOnThree || segment.Style == kFourOnFour)
    AddBigTeamTurns(calls, segment);
}

}  // namespace

std::vector<TurnCall> BookedTurns(const World& world, const Segment& segment) {
  Calls calls;
  if (segment.Kind == kMatch) AddMatchTurns(calls, segment);
  if (segment.Kind == kInterview) AddTalkTurns(calls, segment);
  if (segment.Kind == kAngle) AddAngleTurns(calls, world, segment);
  return calls;
}

void ApplyTurns(SegmentRun& run) {
  for (const TurnCall& call : BookedTurns(run.World, run.Segment))
    if (Worker* turner = run.World.FindWorker(call.Turner))
      ApplyTurn(run, *turner, run.World.FindWorker(call.Other));
}

}  // namespace grapplemont
