#include "session/arguments.h"

#include <algorithm>
#include <charconv>

#include "records/fields/outside.h"
#include "records/fields/wording.h"
#include "session/build.h"

namespace grapplemont {

namespace {

std::string InQuotes(std::string_view text) {
  return '"' + std::string(text) + '"';
}

const OptionKind& OptionNamed(std::span<const OptionKind> options, std::string_view name) {
  const auto found = std::ranges::find(options, name, &OptionKind::Name);
  if (found != options.end()) return *found;
  std::vector<std::string_view> names;
  for (const OptionKind& option : options) names.push_back(option.Name);
  throw UsageError("there is no option " + InQuotes(name) + DidYouMean(name, names));
}

std::string WithValue(const OptionKind& option) {
  return std::string(option.Name) + (option.Value.empty() ? "" : " " + std::string(option.Value));
}

constexpr OptionKind kQuestions[] = {{"--help, -h", "", false, "these lines"},
                                     {"--version, -v", "", false, "the version of the program"}};

}  // namespace

Arguments::Arguments(std::span<const std::string> words, std::span<const OptionKind> options,
                     std::size_t places) {
  while (!words.empty()) {
    if (words[0].starts_with("-") && words[0].size() > 1) {
      words = words.subspan(Take(words, options));
    } else {
      places_.push_back(words[0]);
      words = words.subspan(1);
    }
  }
  if (places_.size() > places)
    throw UsageError(InQuotes(places_[places]) + " is one word too many");
  if (places_.size() < places) throw UsageError("something is missing");
  for (const OptionKind& option : options)
    if (option.Needed && !Has(option.Name))
      throw UsageError(std::string(option.Name) + " is missing");
}

/// Takes the option in front; gives how many words it has used.
std::size_t Arguments::Take(std::span<const std::string> words,
                            std::span<const OptionKind> options) {
  const std::string& word = words[0];
  const std::size_t equals = std::min(word.find('='), word.size());
  const std::string name = word.substr(0, equals);
  const OptionKind& option = OptionNamed(options, name);
  const bool takesValue = !option.Value.empty(), isInOne = equals < word.size();
  if (!takesValue && isInOne) throw UsageError(name + " takes no value");
  if (takesValue && !isInOne && words.size() == 1)
    throw UsageError(name + " needs a value, " + std::string(option.Value));
  const std::string value = isInOne ? word.substr(equals + 1) : takesValue ? words[1] : "";
  if (!options_.emplace(name, value).second) throw UsageError(name + " stands there twice");
  return takesValue && !isInOne ? 2 : 1;
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
                   " to " + std::to_string(most) + ", not " + InQuotes(*text));
}

std::optional<Day> Arguments::Date(std::string_view name) const {
  const auto text = Text(name);
  if (!text) return std::nullopt;
  if (const auto day = ParseIsoDate(*text)) return day;
  throw UsageError(std::string(name) + " needs a date such as 2026-03-01, not " + InQuotes(*text));
}

Asked AskedIn(std::span<const std::string> words) {
  for (const std::string& word : words) {
    if (word == "--help" || word == "-h") return Asked::Help;
    if (word == "--version" || word == "-v") return Asked::Version;
  }
  return Asked::Nothing;
}

std::string VersionLine(std::string_view program) {
  return std::string(program) + " " + kProgramVersion + "\n";
}

std::string UsageOf(std::string_view name, std::string_view places,
                    std::span<const OptionKind> options) {
  std::string line(name);
  if (!places.empty()) line += " " + std::string(places);
  for (const OptionKind& option : options)
    line += " " + (option.Needed ? WithValue(option) : "[" + WithValue(option) + "]");
  return line;
}

std::string OptionLines(std::span<const OptionKind> options) {
  constexpr std::size_t kWidth = 20;
  std::string lines;
  const auto add = [&](const OptionKind& option) {
    if (option.Help.empty()) return;
    std::string line = WithValue(option);
    line.resize(std::max(line.size() + 2, kWidth), ' ');
    lines += "  " + line + std::string(option.Help) + "\n";
  };
  std::ranges::for_each(options, add);
  std::ranges::for_each(kQuestions, add);
  return lines;
}

}  // namespace grapplemont
