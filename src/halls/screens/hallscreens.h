#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Gives the game its way to the family tree of a Title.
void ConnectHalls(Game& game);

}  // namespace grapplemont
