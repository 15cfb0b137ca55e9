#pragma once

#include <string>
#include <string_view>

#include "records/tables/tablekinds.h"

// One field of a record as the cell of a table, in UTF-8. What leads to another record by its
// number is described in tablenames.h.

namespace grapplemont {

/// What a table says for a field that may hold nobody or no end.
inline constexpr std::string_view kNoneCell = "none";

/// The cell from which TakeCell makes the very same bytes again.
std::string CellOf(const TableKind& kind, const Column& column, const std::byte* record);

/// Puts what the cell says into the record; an empty one takes the default. Gives what is wrong
/// with it, or nothing.
std::string TakeCell(const TableKind& kind, const Column& column, std::string_view cell,
                     std::byte* record);

/// The cell for a message: on one line, and cut when it is long.
std::string ShortCell(std::string_view cell);
/// The same in quotation marks.
std::string QuotedCell(std::string_view cell);

}  // namespace grapplemont
