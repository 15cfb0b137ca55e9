#include "console/lines.h"

#include <algorithm>

#include "records/fields/charset.h"

namespace grapplemont::console {

std::optional<Line> ReadLine(std::istream& in) {
  using Traits = std::istream::traits_type;
  Line line;
  bool some = false;
  std::streambuf& from = *in.rdbuf();
  for (;;) {
    const auto next = from.sbumpc();
    if (Traits::eq_int_type(next, Traits::eof())) {
      in.setstate(std::ios::eofbit);
      if (!some) return std::nullopt;
      break;
    }
    some = true;
    const char byte = Traits::to_char_type(next);
    if (byte == '\n') break;
    if (line.Bytes.size() < kLongestLine)
      line.Bytes += byte;
    else
      line.TooLong = true;
  }
  if (!line.Bytes.empty() && line.Bytes.back() == '\r') line.Bytes.pop_back();
  return line;
}

std::optional<std::string> Letters(const Line& line, std::string& why) {
  const auto isControl = [](char letter) {
    const auto byte = static_cast<unsigned char>(letter);
    return (byte < 0x20 && letter != '\t') || byte == 0x7F;
  };
  if (line.TooLong) {
    why = "The line is longer than " + std::to_string(kLongestLine) + " bytes.";
  } else if (line.Bytes.find('\0') != std::string::npos) {
    why = "The line holds a NUL byte.";
  } else if (std::any_of(line.Bytes.begin(), line.Bytes.end(), isControl)) {
    why = "The line holds a control character.";
  } else if (auto letters = FromUtf8(line.Bytes)) {
    return letters;
  } else if (const std::string foreign = FirstForeignLetter(line.Bytes); foreign == "?") {
    why = "The line is not UTF-8.";
  } else {
    why = "The game writes Western European letters only; \"" + foreign + "\" is none of them.";
  }
  return std::nullopt;
}

}  // namespace grapplemont::console
