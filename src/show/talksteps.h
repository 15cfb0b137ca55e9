#pragma once

#include "show/segmentrun.h"

// What befalls an interview or angle after its scoring.

namespace grapplemont {

/// No angle is better than the player's writers, if there are any.
void CapByWriters(SegmentRun& run);
/// The overall rating: most of the crowd, and a draw.
void RateTalk(SegmentRun& run);

}  // namespace grapplemont
