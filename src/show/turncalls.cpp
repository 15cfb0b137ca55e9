#include "show/turncalls.h"

#include <algorithm>
#include <optional>

#include "records/angles.h"
#include "records/segmentacts.h"
#include "show/consequences.h"
#include "show/turns.h"
#include "storylines/partners.h"

namespace grapplemont {

namespace {

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

template <std::size_t N>
std::vector<int> TurnersOf(const Segment& segment, const TurnPurpose (&purposes)[N]) {
  for (const TurnPurpose& row : purposes)
    if (segment.Purpose == row.Purpose) return PeopleOf(segment, row.Turners);
  return {};
}

int FirstOf(const std::vector<int>& people) {
  return people.empty() ? 0 : people.front();
}

/// On whom the one who is to turn commits an act: a uid, or 0 for nobody; nothing where he commits
/// none. Of several acts the first at which a turn can come off.
std::optional<int> VictimOf(const World& world, const Segment& segment, int turner) {
  std::optional<int> victim;
  const Worker* worker = world.FindWorker(turner);
  for (const Act& act : ActsOf(segment)) {
    const std::vector<int> by = PeopleOf(segment, act.By);
    if (!worker || !act.Is(kTurnOccasion) || std::find(by.begin(), by.end(), turner) == by.end())
      continue;
    const int on = FirstOf(PeopleOf(segment, act.On));
    if (!IsSureToFail(*worker, world.FindWorker(on))) return on;
    if (!victim) victim = on;
  }
  return victim;
}

void AddWhoActs(Calls& calls, const World& world, const Segment& segment,
                const std::vector<int>& turners) {
  for (const int turner : turners)
    if (const auto victim = VictimOf(world, segment, turner)) Add(calls, turner, *victim);
}

/// The one who stands against a worker of a 2 vs 2 match.
int OpponentOf(const Segment& segment, int uid) {
  const std::vector<int> winners = PeopleOf(segment, Part::WinningTeam);
  const bool hasWon = std::find(winners.begin(), winners.end(), uid) != winners.end();
  return FirstOf(PeopleOf(segment, hasWon ? Part::Loser : Part::Winner));
}

void AddTagTurns(Calls& calls, const World& world, const Segment& segment) {
  for (const Act& act : ActsOf(segment))
    if (act.Is(kSureTurn))
      Add(calls, FirstOf(PeopleOf(segment, act.By)), FirstOf(PeopleOf(segment, act.On)));
  for (const int turner : TurnersOf(segment, kTeamTurns))
    Add(calls, turner, VictimOf(world, segment, turner).value_or(OpponentOf(segment, turner)));
  const int attacked = FirstOf(PeopleOf(segment, Part::Attacked));
  for (const int turner : TurnersOf(segment, kFinishRunInTurns))
    Add(calls, turner, VictimOf(world, segment, turner).value_or(attacked));
  AddWhoActs(calls, world, segment, TurnersOf(segment, kAftermathRunInTurns));
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

void AddMatchTurns(Calls& calls, const World& world, const Segment& segment) {
  if (segment.Style == kSingles)
    AddWhoActs(calls, world, segment, TurnersOf(segment, kSinglesTurns));
  if (segment.Style == kTag) AddTagTurns(calls, world, segment);
  if (segment.Style == kThreeOnThree || segment.Style == kFourOnFour)
    AddBigTeamTurns(calls, segment);
}

}  // namespace

std::vector<TurnCall> BookedTurns(const World& world, const Segment& segment) {
  Calls calls;
  if (segment.Kind == kMatch) AddMatchTurns(calls, world, segment);
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
