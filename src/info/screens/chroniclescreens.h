#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the screens of what has been known to the desk: frmResults, frmReports, frmAwards.
void RegisterChronicleScreens(Game& game);

std::unique_ptr<ui::Screen> MakefrmResults(Game& game);
/// The report column; with a day it begins with the promotion's show of that day.
std::unique_ptr<ui::Screen> MakefrmReports(Game& game, Day on = kDayZero, int promotionUid = 0);
std::unique_ptr<ui::Screen> MakefrmAwards(Game& game);

}  // namespace grapplemont
