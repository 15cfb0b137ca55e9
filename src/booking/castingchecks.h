#pragma once

#include <string>

#include "booking/roster.h"

namespace grapplemont {

/// What stands against an angle's cast, in the words of a box; empty for nothing. Asks in this
/// order: everybody is there, nobody twice, the manager, the table, the stable, the Title.
std::string WhyNotCast(const World& world, const Segment& segment, const BookingView& view);

}  // namespace grapplemont
