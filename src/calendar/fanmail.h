#pragma once

#include <string>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// What the fans complain of after the player's show of that day: what of the card has been the
/// same three times in a row, and not four times, a sentence each. Empty for a day without a show.
std::vector<std::string> ComplaintsAfter(const World& world, Day show);

/// A mail for each complaint about the show of the day before.
void FanMail(World& world);

}  // namespace grapplemont
