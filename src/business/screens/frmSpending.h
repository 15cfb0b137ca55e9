#pragma once

#include "ui/game.h"

namespace grapplemont {

/// frmFedMerch under its two titles.
void OpenAdvertising(Game& game);
void OpenMerchandising(Game& game);

}  // namespace grapplemont
