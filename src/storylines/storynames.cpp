#include "storylines/storynames.h"

#include <algorithm>

namespace grapplemont {

std::string_view TrimmedName(std::string_view name) {
  const auto from = name.find_first_not_of(" \t\n\r");
  if (from == std::string_view::npos) return {};
  return name.substr(from, name.find_last_not_of(" \t\n\r") - from + 1);
}

std::string WhyNoName(std::string_view name, int letters) {
  name = TrimmedName(name);
  if (name.empty()) return "Type a name first.";
  if (name == "None") return "\"None\" stands for nothing at all and cannot be a name.";
  if (std::any_of(name.begin(), name.end(), [](char c) { return c >= 0 && c < ' '; }))
    return "A name is one line of plain text.";
  if (static_cast<int>(name.size()) > letters)
    return "A name has at most " + std::to_string(letters) + " letters. This one has " +
           std::to_string(name.size()) + ".";
  return {};
}

std::vector<const Worker*> SeenOnShows(const World& world) {
  std::vector<const Worker*> seen;
  for (const Worker& worker : world.Workers()) {
    const bool onShows =
        IsOnRoster(worker) || worker.Position == kManager || worker.Position == kNonWrestler;
    if (worker.Employer != 0 && worker.Employer == world.PlayerUid() && onShows)
      seen.push_back(&worker);
  }
  std::stable_sort(seen.begin(), seen.end(),
                   [](const Worker* a, const Worker* b) { return a->Over > b->Over; });
  return seen;
}

std::string_view HimOrHer(const Worker& worker) {
  return worker.Gender ? "him" : "her";
}

}  // namespace grapplemont
