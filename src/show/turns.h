#pragma once

#include "show/segmentrun.h"

namespace grapplemont {

/// One worker turns on another, or on nobody (nullptr): disposition, the crowd, his Over and morale
/// follow, and the notes tell it. Draws once for each of the spans that his last turn lies within,
/// unless it is very recent; then by the outcome.
void ApplyTurn(SegmentRun& run, Worker& turner, const Worker* other);

/// Whether the crowd will not like this turn, however popular the two are.
bool IsSureToFail(const Worker& turner, const Worker* other);

}  // namespace grapplemont
