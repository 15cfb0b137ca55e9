#pragma once

#include "show/segmentrun.h"

namespace grapplemont {

/// Over of one who spoke in an interview or angle, by its final rating. Who only
/// stands by (secondary) gains and loses less.
void TalkOver(SegmentRun& run, Worker& worker, bool isSecondary);

}  // namespace grapplemont
