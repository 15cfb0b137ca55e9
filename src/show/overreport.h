#pragma once

#include "show/segmentrun.h"

namespace grapplemont {

/// Applies a change to the worker's Over, held to 0..100, and gives what came of it.
int ChangeOver(Worker& worker, int change);
/// The same, and tells it in the notes as a Segment of its kind does.
void ChangeOverAndTell(SegmentRun& run, Worker& worker, int change);

}  // namespace grapplemont
