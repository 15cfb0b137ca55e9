#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace grapplemont {

/// Names in a line, without their braces, and the words that go there.
using LineWords = std::vector<std::pair<std::string_view, std::string>>;

/// The line with the words in place of {their names}; a name without words stays. A count may choose
/// between two forms (ReadCounted). The first letter of all is a capital.
std::string FillLine(std::string_view line, const LineWords& words);

/// "the CWA Crown"; a name that brings its article along keeps one.
std::string WithArticle(std::string_view name);

}  // namespace grapplemont
