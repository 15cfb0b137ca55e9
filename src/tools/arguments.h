#pragma once

#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "records/fields/fields.h"

namespace grapplemont::tools {

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
  /// Throws UsageError for what is no whole number of the range.
  std::optional<std::uint64_t> Number(std::string_view name, std::uint64_t least,
                                      std::uint64_t most) const;
  std::optional<Day> Date(std::string_view name) const;

 private:
  std::vector<std::string> places_;
  std::map<std::string, std::string, std::less<>> options_;
};

}  // namespace grapplemont::tools
