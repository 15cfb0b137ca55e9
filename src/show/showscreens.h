#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the report and the recap of a show known to the desk. Both show the show under way.
void RegisterShowScreens(Game& game);

}  // namespace grapplemont
