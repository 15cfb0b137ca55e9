#pragma once

#include "business/appointments.h"
#include "ui/game.h"

namespace grapplemont {

/// Who is to hold an office of the player's promotion.
std::unique_ptr<ui::Screen> MakefrmFedPick(Game& game, Office office);

}  // namespace grapplemont
