#include "storylines/stables.h"

#include <algorithm>

#include "records/angles.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

bool IsPlayers(const World& world, const Stable& stable) {
  return stable.Owner == world.PlayerUid();
}

bool IsIn(const World& world, const Worker& worker, std::string_view stable) {
  return WorksForPlayer(world, worker) && worker.Stable == stable;
}

/// What a show has held already stays as it was told.
bool IsBookedFor(const Segment& segment, std::string_view stable) {
  const Angle* angle = segment.Kind == kAngle ? FindAngle(segment.Style) : nullptr;
  return angle && HasStableRole(*angle) && segment.Text == stable && segment.Rating == 0;
}

}  // namespace

std::vector<const Worker*> StableMembers(const World& world, std::string_view stable) {
  std::vector<const Worker*> members;
  if (stable.empty() || stable == "None") return members;
  for (const Worker& worker : world.Workers())
    if (IsIn(world, worker, stable)) members.push_back(&worker);
  return members;
}

std::vector<const Worker*> ActiveMembers(const World& world, std::string_view stable) {
  std::vector<const Worker*> members = StableMembers(world, stable);
  std::erase_if(members, [](const Worker* worker) { return !(worker->Status == "Nor"); });
  return members;
}

const Worker* StableLeader(const World& world, std::string_view stable) {
  const std::vector<const Worker*> members = ActiveMembers(world, stable);
  const auto leader =
      std::min_element(members.begin(), members.end(), [](const Worker* a, const Worker* b) {
        return a->Over != b->Over ? a->Over > b->Over : a->Uid < b->Uid;
      });
  return leader == members.end() ? nullptr : *leader;
}

std::vector<const Stable*> PlayerStables(const World& world) {
  std::vector<const Stable*> stables;
  for (const Stable& stable : world.Stables())
    if (IsPlayers(world, stable)) stables.push_back(&stable);
  return stables;
}

std::string WhyNotStableName(const World& world, std::string_view name) {
  if (std::string why = WhyNoName(name); !why.empty()) return why;
  return FindStable(world, name) ? "There is a stable called " + std::string(name) + " already."
                                 : "";
}

std::string WhyNotFound(const World& world, std::string_view name) {
  if (world.Stables().Full()) return "No more stables can be kept.";
  return WhyNotStableName(world, name);
}

void FoundStable(World& world, std::string_view name) {
  Stable stable;
  stable.Name = name;
  stable.Owner = world.PlayerUid();
  world.Stables().Append(stable);
}

void RenameStable(World& world, std::string_view from, std::string_view to) {
  const std::string before(from);  // may lie in the record that changes
  for (Worker& worker : world.Workers())
    if (IsIn(world, worker, before)) worker.Stable = to;
  for (Segment& segment : world.Segments())
    if (IsBookedFor(segment, before)) segment.Text = to;
  for (Stable& stable : world.Stables())
    if (IsPlayers(world, stable) && stable.Name == before) stable.Name = to;
}

int BookedFor(const World& world, std::string_view stable) {
  return static_cast<int>(
      std::count_if(world.Segments().begin(), world.Segments().end(),
                    [&](const Segment& segment) { return IsBookedFor(segment, stable); }));
}

void DissolveStable(World& world, std::string_view stable) {
  const std::string name(stable);
  for (Segment& segment : world.Segments())
    if (IsBookedFor(segment, name)) ClearSegment(segment);
  for (Worker& worker : world.Workers())
    if (IsIn(world, worker, name)) LeaveStable(worker);
  world.Stables().Keep(
      [&](const Stable& kept) { return !(IsPlayers(world, kept) && kept.Name == name); });
}

bool IsInStable(const Worker& worker) {
  return !worker.Stable.View().empty() && !(worker.Stable == "None");
}

std::string WhyNotJoin(const World& world, std::string_view stable, const Worker& worker) {
  if (stable.empty()) return "Choose a stable first.";
  if (worker.Stable == stable) return worker.Name + " is in " + std::string(stable) + " already.";
  if (IsInStable(worker))
    return worker.Name + " belongs to " + worker.Stable.Str() + ". Take " +
           std::string(HimOrHer(worker)) + " out of it first.";
  if (static_cast<int>(StableMembers(world, stable).size()) >= kFullStable)
    return std::string(stable) + " has ten members, and that is as many as a stable can have.";
  return {};
}

void JoinStable(Worker& worker, std::string_view stable) {
  worker.Stable = stable;
}

void LeaveStable(Worker& worker) {
  worker.Stable = "None";
}

}  // namespace grapplemont
