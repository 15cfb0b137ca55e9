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
/// Nothing when the text is not UTF-8 or has a letter that Windows-1252 lacks.
std::optional<std::string> FromUtf8(std::string_view utf8);
/// The first letter that FromUtf8 cannot take, in UTF-8; empty when it takes all.
std::string FirstForeignLetter(std::string_view utf8);

// Names of files and cells of tables hold any bytes. What is not UTF-8 there was most likely
// written in Windows-1252.

/// A text from outside for a screen: a question mark for every letter that the program lacks and
/// for control codes.
std::string ForScreen(std::string_view bytes);
/// A text from outside as UTF-8, whatever bytes it holds; what is UTF-8 stays as it is.
std::string ValidUtf8(std::string_view bytes);

/// The control codes, with the five that Windows-1252 leaves open among its letters.
bool IsControl(char letter);

}  // namespace grapplemont
