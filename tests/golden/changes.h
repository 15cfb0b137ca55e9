#pragma once

#include <string>
#include <vector>

#include "records/tables/differences.h"

namespace grapplemont::test {

/// Changes as a table: a line for each record, its file, number, name and a cell "Field=Value" for
/// each field. What a month has changed is committed like this.
std::string ChangesText(const std::vector<Difference>& changes);

/// What is not the same as in the committed text, a line for each field.
std::vector<std::string> Moved(const std::vector<Difference>& changes,
                               const std::string& committed);

/// The lines of a text that are not the same as the committed ones, from the first one on.
std::vector<std::string> MovedLines(const std::string& text, const std::string& committed);

/// The first of the lines, and how many more there are.
std::string Listing(const std::vector<std::string>& lines);

}  // namespace grapplemont::test
