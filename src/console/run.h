#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>

#include "console/console.h"
#include "records/fields/fields.h"

namespace grapplemont::console {

inline constexpr const char* kUsage =
    "usage: grapplemont-console [--home DIR] [--today YYYY-MM-DD] [--seed N] [--json]\n"
    "\n"
    "Serves the screens of Grapplemont to a terminal or a script: a command a line on\n"
    "standard input, an answer on standard output. The command \"help\" lists them.\n"
    "\n"
    "  --home DIR          the folder with data/, gfx/ and the slots\n"
    "  --today YYYY-MM-DD  the present date, in place of the machine's\n"
    "  --seed N            chance from this number, 0 and up, in place of the machine's\n"
    "  --json              each answer is one JSON object on one line\n";

struct Options {
  std::optional<std::string> Home;
  std::optional<Day> Today;
  std::optional<std::uint64_t> Seed;
  bool Json = false;
  bool Help = false;
};

/// Reads the arguments behind the program's name. Nothing when they are wrong; then `why` says so
/// in a sentence.
std::optional<Options> ReadOptions(std::span<const std::string> arguments, std::string& why);

struct Streams {
  std::istream& In;
  std::ostream& Out;
  std::ostream& Errors;
};

/// The whole program behind its arguments: 0 after a game, 1 when it could not start or go on, 2
/// for arguments that make no sense. `settings` tells of the terminal.
int RunConsole(std::span<const std::string> arguments, Streams streams, Settings settings);

}  // namespace grapplemont::console
