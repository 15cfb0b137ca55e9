#pragma once

#include <memory>

#include "records/whatif.h"
#include "ui/game.h"

namespace grapplemont {

/// Plays both answers and shows what becomes of them.
std::unique_ptr<ui::Screen> MakefrmWhatIf(Game& game, WhatIf asked);
/// Gives the game its way to ask.
void ConnectFutures(Game& game);

}  // namespace grapplemont
