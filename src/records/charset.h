#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace grapplemont {

// The program's texts are Windows-1252, a byte a letter, as the records hold them. Shells and table
// files speak UTF-8.

/// Every byte has a letter; the five that Windows-1252 leaves open become the control codes of the
/// same number.
std::string ToUtf8(std::string_view text);
/// Nothing when the text is no UTF-8 or has a letter that Windows-1252 lacks.
std::optional<std::string> FromUtf8(std::string_view utf8);
/// The first letter that FromUtf8 cannot take, in UTF-8; empty when it takes all.
std::string FirstForeignLetter(std::string_view utf8);

}  // namespace grapplemont
