#pragma once

#include "ui/game.h"

// The talks: each opens its screen for one person. Whoever has left the world or changed sides
// since the list was drawn is told so instead.

namespace grapplemont {

/// frmWresContract, for a worker of the player's.
void OpenWresContract(Game& game, int workerUid);
/// frmOtherContract, for a worker of anybody else or of nobody.
void OpenOtherContract(Game& game, int workerUid);

}  // namespace grapplemont
