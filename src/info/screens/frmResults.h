#pragma once

#include "ui/game.h"

namespace grapplemont {

/// The report column; with a day it begins with the promotion's show of that day.
std::unique_ptr<ui::Screen> MakefrmReports(Game& game, Day on, int promotionUid);

}  // namespace grapplemont
