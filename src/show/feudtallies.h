#pragma once

#include "show/segmentrun.h"

// What a Segment writes into the record of a feud. Each tally goes to the first feud in which the
// two are enemies.

namespace grapplemont {

/// A win goes into the feud's record and marks it as used; a feud that one side runs away with
/// cools.
void TallyWin(SegmentRun& run, int winnerUid, int loserUid, bool isClean);
/// The win of a match that counts wins, and nothing for other matches and for a draw.
void TallyResult(SegmentRun& run);
/// Every attack that a match's run-ins and aftermath stand for.
void TallyAttacks(SegmentRun& run);

}  // namespace grapplemont
