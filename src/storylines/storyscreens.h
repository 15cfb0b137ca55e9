#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the screens of feuds known to the desk by their names.
void RegisterStoryScreens(Game& game);

std::unique_ptr<ui::Screen> MakefrmFeuds(Game& game);
std::unique_ptr<ui::Screen> MakefrmFeudStart(Game& game);
/// The numbers of one feud, by its slot from 1. Requires a slot that is taken.
std::unique_ptr<ui::Screen> MakefrmFeudStat(Game& game, int slot);

/// Asks, and on Yes ends the feud off camera. True when it has ended.
bool EndFeudAfterAsking(Game& game, int slot);

}  // namespace grapplemont
