#pragma once

#include <string>
#include <vector>

#include "booking/wizard/matchrules.h"
#include "booking/wizard/segmentcheck.h"

namespace grapplemont {

/// What the people in the ring say to one step of a match with what the Segment holds, in the order
/// in which they say it. Steps after it are not looked at.
std::vector<Refusal> RefusalsAt(const World& world, const Segment& match, MatchStep step);

}  // namespace grapplemont
