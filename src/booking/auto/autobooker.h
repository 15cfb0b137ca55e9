#pragma once

#include <string>
#include <vector>

#include "booking/wizard/roster.h"

namespace grapplemont {

/// A card that the auto booker proposes.
struct AutoCard {
  std::vector<Segment> Rows;         // a record of match.dat each, in order
  std::vector<std::string> Missing;  // what the roster could not fill; empty for a full card
};

/// Books what is still empty of the sheet in match.dat, within its open rows (`openRows` of them);
/// what is booked stays. Draws from World::RandomDraw.
AutoCard AutoBook(World& world, bool isEvent, int openRows);

}  // namespace grapplemont
