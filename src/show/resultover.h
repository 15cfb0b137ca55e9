#pragma once

#include "show/segmentrun.h"

namespace grapplemont {

/// Over by the result of a 1 vs 1 match.
void ShiftOverSingles(SegmentRun& run, Worker& winner, Worker& loser);
/// Over by the result of a 2 vs 2 match.
void ShiftOverTeams(SegmentRun& run, Worker& winner1, Worker& winner2, Worker& loser1,
                    Worker& loser2);
/// The one that the match asks for; nothing for a draw and for other styles.
void ShiftOver(SegmentRun& run);

}  // namespace grapplemont
