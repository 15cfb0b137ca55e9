#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Gives the game its way to end a day and to bring the main screen up to date.
void ConnectCalendar(Game& game);

}  // namespace grapplemont
