#pragma once

#include "ui/game.h"

namespace grapplemont {

/// The editor of the default data: its hub and a screen for every kind of record.
void RegisterEditorScreens(Game& game);

}  // namespace grapplemont
