#pragma once

#include "records/world.h"

// What becomes of rivals' Titles at their Events.

namespace grapplemont {

/// Each Title of a rival's that is not suspended: a vacant one finds champions if anybody may hold
/// it, the other changes hands in so many of a hundred defences, the sooner the longer it has not.
/// Draws of a hundred for a defence, then once for who wins.
void DefendRivalTitles(World& world);

}  // namespace grapplemont
