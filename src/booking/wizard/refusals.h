#pragma once

#include <string>
#include <vector>

#include "booking/wizard/matchrules.h"

namespace grapplemont {

/// An objection of somebody in the ring.
struct Refusal {
  std::string Words;     // with the objector's name in front
  std::string Veto;      // why it cannot be challenged; empty when the player may insist
  bool IsFinal = false;  // fails without a question
};

/// What the people in the ring say to one step of a match with what the Segment holds, in the order
/// in which they say it. Steps after it are not looked at.
std::vector<Refusal> RefusalsAt(const World& world, const Segment& match, MatchStep step);
/// Every refusal that the wizard would bring before it lets the Segment pass, in its order.
std::vector<Refusal> RefusalsOf(const World& world, const Segment& segment);

}  // namespace grapplemont
