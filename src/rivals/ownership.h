#pragma once

#include <string>

#include "records/world.h"

// Who owns a promotion.

namespace grapplemont {

/// "XWF owner Ruth Vane", or "The XWF board " where nobody owns it.
std::string WhoDecides(const World& world, const Promotion& promotion);
/// What a new boss writes to the player.
std::string OwnersWelcome(const World& world, const Staff& owner);

}  // namespace grapplemont
