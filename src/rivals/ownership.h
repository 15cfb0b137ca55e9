#pragma once

#include <string>

#include "records/world.h"

// Who owns a promotion.

namespace grapplemont {

/// "XWF owner Ruth Vane", or "The XWF board" where nobody owns it.
std::string WhoDecides(const World& world, const Promotion& promotion);
/// A rival's product becomes as risky as its new owner's style has it; as it was under a style that
/// nobody knows.
void FollowOwner(Promotion& rival, const Staff& owner);
/// What a new boss writes to the player.
std::string OwnersWelcome(const World& world, const Staff& owner);

}  // namespace grapplemont
