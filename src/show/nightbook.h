#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/notes.h"
#include "records/world.h"
#include "show/ratings.h"
#include "show/segmentrun.h"

// What a show of the player's made and moved, noted step by step by the rules that compute it, and
// read again the morning after. Nothing here is worked out a second time.

namespace grapplemont {

/// Makes room for today's show: the oldest of the kept shows goes, and what today has noted before.
void BeginNight(World& world);

/// Why a step was taken by a flat night: of a match's rating, and of the show's sum.
inline constexpr std::string_view kFlatNight = "flat night";

// A step noted by a Segment of a show that is told. A Segment that runs outside a show has no row,
// and notes nothing.

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
