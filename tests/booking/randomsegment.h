#pragma once

#include <optional>

#include "booking/wizard/segmentcheck.h"
#include "support/randomworld.h"

namespace grapplemont::test {

/// A finished Segment of any kind that the wizard would let pass, refusals aside; nothing when a
/// number of tries brought none.
std::optional<Segment> RandomSegment(const World& world, Dice& dice, const BookingView& view);

}  // namespace grapplemont::test
