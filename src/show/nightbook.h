#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"
#include "show/ratings.h"
#include "show/segmentrun.h"

// What a show of the player's made and moved, noted step by step by the rules that compute it, and
// read again the morning after. Nothing here is worked out a second time.

namespace grapplemont {

/// Which number a note is of.
struct NoteOf {
  NoteKind Kind;
  std::string What;  // whose, as it is called
  int Worker = 0;    // uid
  int Row = 0;       // of the sheet
};

/// Makes room for today's show: the oldest of the kept shows goes, and what today has noted before.
void BeginNight(World& world);
/// Notes a step to `now`; nothing for a change of 0.
void NoteStep(World& world, const NoteOf& of, int change, int now, std::string_view why);
/// The same for what has no size: it is noted whatever the numbers are.
void NoteFact(World& world, const NoteOf& of, int change, int now, std::string_view why);
/// Every step of a number that a rule has made from nothing, or from where it stood at `from`.
void NoteSteps(World& world, const NoteOf& of, const Score& score, int from = 0);

/// Notes the steps of a number that the month made; they take the place of the last month's.
void NoteMonth(World& world, NoteKind kind, const Score& score);

// The same by a Segment of a show that is told. A Segment that runs outside a show has no row, and
// notes nothing.

void NoteStep(SegmentRun& run, NoteKind kind, const Worker& worker, int change, int now,
              std::string_view why);
void NoteStep(SegmentRun& run, NoteKind kind, const std::string& what, int change, int now,
              std::string_view why);
void NoteFact(SegmentRun& run, const NoteOf& of, int change, int now, std::string_view why);

// The morning after.

/// One number with its steps, in the order in which they were taken.
struct NotedNumber {
  int Kind = 0;
  std::string What;
  int Worker = 0;
  std::vector<const ShowNote*> Steps;

  int Before() const { return Steps.front()->Now - Steps.front()->Change; }
  int After() const { return Steps.back()->Now; }
  int Change() const { return After() - Before(); }
  /// The step that moved it most.
  const ShowNote& Main() const;
};

/// All that was noted of the promotion's show of that day, in the order in which the numbers were
/// first moved; the references hold until the notes change.
std::vector<NotedNumber> NightOf(const World& world, Day on, int promotionUid);
/// Whether its steps are kept: the last twelve shows' are.
bool HasNight(const World& world, Day on, int promotionUid);
/// Whether those of any show are.
bool HasAnyNight(const World& world);

}  // namespace grapplemont
