#pragma once

#include <iosfwd>
#include <map>
#include <optional>
#include <ostream>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "records/fields/fields.h"
#include "records/fields/outside.h"
#include "records/world.h"

namespace grapplemont::tools {

/// Where the tool speaks and what it knows of the machine.
struct Shell {
  std::ostream& Out;
  std::ostream& Errors;
  bool Terminal = false;  // somebody watches: progress is worth telling
  Clock Today = MachineToday;
};

/// The tool for worlds behind its arguments (without the program's name): 0 when all went well, 1
/// for faults and failures, each reported in a line, 2 for arguments that make no sense.
int RunWorldTool(std::span<const std::string> arguments, Shell shell);

/// Arguments that make no sense; says why in a sentence.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// One option of a command; without a value's name it is a switch.
struct OptionKind {
  std::string_view Name;   // "--slot"
  std::string_view Value;  // "N"
  bool Needed = false;
};

/// What a command was given.
class Arguments {
 public:
  /// Throws UsageError for an option that is unknown, doubled, without its value or missing, and
  /// for a wrong count of places.
  Arguments(std::span<const std::string> words, std::span<const OptionKind> options,
            std::size_t places);

  const std::string& Place(std::size_t index) const { return places_.at(index); }
  bool Has(std::string_view name) const;
  std::optional<std::string> Text(std::string_view name) const;
  /// Throws UsageError for what is not a whole number of the range.
  std::optional<std::uint64_t> Number(std::string_view name, std::uint64_t least,
                                      std::uint64_t most) const;
  std::optional<Day> Date(std::string_view name) const;

 private:
  std::vector<std::string> places_;
  std::map<std::string, std::string, std::less<>> options_;
};

std::string WithoutSlashes(std::string folder);  // behind it
/// The folder's name without slashes behind it, for files that lie beside it. Throws for what is no
/// folder.
std::string FolderName(Disk& disk, const std::string& folder);

/// The world of a folder: default data, or a saved game with all that its journal holds. Remarks on
/// what was left aside go to `remarks`. Throws for a folder without any file of a world.
World ReadWorld(Disk& disk, const std::string& folder, std::ostream& remarks);

/// Writes a world to a folder, made if it is not there: a game as a slot of its own; default data
/// file by file, once all of it is written beside. Other files in it stay. Throws for a folder that
/// holds a saved game when the world is none.
void WriteWorld(Disk& disk, const std::string& folder, const World& world);

}  // namespace grapplemont::tools
