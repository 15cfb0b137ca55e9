#pragma once

#include <string>

#include "ui/game.h"

namespace grapplemont {

/// Makes every screen of every room known to the game's desk.
void RegisterScreens(Game& game);

/// The folder that holds data/, gfx/ and the slots: the working directory if it has data/, else the
/// user's data folder, filled from the installed files the first time.
std::string FindHome(Disk& disk);

}  // namespace grapplemont
