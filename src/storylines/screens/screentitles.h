#pragma once

#include <vector>

#include "records/world.h"
#include "ui/controls.h"

// How Titles stand in tables.

namespace grapplemont {

/// Name, kind, holder, since when, image, and whether it can be fought for.
std::vector<ui::Column> TitleColumns();
/// Its key is the record's number.
ui::ListBox::Row TitleRow(const World& world, const Title& title);

/// Who held a Title, from when to when.
std::vector<ui::Column> ReignColumns();
/// The lines that are used, the present one first.
std::vector<ui::ListBox::Row> ReignRows(const Title& title);

}  // namespace grapplemont
