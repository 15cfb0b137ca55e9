#pragma once

#include "ui/game.h"

namespace grapplemont {

/// The numbers of one feud, by its slot from 1. Requires a slot that is taken.
std::unique_ptr<ui::Screen> MakefrmFeudStat(Game& game, int slot);

/// Every reign of a Title; the first in the list where none is named.
std::unique_ptr<ui::Screen> MakefrmReigns(Game& game, std::string_view title, int owner);

/// Asks, and on Yes ends the feud off camera. True when it has ended.
bool EndFeudAfterAsking(Game& game, int slot);

}  // namespace grapplemont
