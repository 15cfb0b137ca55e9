#include "console/options.h"

#include <charconv>

#include "records/fields/fields.h"

namespace grapplemont::console {

namespace {

std::optional<std::uint64_t> WholeNumber(const std::string& text) {
  std::uint64_t number = 0;
  const char* const last = text.data() + text.size();
  const auto [end, fault] = std::from_chars(text.data(), last, number);
  return fault == std::errc() && end == last ? std::optional(number) : std::nullopt;
}

/// Takes one option's value; empty, or what is wrong with it.
std::string Take(Options& options, const std::string& name, const std::string& value) {
  if (name == "--home") {
    options.Home = value;
    if (value.empty()) return "--home needs a folder.";
  } else if (name == "--today") {
    options.Today = ParseIsoDate(value);
    if (!options.Today) return "--today needs a date such as 2026-03-01, not \"" + value + "\".";
  } else {
    options.Seed = WholeNumber(value);
    if (!options.Seed) return "--seed needs a whole number from 0 up, not \"" + value + "\".";
  }
  return {};
}

}  // namespace

std::optional<Options> ReadOptions(std::span<const std::string> arguments, std::string& why) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    if (name == "--json") {
      options.Json = true;
    } else if (name == "--help") {
      options.Help = true;
    } else if (name != "--home" && name != "--today" && name != "--seed") {
      why = "There is no option \"" + name + "\".";
      return std::nullopt;
    } else if (++i == arguments.size()) {
      why = name + " needs a value.";
      return std::nullopt;
    } else if (why = Take(options, name, arguments[i]); !why.empty()) {
      return std::nullopt;
    }
  }
  return options;
}

}  // namespace grapplemont::console
