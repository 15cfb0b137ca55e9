#pragma once

#include <string>
#include <vector>

#include "editor/datafolder.h"
#include "ui/controls.h"
#include "ui/game.h"

// How faults stand in the tables of the editor, and how records are counted.

namespace grapplemont {

std::vector<ui::Column> FaultColumns(std::string what);
/// The first of them: a damaged file may have faults without end.
void FillFaults(ui::ListBox& list, const std::vector<Fault>& faults);
/// ", of which the first 1,000 are shown" where a table shows less than all.
std::string ShownOf(std::size_t count);

/// The default data that this program edits, opened by the first screen that asks for them: from
/// then on every event of the desk is a commit of them. Throws as DataFolder's constructor.
DataFolder& EditedData(Game& game);
/// The folder is let go; screens of the editor must be closed by then.
void StopEditing(Game& game);

}  // namespace grapplemont
