#pragma once

#include "show/segmentrun.h"

namespace grapplemont {

/// Whom a hard match hurts. Draws once for everybody in a match of Strain 3 and up and for the
/// loser by a sick bump.
void DrawInjuries(SegmentRun& run);
/// Draws which injury it is, and how many months it lasts.
void BreakSomething(World& world, Worker& worker);
/// Hurts a worker, unless he is hurt already: which injury and how many months are drawn, and the
/// notes tell it.
void Injure(SegmentRun& run, Worker& worker);

}  // namespace grapplemont
