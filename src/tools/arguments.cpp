#include "tools/arguments.h"

#include <algorithm>
#include <charconv>

#include "records/fields/fields.h"
#include "records/fields/wording.h"

namespace grapplemont::tools {

namespace {

std::string Quoted(std::string_view text) {
  return '"' + std::string(text) + '"';
}

const OptionKind& FindOption(std::span<const OptionKind> options, const std::string& name) {
  const auto found = std::find_if(options.begin(), options.end(),
                                  [&](const OptionKind& option) { return option.Name == name; });
  if (found != options.end()) return *found;
  std::vector<std::string_view> names;
  for (const OptionKind& option : options) names.push_back(option.Name);
  throw UsageError("there is no option " + Quoted(name) + DidYouMean(name, names));
}

}  // namespace

Arguments::Arguments(std::span<const std::string> words, std::span<const OptionKind> options,
                     std::size_t places) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (!words[i].starts_with("--")) {
      places_.push_back(words[i]);
      continue;
    }
    const OptionKind& option = FindOption(options, words[i]);
    const bool takesValue = !option.Value.empty();
    if (takesValue && i + 1 == words.size())
      throw UsageError(words[i] + " needs a value, " + std::string(option.Value));
    if (!options_.emplace(words[i], takesValue ? words[i + 1] : "").second)
      throw UsageError(words[i] + " stands there twice");
    if (takesValue) ++i;
  }
  if (places_.size() > places) throw UsageError(Quoted(places_[places]) + " is one word too many");
  if (places_.size() < places) throw UsageError("something is missing");
  for (const OptionKind& option : options)
    if (option.Needed && !Has(option.Name))
      throw UsageError(std::string(option.Name) + " is missing");
}

bool Arguments::Has(std::string_view name) const {
  return options_.contains(name);
}

std::optional<std::string> Arguments::Text(std::string_view name) const {
  const auto found = options_.find(name);
  return found == options_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::uint64_t> Arguments::Number(std::string_view name, std::uint64_t least,
                                               std::uint64_t most) const {
  const auto text = Text(name);
  if (!text) return std::nullopt;
  std::uint64_t number = 0;
  const char* const last = text->data() + text->size();
  const auto [end, fault] = std::from_chars(text->data(), last, number);
  if (fault == std::errc() && end == last && number >= least && number <= most) return number;
  throw UsageError(std::string(name) + " needs a whole number from " + std::to_string(least) +
                   " to " + std::to_string(most) + ", not " + Quoted(*text));
}

std::optional<Day> Arguments::Date(std::string_view name) const {
  const auto text = Text(name);
  if (!text) return std::nullopt;
  if (const auto day = ParseIsoDate(*text)) return day;
  throw UsageError(std::string(name) + " needs a date such as 2026-03-01, not " + Quoted(*text));
}

}  // namespace grapplemont::tools
