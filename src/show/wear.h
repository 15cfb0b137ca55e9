#pragma once

#include "show/segmentrun.h"

namespace grapplemont {

/// What a match leaves behind in one of its workers: card position, wear, morale, Over. The winners
/// get a second call.
void AfterMatch(SegmentRun& run, Worker& worker, bool isWinner);

}  // namespace grapplemont
