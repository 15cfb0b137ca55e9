#pragma once

#include "ui/game.h"

namespace grapplemont {

/// The editor's screens about whole files: the clean-up, merging new records, importing workers,
/// and the data as tables.
void RegisterEditorFileScreens(Game& game);

std::unique_ptr<ui::Screen> MakefrmEditMaintain(Game& game);
std::unique_ptr<ui::Screen> MakefrmEditMerge(Game& game);
std::unique_ptr<ui::Screen> MakefrmEditImport(Game& game);
std::unique_ptr<ui::Screen> MakefrmEditTables(Game& game);

}  // namespace grapplemont
