#pragma once

#include <vector>

#include "records/world.h"
#include "ui/controls.h"

// The one table of workers and the one of staff: the same columns wherever they are listed.

namespace grapplemont {

/// Whose list it is: only the market's has employers to show.
enum class PeopleList { Own, Market };

/// The heading above employers.
inline constexpr const char* kWorksFor = "Works for";

std::vector<ui::Column> WorkerColumns(PeopleList list);
/// How workers stand in these columns, by their uids. Holds on to the world.
ui::ListBox::CellMaker WorkerCells(const World& world, PeopleList list);
std::vector<ui::Column> StaffColumns(PeopleList list);
ui::ListBox::Row StaffRow(const World& world, const Staff& staff, PeopleList list);

}  // namespace grapplemont
