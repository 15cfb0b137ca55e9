#pragma once

#include <string>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// What the fans complain of after the player's last show: what of the card has been the same three
/// times in a row, and not four times, a sentence each. Empty where that show was not the day
/// before.
std::vector<std::string> ComplaintsOf(const World& world);

/// A mail for each complaint.
void FanMail(World& world);

}  // namespace grapplemont
