#pragma once

#include <string>
#include <vector>

#include "booking/wizard/roster.h"

// What stands against a booking. The wizard, the auto booker and the tests ask the same.

namespace grapplemont {

/// Why a finished Segment could not have come out of the wizard, a sentence each: who may not stand
/// where they stand, codes that its lists would not offer, what its checks would say. Refusals that
/// the player may override are not among them. Any bytes will do: unknown styles and people are
/// reported like the rest.
std::vector<std::string> WhyNotBookable(const World& world, const Segment& segment,
                                        const BookingView& view);
/// The same of one step alone (Wizard::Step), with a Segment that holds nothing of later ones.
std::vector<std::string> WhyNotAtStep(const World& world, const Segment& segment, int step,
                                      const BookingView& view);

}  // namespace grapplemont
