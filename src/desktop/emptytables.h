#pragma once

#include <QBoxLayout>
#include <vector>

namespace grapplemont::desktop {

/// Takes the share of the room left over from parts of a column that hold nothing but empty tables,
/// while another part has use for it. `shares` keeps what the parts were given when it is first
/// called, and they get it back with their first row.
void LetEmptyTablesYield(QBoxLayout& column, std::vector<int>& shares);

}  // namespace grapplemont::desktop
