#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <span>
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

enum class Verb {
  Show,
  Click,
  Type,
  Pick,
  Also,
  Open,
  Check,
  Slide,
  Follow,
  Find,
  Visit,
  Explain,
  Share,
  Undo,
  Redo,
  Ok,
  Yes,
  No,
  Enter,
  Cancel,
  Help,
  Quit
};

/// What stands behind a verb.
enum class Arguments { None, MaybeName, Caption, NameAndText, NameAndMaybeText, Text, MaybeText };

struct VerbRow {
  Verb Is;
  Arguments Takes;
  std::string_view Word;
  std::string_view Form;  // how a line of it reads
  std::string_view Does;
};
/// In the order of Verb.
std::span<const VerbRow> Verbs();
inline const VerbRow& RowOf(Verb verb) {
  return Verbs()[static_cast<std::size_t>(verb)];
}

struct Command {
  Verb Is = Verb::Show;
  std::string Name;  // of a control, or to click it what it says
  std::string Text;  // as it was typed, with its blanks
};

/// Reads a line; an empty one shows. Nothing when it is not a command; then `why` says so in a
/// sentence.
std::optional<Command> ReadCommand(std::string_view line, std::string& why);

/// All commands, a line each.
std::string HelpText();

}  // namespace grapplemont::console
