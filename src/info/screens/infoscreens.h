#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Gives the game its way to the report of a show.
void ConnectInfo(Game& game);

}  // namespace grapplemont
