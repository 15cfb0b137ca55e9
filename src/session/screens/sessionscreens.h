#pragma once

#include "ui/game.h"

namespace grapplemont {

/// The slot that a new game goes into: opened with what the player chose (all but the slot's name).
struct NewGameChoice;
std::unique_ptr<ui::Screen> MakefrmPickSaveSlot(Game& game, NewGameChoice choice);

}  // namespace grapplemont
