#include "show/turns.h"

#include <algorithm>
#include <optional>

#include "records/segmentacts.h"
#include "roster/moods.h"
#include "show/anglerules.h"
#include "show/nightbook.h"
#include "show/overchange.h"
#include "storylines/partners.h"

namespace grapplemont {

namespace {

/// What the fans remember of a last turn: within Days of it, a draw of kMemory below Below spoils
/// the new one.
struct Memory {
  int Days;
  int Below;  // 0: no draw, it does
};
constexpr int kMemory = 15;
constexpr Memory kMemories[] = {{90, 0}, {180, 11}, {365, 6}};

/// What both popularities say about a turn.
enum class Popularity { Any, TurnerAbove, TurnerBelow };

/// What becomes of a turner against another. Rows of a pair are tried in order.
struct TurnRow {
  std::string_view Turner, Other;
  Popularity When;  // for the row to fit
  std::string_view Becomes;
  Popularity FlatWhen;  // with this the crowd does not like it
  bool MayFallFlat;
};
constexpr TurnRow kTurns[] = {
    {"F", "F", Popularity::Any, "H", Popularity::Any, false},
    {"F", "T", Popularity::Any, "H", Popularity::TurnerAbove, true},
    {"F", "H", Popularity::TurnerBelow, "T", Popularity::Any, true},
    {"F", "H", Popularity::Any, "H", Popularity::Any, true},
    {"H", "H", Popularity::Any, "F", Popularity::Any, false},
    {"H", "T", Popularity::Any, "F", Popularity::TurnerAbove, true},
    {"H", "F", Popularity::Any, "T", Popularity::Any, true},
    {"T", "F", Popularity::Any, "H", Popularity::Any, false},
    {"T", "H", Popularity::Any, "F", Popularity::Any, false},
    {"T", "T", Popularity::TurnerBelow, "H", Popularity::Any, true},
    {"T", "T", Popularity::Any, "F", Popularity::Any, true},
};

bool Holds(Popularity when, int turnerOver, int otherOver) {
  switch (when) {
    case Popularity::TurnerAbove:
      return turnerOver > otherOver;
    case Popularity::TurnerBelow:
      return turnerOver < otherOver;
    default:
      return true;
  }
}

/// The price of a turn that does not come off.
struct FailedTurn {
  std::string_view Before, After;  // the name stands between the two
  int CrowdTenths;
  int Over, OverDraw;
  int Morale, MoraleDraw;
};
constexpr FailedTurn kFailedTurns[] = {
    // Flat, TooSoon, Baffling
    {"", "'s turn didn't work very well, and that affected the crowd. ", 7, -10, 15, -10, 20},
    {"The fans realised that ",
     " turned not too long ago, and so this time they didn't care so much. ", 8, -15, 0, -10, 40},
    {"The fans were baffled by ", "'s behaviour, and that killed their enthusiasm. ", 6, -12, 0,
     -10, 40},
};

TurnOutcome RememberedTurn(World& world, const Worker& turner) {
  const int days = static_cast<int>((world.Today() - Day(turner.LastTurn)).count());
  for (const Memory& memory : kMemories) {
    if (days < 0 || days > memory.Days) continue;
    if (memory.Below == 0 || world.RandomDraw(kMemory) < memory.Below) return TurnOutcome::TooSoon;
  }
  return TurnOutcome::Completed;
}

/// nullptr for an unknown disposition.
const TurnRow* FindTurn(const Worker& turner, const Worker& other) {
  const int turnerOver = turner.Over, otherOver = other.Over;
  for (const TurnRow& row : kTurns)
    if (turner.Disposition == row.Turner && other.Disposition == row.Other &&
        Holds(row.When, turnerOver, otherOver))
      return &row;
  return nullptr;
}

/// Changes the disposition; true when the crowd does not like the change.
bool ChangeDisposition(Worker& turner, const Worker& other) {
  const TurnRow* row = FindTurn(turner, other);
  if (!row) return false;
  const bool isFlat = row->MayFallFlat && Holds(row->FlatWhen, turner.Over, other.Over);
  turner.Disposition = row->Becomes;
  return isFlat;
}

std::string_view TurnedInto(const Worker& turner) {
  return turner.Disposition == "F" ? "face. " : turner.Disposition == "T" ? "tweener. " : "heel. ";
}

constexpr int kTurnUp = 10, kTurnDown = 3;  // draws of Over

void CompleteTurn(SegmentRun& run, Worker& turner) {
  run.Notes += turner.Name.Str() + "'s turn was completed, and " +
               (turner.Gender ? "he " : "she ") + "is now a " + std::string(TurnedInto(turner));
  run.Crowd.Add(run.World.RandomDraw(10), "turn of " + turner.Name.Str());
  const int up = run.World.RandomDraw(kTurnUp);
  ChangeOverAndTell(run, turner, up - run.World.RandomDraw(kTurnDown), "turned");
}

void FailTurn(SegmentRun& run, Worker& turner, const FailedTurn& price) {
  run.Notes += std::string(price.Before) + turner.Name.Str() + std::string(price.After);
  run.Crowd.Scale(price.CrowdTenths, 10, "failed turn of " + turner.Name.Str());
  const int drop = price.OverDraw == 0 ? 0 : run.World.RandomDraw(price.OverDraw);
  ChangeOverAndTell(run, turner, price.Over - drop, "failed to turn");
  const int morale = turner.Morale;
  MoveMorale(run.World, turner, price.Morale - run.World.RandomDraw(price.MoraleDraw),
             kMoodTurnFailed);
  NoteStep(run, kNoteMorale, turner, turner.Morale - morale, turner.Morale, "failed to turn");
}

using Calls = std::vector<TurnCall>;

void Add(Calls& calls, int turner, int other) {
  const bool isThere = std::any_of(calls.begin(), calls.end(),
                                   [&](const TurnCall& call) { return call.Turner == turner; });
  if (turner != 0 && !isThere) calls.push_back({turner, other});
}

int FirstOf(const std::vector<int>& people) {
  return people.empty() ? 0 : people.front();
}

/// On whom the one who is to turn commits an act: a uid, or 0 for nobody; nothing where there
/// is not an act. Of several acts the first at which a turn can come off.
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

/// The one who stands against a worker of a 2 vs 2 match.
int OpponentOf(const Segment& segment, int uid) {
  const std::vector<int> winners = PeopleOf(segment, Part::WinningTeam);
  const bool hasWon = std::find(winners.begin(), winners.end(), uid) != winners.end();
  return FirstOf(PeopleOf(segment, hasWon ? Part::Loser : Part::Winner));
}

/// On whom somebody turns who commits no act: in a 2 vs 2 match an entrant on an opponent, a run-in
/// of the finish on whom the run-ins attacked.
std::optional<int> VictimWithoutAct(const Segment& segment, Part whom, int turner) {
  if (segment.Style == kSingles || whom == Part::Other3 || whom == Part::Other4 ||
      whom == Part::Others34)
    return {};
  if (IsRunIn(whom)) return FirstOf(PeopleOf(segment, Part::Attacked));
  return OpponentOf(segment, turner);
}

/// Those whom the purpose of the booking turns.
void AddPurposeTurns(Calls& calls, const World& world, const Segment& segment) {
  const PurposeRow purpose = PurposeOf(segment);
  if (purpose.Does != Aim::Turns) return;
  for (const int turner : PeopleOf(segment, purpose.Whom)) {
    auto victim = VictimOf(world, segment, turner);
    if (!victim) victim = VictimWithoutAct(segment, purpose.Whom, turner);
    if (victim) Add(calls, turner, *victim);
  }
}

/// Those who turn by what they do, whatever the purpose.
void AddSureTurns(Calls& calls, const Segment& segment) {
  for (const Act& act : ActsOf(segment))
    if (act.Is(kSureTurn))
      Add(calls, FirstOf(PeopleOf(segment, act.By)), FirstOf(PeopleOf(segment, act.On)));
}

/// 3 vs 3 and 4 vs 4: from kFirstTurns on, a finish for each worker.
void AddBigTeamTurns(Calls& calls, const Segment& segment) {
  const int place = segment.Finish - kFirstTurns + 1;
  if (place < 1 || place > EntrantsOf(segment)) return;
  const int turner = UidAt(segment, place);
  Add(calls, turner, PartnerOf(segment, turner));
}

void AddTalkTurns(Calls& calls, const Segment& segment) {
  if (segment.Purpose != kTalkTurn) return;
  // Where somebody speaks beside a manager, it is the manager who turns.
  const bool isManagers = segment.Style == kManagedTalk;
  for (const int turner : SeatedAs(segment, isManagers ? Casting::TalkManagers : Casting::Talkers))
    Add(calls, turner, FirstOf(SeatedAs(segment, Casting::Targets)));
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
  const AngleRules* angle = FindAngleRules(segment.Style);
  if (!angle) return;
  for (const AnglePair& turn : angle->Turns) {
    if (turn.By == kNobody) continue;
    const int turner = UidAt(segment, turn.By);
    const Worker* worker = world.FindWorker(turner);
    if (!worker || (turn.OnlyPending && !worker->TurnPending)) continue;
    Add(calls, turner,
        turn.On == kLeader   ? LeaderBeside(world, segment, turner)
        : turn.On == kNobody ? 0
                             : UidAt(segment, turn.On));
  }
}

void AddMatchTurns(Calls& calls, const World& world, const Segment& segment) {
  AddSureTurns(calls, segment);
  AddPurposeTurns(calls, world, segment);
  if (segment.Style == kThreeOnThree || segment.Style == kFourOnFour)
    AddBigTeamTurns(calls, segment);
}

}  // namespace

int BestOfTurn() {
  return kTurnUp - 1;
}

Span CostOfFailedTurn() {
  Span cost{100, 0};
  for (const FailedTurn& price : kFailedTurns) {
    cost.Least = std::min(cost.Least, -price.Over + (price.OverDraw > 0 ? 1 : 0));
    cost.Most = std::max(cost.Most, -price.Over + price.OverDraw);
  }
  return cost;
}

bool IsSureToFail(const Worker& turner, const Worker* other) {
  const TurnRow* row = FindTurn(turner, other ? *other : turner);
  return row && row->MayFallFlat && row->FlatWhen == Popularity::Any;
}

TurnOutcome ApplyTurn(SegmentRun& run, Worker& turner, const Worker* other) {
  TurnOutcome outcome = RememberedTurn(run.World, turner);
  if (!turner.TurnPending)
    outcome = TurnOutcome::Baffling;
  else if (ChangeDisposition(turner, other ? *other : turner))
    outcome = TurnOutcome::Flat;
  turner.TurnPending = false;
  turner.LastTurn = run.World.Today();
  if (outcome == TurnOutcome::Completed)
    CompleteTurn(run, turner);
  else
    FailTurn(run, turner, kFailedTurns[static_cast<int>(outcome) - 1]);
  return outcome;
}

std::vector<TurnCall> BookedTurns(const World& world, const Segment& segment) {
  Calls calls;
  if (segment.Kind == kMatch) AddMatchTurns(calls, world, segment);
  if (segment.Kind == kInterview) AddTalkTurns(calls, segment);
  if (segment.Kind == kAngle) AddAngleTurns(calls, world, segment);
  return calls;
}

std::vector<TurnMade> ApplyTurns(SegmentRun& run) {
  std::vector<TurnMade> made;
  for (const TurnCall& call : BookedTurns(run.World, run.Segment))
    if (Worker* turner = run.World.FindWorker(call.Turner))
      made.push_back({call.Turner, ApplyTurn(run, *turner, run.World.FindWorker(call.Other))});
  return made;
}

}  // namespace grapplemont
