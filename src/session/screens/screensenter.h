#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Opens the slot's game on the main screen in place of all start-up screens. A damaged journal is
/// asked about. Throws what Game::OpenSlot throws; then no game is open.
void EnterSlot(Game& game, int slot);

}  // namespace grapplemont
