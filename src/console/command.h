#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace grapplemont::console {

enum class Verb {
  Show,
  Click,
  Type,
  Pick,
  Open,
  Check,
  Slide,
  Follow,
  Ok,
  Yes,
  No,
  Enter,
  Cancel,
  Help,
  Quit
};

/// What stands behind a verb.
enum class Arguments { None, MaybeName, Name, NameAndText, NameAndMaybeText, Text, MaybeText };

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
  std::string Name;
  std::string Text;  // as it was typed, with its blanks
};

/// Reads a line; an empty one shows. Nothing when it is no command; then `why` says so in a
/// sentence.
std::optional<Command> ReadCommand(std::string_view line, std::string& why);

/// All commands, a line each.
std::string HelpText();

}  // namespace grapplemont::console
