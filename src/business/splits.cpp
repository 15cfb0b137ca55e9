#include "business/splits.h"

#include <algorithm>

#include "storylines/storynames.h"

namespace grapplemont {

namespace {

constexpr std::string_view kEverybody = "All";  // what a sheet calls the undivided roster

Text<10>& SplitAt(Promotion& promotion, int place) {
  return promotion.Split.at(static_cast<std::size_t>(place - 1));
}

void MovePeople(World& world, std::string_view from, std::string_view to) {
  for (Worker& worker : world.Workers())
    if (worker.Employer == world.PlayerUid() && worker.Split == from) worker.Split = to;
}

}  // namespace

std::string SplitName(const Promotion& promotion, int place) {
  if (place < 1 || place > kSplits) return {};
  const auto& name = promotion.Split[static_cast<std::size_t>(place - 1)];
  return name == "None" ? std::string() : name.Str();
}

int PeopleInSplit(const World& world, std::string_view split) {
  return static_cast<int>(
      std::count_if(world.Workers().begin(), world.Workers().end(), [&](const Worker& worker) {
        return worker.Employer == world.PlayerUid() && worker.Split == split;
      }));
}

std::string WhyNotSplitName(const World& world, int place, std::string_view name) {
  if (place < 1 || place > kSplits) return "Choose a split first.";
  if (std::string why = WhyNoName(name, Text<10>::kWidth); !why.empty()) return why;
  name = TrimmedName(name);
  if (name == kEverybody) return "\"All\" stands for the whole roster and cannot be a split.";
  for (int other = 1; other <= kSplits; ++other)
    if (other != place && SplitName(world.Player(), other) == name)
      return "There is a split called " + std::string(name) + " already.";
  return {};
}

void NameSplit(World& world, int place, std::string_view name) {
  const std::string before = SplitName(world.Player(), place);
  const std::string after(TrimmedName(name));
  // Somebody may have brought this name along from where he worked before.
  if (before != after) MovePeople(world, after, "None");
  if (!before.empty()) MovePeople(world, before, after);
  SplitAt(world.Player(), place) = after;
}

void DissolveSplit(World& world, int place) {
  const std::string name = SplitName(world.Player(), place);
  if (name.empty()) return;
  MovePeople(world, name, "None");
  SplitAt(world.Player(), place) = "None";
}

}  // namespace grapplemont
