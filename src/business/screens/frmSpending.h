#pragma once

#include "ui/game.h"

namespace grapplemont {

// What several screens of the office share.

/// Dollars, sorted by their number.
ui::Cell MoneyCell(long long dollars, ui::Tone tone = ui::Tone::Plain);

/// frmFedMerch under its two titles.
void OpenAdvertising(Game& game);
void OpenMerchandising(Game& game);

}  // namespace grapplemont
