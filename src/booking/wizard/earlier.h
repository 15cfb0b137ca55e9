#pragma once

#include "booking/wizard/wizard.h"

// Going back to a step without losing the later ones, and doing a booked row again.

namespace grapplemont {

/// A wizard in which every step of a booked row is done.
Wizard EditBooking(const Segment& booked, int slot, bool isEvent);

/// Takes back every step from this one on and remembers what they held. Does nothing for a step
/// that has not been done.
void JumpTo(Wizard& wizard, int step);

/// Does the steps that come next as they were done earlier, up to the first that does not hold any
/// more, or to which somebody objects who did not before.
void KeepWhatHolds(const World& world, Wizard& wizard);

}  // namespace grapplemont
