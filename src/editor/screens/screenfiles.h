#pragma once

#include <string>
#include <vector>

#include "editor/datafolder.h"
#include "editor/merge.h"
#include "records/checks/checkworld.h"
#include "records/world.h"
#include "ui/controls.h"
#include "ui/game.h"

// How faults and arrivals stand in the tables of the editor.

namespace grapplemont {

/// A damaged file may have faults without end; a table shows no more than this.
inline constexpr std::size_t kMostRows = FaultList::kMost;

std::vector<ui::Column> FaultColumns(std::string what);
/// The first kMostRows of them.
void FillFaults(ui::ListBox& list, const std::vector<Fault>& faults);
/// ", of which the first 1000 are shown" where a table shows less than all.
std::string ShownOf(std::size_t count);

/// "Added" in green, "New uid" in amber, "Left out" in red.
ui::Cell FateCell(Fate fate);
/// "11 records come in, 3 of them under another uid; 2 stay out."
std::string Tally(const Arrivals& arrivals);

/// The default data that this program edits, opened by the first screen that asks for them: from
/// then on every event of the desk is a commit of them. Throws as DataFolder's constructor.
DataFolder& EditedData(Game& game);
/// The folder is let go; screens of the editor must be closed by then.
void StopEditing(Game& game);

}  // namespace grapplemont
