#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the report and the recap of a show known to the desk by their names.
void RegisterShowScreens(Game& game);

/// The show under way, told Segment by Segment. Requires one.
std::unique_ptr<ui::Screen> MakefrmMatchOutput(Game& game);
/// The recap of the show that has just closed. Requires one.
std::unique_ptr<ui::Screen> MakefrmPostShow(Game& game);

}  // namespace grapplemont
