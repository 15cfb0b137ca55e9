#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the main screen, the incidents and the Events known to the desk, and gives the game its
/// way to end a day.
void RegisterCalendarScreens(Game& game);

std::unique_ptr<ui::Screen> MakefrmIncident(Game& game);
std::unique_ptr<ui::Screen> MakefrmEvent(Game& game);

}  // namespace grapplemont
