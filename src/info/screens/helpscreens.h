#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Gives the desk its help: a page for every screen, the glossary, a line for every heading.
void ConnectHelp(Game& game);

/// Whether words/help.txt has an entry for a screen of this name.
bool HasHelp(std::string_view screen);

}  // namespace grapplemont
