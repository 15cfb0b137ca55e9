#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "records/world.h"
#include "ui/controls.h"

// How people stand in tables.

namespace grapplemont {

/// "Face" in blue, "Heel" in red, "Tweener" in grey.
ui::Cell DispositionCell(const Worker& worker);
/// Nothing for somebody who is fit, else why he is not, in red.
ui::Cell StatusCell(const Worker& worker);

/// Name, disposition and Over, and the row that shows them.
std::vector<ui::Column> ShortColumns();
std::vector<ui::Cell> ShortRow(const Worker& worker);
/// Fills a table of ShortColumns; what is selected stays so.
void FillShort(ui::ListBox& list, const std::vector<const Worker*>& people);

/// Enables a control or tells on it why it is of no use.
void EnableUnless(ui::Control& control, const std::string& why);
using Controls = std::initializer_list<std::reference_wrapper<ui::Control>>;
void EnableUnless(Controls controls, const std::string& why);

// How Titles stand in tables.

/// Name, kind, holder, since when, image, and whether it can be fought for.
std::vector<ui::Column> TitleColumns();
/// Its key is the record's number.
ui::ListBox::Row TitleRow(const World& world, const Title& title);

/// Who held a Title, from when to when.
std::vector<ui::Column> ReignColumns();
/// The lines that are used, the present one first.
std::vector<ui::ListBox::Row> ReignRows(const Title& title);

}  // namespace grapplemont
