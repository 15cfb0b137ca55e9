#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes every screen of every room known to the game's desk.
void RegisterScreens(Game& game);

}  // namespace grapplemont
