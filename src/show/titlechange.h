#pragma once

#include "show/segmentrun.h"

namespace grapplemont {

/// The player's Title that the Segment names; nullptr for none.
Title* TitleAtStake(World& world, const Segment& segment);

}  // namespace grapplemont
