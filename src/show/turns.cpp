#include "show/turns.h"

#include "show/overreport.h"

namespace grapplemont {

namespace {

enum class TurnOutcome { Completed, Flat, TooSoon, Baffling };

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

/// nullptr for a disposition that is none.
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

void CompleteTurn(SegmentRun& run, Worker& turner) {
  run.Notes += turner.Name.Str() + "'s turn was completed, and " +
               (turner.Gender ? "he " : "she ") + "is now a " + std::string(TurnedInto(turner));
  run.Crowd.Add(run.World.RandomDraw(10), "turn of " + turner.Name.Str());
  const int up = run.World.RandomDraw(10);
  ChangeOverAndTell(run, turner, up - run.World.RandomDraw(3));
}

void FailTurn(SegmentRun& run, Worker& turner, const FailedTurn& price) {
  run.Notes += std::string(price.Before) + turner.Name.Str() + std::string(price.After);
  run.Crowd.Scale(price.CrowdTenths, 10, "failed turn of " + turner.Name.Str());
  const int drop = price.OverDraw == 0 ? 0 : run.World.RandomDraw(price.OverDraw);
  ChangeOverAndTell(run, turner, price.Over - drop);
  turner.Morale += price.Morale - run.World.RandomDraw(price.MoraleDraw);
}

}  // namespace

bool IsSureToFail(const Worker& turner, const Worker* other) {
  const TurnRow* row = FindTurn(turner, other ? *other : turner);
  return row && row->MayFallFlat && row->FlatWhen == Popularity::Any;
}

void ApplyTurn(SegmentRun& run, Worker& turner, const Worker* other) {
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
}

}  // namespace grapplemont
