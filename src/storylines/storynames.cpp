#include "storylines/storynames.h"

#include <algorithm>

#include "records/fields/charset.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

// The last is the blank of Windows-1252 at which no line breaks: it looks like any other.
constexpr std::string_view kBlanks = " \t\n\r\xA0";

}  // namespace

std::string_view TrimmedName(std::string_view name) {
  const auto from = name.find_first_not_of(kBlanks);
  if (from == std::string_view::npos) return {};
  return name.substr(from, name.find_last_not_of(kBlanks) - from + 1);
}

std::string WhyNotPlain(std::string_view name) {
  return std::ranges::none_of(name, IsControl) ? "" : "A name is one line of plain text.";
}

std::string WhyNoName(std::string_view name, int letters) {
  name = TrimmedName(name);
  if (name.empty()) return "Type a name first.";
  if (name == "None") return "\"None\" stands for nothing at all and cannot be a name.";
  if (name == kVacantHolder || name == kToBeDeleted)
    return "\"" + std::string(name) + "\" has a meaning of its own and cannot be a name.";
  if (std::string why = WhyNotPlain(name); !why.empty()) return why;
  if (static_cast<int>(name.size()) > letters)
    return "A name has at most " + std::to_string(letters) + " letters. This one has " +
           std::to_string(name.size()) + ".";
  return {};
}

bool IsSeenOnShows(const Worker& worker) {
  return IsOnRoster(worker) || worker.Position == kManager || worker.Position == kNonWrestler;
}

std::vector<const Worker*> SeenOnShows(const World& world) {
  std::vector<const Worker*> seen;
  for (const Worker& worker : world.Workers())
    if (WorksForPlayer(world, worker) && IsSeenOnShows(worker)) seen.push_back(&worker);
  SortByOver(seen);
  return seen;
}

void SortByOver(std::vector<const Worker*>& people) {
  std::stable_sort(people.begin(), people.end(),
                   [](const Worker* a, const Worker* b) { return a->Over > b->Over; });
}

std::string_view HimOrHer(const Worker& worker) {
  return worker.Gender ? "him" : "her";
}

}  // namespace grapplemont
