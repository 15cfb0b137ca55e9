#pragma once

#include <string>
#include <vector>

#include "booking/roster.h"
#include "records/segments.h"

namespace grapplemont {

/// Why a finished interview or angle could not have come out of the wizard, a sentence each.
std::vector<std::string> WhyNotTalk(const World& world, const Segment& segment,
                                    const BookingView& view);

}  // namespace grapplemont
