#pragma once

#include <string>
#include <vector>

#include "booking/roster.h"

namespace grapplemont {

/// Why a finished interview or angle could not have come out of the wizard, a sentence each; empty
/// for one that could. Any bytes will do: unknown styles and people are told like the rest.
std::vector<std::string> WhyNotTalk(const World& world, const Segment& segment,
                                    const BookingView& view);

}  // namespace grapplemont
