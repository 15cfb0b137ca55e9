#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "records/fields/fields.h"

// What a program is told when it is started. Each has a table of its options; what it takes, what
// it refuses and what its help says are read from there.

namespace grapplemont {

/// Arguments that make no sense; says why in a sentence.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// One option; without a value's name it is a switch.
struct OptionKind {
  std::string_view Name;   // "--slot"
  std::string_view Value;  // "N"
  bool Needed = false;
  std::string_view Help = {};  // what it does; where a program has a line for each option
};

/// What all programs know.
inline constexpr OptionKind kHomeOption{
    "--home", "FOLDER", false, "the folder with your games, and with data and gfx of your own"};

/// What a program or a command was given.
class Arguments {
 public:
  /// A value stands behind its option, or after "=". Throws UsageError for an option that is
  /// unknown, doubled, without its value or missing, and for a wrong count of places (words that
  /// are no options).
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
  std::size_t Take(std::span<const std::string> words, std::span<const OptionKind> options);

  std::vector<std::string> places_;
  std::map<std::string, std::string, std::less<>> options_;
};

/// What the words ask about the program itself: such a question is answered and nothing else done.
enum class Asked { Nothing, Help, Version };
Asked AskedIn(std::span<const std::string> words);

/// "grapplemont-world 1.0.0" and a line's end.
std::string VersionLine(std::string_view program);
/// "new --slot N [--seed S]": how a line with these places and options reads.
std::string UsageOf(std::string_view name, std::string_view places,
                    std::span<const OptionKind> options);
/// The options that have a help, a line each, then those that ask about the program.
std::string OptionLines(std::span<const OptionKind> options);

}  // namespace grapplemont
