#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the editor's screen for every kind of record known to the desk.
void RegisterRecordPages(Game& game);

}  // namespace grapplemont
