#pragma once

#include <string>

// Pages of docs/ that are made from the field lists, so that they are always right.

namespace grapplemont::tools {

/// docs/file-formats.md: every record file, field by field.
std::string FormatsPage();

/// The part of docs/world-making.md that tells every table, column by column.
std::string ColumnsPage();

}  // namespace grapplemont::tools
