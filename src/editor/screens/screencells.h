#pragma once

#include "editor/screens/screenpages.h"

namespace grapplemont {

/// What a table shows of a field: words for codes, names for references, dollars for money.
ui::Cell CellOf(const World& world, const PageColumn& column, const FieldPlace& place,
                const std::byte* record);

}  // namespace grapplemont
