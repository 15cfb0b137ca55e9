#pragma once

#include "show/segmentrun.h"

namespace grapplemont {

/// Managers, stables and Titles that the angle moves.
void MoveByAngle(SegmentRun& run);

}  // namespace grapplemont
