#pragma once

#include "show/segmentrun.h"

// How good an interview or angle is.

namespace grapplemont {

// Each fills Crowd from the Segment and does what goes with it to the feuds.
void ScoreInterview(SegmentRun& run);
void ScoreAngle(SegmentRun& run);

/// No angle is better than the player's writers, if there are any.
void CapByWriters(SegmentRun& run);
/// The overall rating: most of the crowd, and a draw.
void RateTalk(SegmentRun& run);

}  // namespace grapplemont
