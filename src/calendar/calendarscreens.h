#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the main screen known to the desk, and gives the game its way to end a day.
void RegisterCalendarScreens(Game& game);

}  // namespace grapplemont
