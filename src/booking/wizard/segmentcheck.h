#pragma once

#include <string>
#include <vector>

#include "booking/wizard/roster.h"

// What stands against a booking. The wizard, the auto booker and the tests ask the same.

namespace grapplemont {

/// An objection of somebody in the ring.
struct Refusal {
  std::string Words;     // with the objector's name in front
  std::string Veto;      // why it cannot be challenged; empty when the player may insist
  bool IsFinal = false;  // fails without a question
};

/// Why a finished Segment could not have come out of the wizard, a sentence each: who may not stand
/// where he stands, codes that its lists would not offer, what its checks would say. Refusals that
/// the player may override are not among them.
std::vector<std::string> WhyNotBookable(const World& world, const Segment& segment,
                                        const BookingView& view);
/// Every refusal that the wizard would bring before it lets the Segment pass, in its order.
std::vector<Refusal> RefusalsOf(const World& world, const Segment& segment);
/// What insisting costs the morale of those who objected. Runs once, when a booking is completed.
void ApplyBookingGrievances(World& world, const Segment& segment);

/// Why a finished interview or angle could not have come out of the wizard, a sentence each; empty
/// for one that could. Any bytes will do: unknown styles and people are told like the rest.
std::vector<std::string> WhyNotTalk(const World& world, const Segment& segment,
                                    const BookingView& view);

}  // namespace grapplemont
