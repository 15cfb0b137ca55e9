#pragma once

#include <memory>
#include <vector>

#include "ui/game.h"

namespace grapplemont {

/// With these people chosen, by uid: up to two are the sides, more are teams of two, side by side.
std::unique_ptr<ui::Screen> MakefrmFeudStart(Game& game, std::vector<int> people);

}  // namespace grapplemont
