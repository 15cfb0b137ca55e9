#pragma once

#include "business/appointments.h"
#include "ui/game.h"

namespace grapplemont {

/// Makes the screens of the promotion itself known to the desk by their names.
void RegisterFedScreens(Game& game);

std::unique_ptr<ui::Screen> MakefrmFed(Game& game);
std::unique_ptr<ui::Screen> MakefrmFedValue(Game& game);
/// Who is to hold an office of the player's promotion.
std::unique_ptr<ui::Screen> MakefrmFedPick(Game& game, Office office);

}  // namespace grapplemont
