#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the booking sheets and the screens at their side known to the desk by their names.
void RegisterBookingScreens(Game& game);

/// The wizard that fills this record of match.dat.
std::unique_ptr<ui::Screen> MakefrmBookSheet(Game& game, int slot, bool isEvent);
/// The same on the desk, with its first step open over it.
void OpenWizardAtOnce(Game& game, int slot, bool isEvent);

}  // namespace grapplemont
