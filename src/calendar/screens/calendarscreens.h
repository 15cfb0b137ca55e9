#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Gives the game its way to end a day and to bring the main screen up to date.
void ConnectCalendar(Game& game);

/// Leaves a line on the main screen, until the day ends, of what was decided backstage.
void NoteOnMainScreen(Game& game, const std::string& line);

}  // namespace grapplemont
