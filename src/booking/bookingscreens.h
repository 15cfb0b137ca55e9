#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the booking sheets known to the desk by their names.
void RegisterBookingScreens(Game& game);

}  // namespace grapplemont
