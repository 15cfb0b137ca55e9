#pragma once

#include "editor/datafolder.h"
#include "ui/game.h"

namespace grapplemont {

/// The default data that this program edits, opened by the first screen that asks for them: from
/// then on every event of the desk is a commit of them. Throws as DataFolder's constructor.
DataFolder& EditedData(Game& game);
/// The folder is let go; screens of the editor must be closed by then.
void StopEditing(Game& game);

}  // namespace grapplemont
