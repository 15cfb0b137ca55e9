#pragma once

#include "records/world.h"

namespace grapplemont {

/// The player's Title that the Segment names; nullptr for none.
Title* TitleAtStake(World& world, const Segment& segment);

}  // namespace grapplemont
