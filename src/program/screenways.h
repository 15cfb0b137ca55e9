#pragma once

#include <string_view>
#include <vector>

#include "ui/game.h"

// The ways to screens from wherever a player searches.

namespace grapplemont {

/// False, after a word, where no room can be entered now.
bool Enters(ui::Desk& desk);
/// Gives the room's screen, on top; nullptr, after a word, where it cannot be entered now.
ui::Screen* Enter(ui::Desk& desk, const char* screen);

/// Adds the pages that stand in no side bar, by their titles and by what else people call them. One
/// that cannot be opened now says why.
void AddPages(Game& game, std::string_view typed, std::size_t most,
              std::vector<ui::Finding>& findings);

}  // namespace grapplemont
