#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace grapplemont::console {

/// The longest line that is taken, in bytes; the rest of a longer one is skipped.
inline constexpr std::size_t kLongestLine = std::size_t{1} << 21;

struct Line {
  std::string Bytes;  // without its end, LF or CRLF
  bool TooLong = false;
};

/// The next line; a last one may lack its end. Nothing at the end of input.
std::optional<Line> ReadLine(std::istream& in);

/// The line in the program's letters. Nothing when it cannot be taken; then `why` says so in a
/// sentence of UTF-8.
std::optional<std::string> Letters(const Line& line, std::string& why);

}  // namespace grapplemont::console
