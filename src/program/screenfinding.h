#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Lets the desk find whatever has a name in the open world, and the terms of the glossary.
void ConnectFinding(Game& game);

}  // namespace grapplemont
