#pragma once

#include <vector>

#include "records/world.h"
#include "ui/controls.h"

// The one table of workers: the same columns wherever workers are listed.

namespace grapplemont {

/// Whose list it is: the player's own people have a split and no employer to be told.
enum class WorkerList { Roster, Market };

std::vector<ui::Column> WorkerColumns(WorkerList list);
ui::ListBox::Row WorkerRow(const World& world, const Worker& worker, WorkerList list);

}  // namespace grapplemont
