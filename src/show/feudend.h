#pragma once

#include "show/segmentrun.h"

namespace grapplemont {

/// A match that is booked to end its workers' feud does: both sides gain or lose by how it went,
/// some write about it, and its slot is free. Nothing for other matches.
void EndFeudByMatch(SegmentRun& run);

}  // namespace grapplemont
