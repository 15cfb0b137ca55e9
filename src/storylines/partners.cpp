#include "storylines/partners.h"

#include <algorithm>

#include "records/angles.h"
#include "records/keepannals.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

bool IsPlayers(const World& world, int uid) {
  const Worker* worker = world.FindWorker(uid);
  return worker && WorksForPlayer(world, *worker);
}

bool IsPlayers(const World& world, const Stable& stable) {
  return stable.Owner == world.PlayerUid();
}

bool IsIn(const World& world, const Worker& worker, std::string_view stable) {
  return WorksForPlayer(world, worker) && worker.Stable == stable;
}

/// What a show has held already stays as it was reported.
bool IsBookedFor(const Segment& segment, std::string_view stable) {
  const Angle* angle = segment.Kind == kAngle ? FindAngle(segment.Style) : nullptr;
  return angle && HasStableRole(*angle) && segment.Text == stable && segment.Rating == 0;
}

template <class Stays>
std::vector<const Worker*> Of(std::vector<const Worker*> people, Stays stays) {
  std::erase_if(people, [&](const Worker* worker) { return !stays(*worker); });
  return people;
}

/// How long the fans remember a turn, in days.
constexpr std::pair<int, const char*> kMemories[] = {
    {90, "The fans will not care for another turn so soon."},
    {180, "The fans most likely remember the last turn, and would not care for another."},
    {365, "Some fans remember the last turn. Another one may fall flat."},
};

}  // namespace

bool IsTeamOf(const Team& team, int workerA, int workerB) {
  return (team.Worker1 == workerA && team.Worker2 == workerB) ||
         (team.Worker1 == workerB && team.Worker2 == workerA);
}

std::vector<int> PartnersOf(const World& world, int workerUid) {
  std::vector<int> partners;
  for (const Team& team : world.Teams())
    if (team.Worker1 == workerUid || team.Worker2 == workerUid)
      partners.push_back(team.Worker1 == workerUid ? team.Worker2 : team.Worker1);
  return partners;
}

std::vector<const Team*> PlayerTeams(const World& world) {
  std::vector<const Team*> teams;
  for (const Team& team : world.Teams())
    if (IsPlayers(world, team.Worker1) && IsPlayers(world, team.Worker2)) teams.push_back(&team);
  return teams;
}

std::string WhyNotTeamName(const World& world, std::string_view name) {
  if (std::string why = WhyNoName(name); !why.empty()) return why;
  const bool taken =
      std::ranges::any_of(world.Teams(), [&](const Team& team) { return team.Name == name; });
  return taken ? "There is a team called " + std::string(name) + " already." : "";
}

std::string WhyNotFinisher(std::string_view finisher) {
  const std::string_view trimmed = TrimmedName(finisher);
  return trimmed.empty() || trimmed == "None" ? "" : WhyNoName(trimmed);
}

std::string WhyNotTeam(const World& world, int workerA, int workerB) {
  if (workerA == 0 || workerB == 0) return "Choose two workers.";
  if (workerA == workerB) return "You have selected the same worker twice!";
  const std::string team = TeamNameOf(world, workerA, workerB);
  if (team != "None") return "These two are a team already: " + team + ".";
  return world.Teams().Full() ? "No more teams can be kept." : "";
}

int FormTeam(World& world, std::string_view name, int workerA, int workerB,
             std::string_view finisher) {
  Team team;
  team.Name = name;
  team.Worker1 = workerA;
  team.Worker2 = workerB;
  SetTeamFinisher(team, finisher);
  world.Teams().Append(team);
  KeepGroup(world, kAnnalTeamed, team.Name, workerA, workerB);
  return world.Teams().Count();
}

void SetTeamFinisher(Team& team, std::string_view finisher) {
  const std::string_view trimmed = TrimmedName(finisher);
  team.Finisher = trimmed.empty() ? "None" : trimmed;
}

std::vector<const Worker*> StableMembers(const World& world, std::string_view stable) {
  std::vector<const Worker*> members;
  if (stable.empty() || stable == "None") return members;
  for (const Worker& worker : world.Workers())
    if (IsIn(world, worker, stable)) members.push_back(&worker);
  return members;
}

std::vector<const Worker*> ActiveMembers(const World& world, std::string_view stable) {
  return Of(StableMembers(world, stable), [](const Worker& w) { return w.Status == "Nor"; });
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
  KeepGroup(world, kAnnalStable, name, 0);
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
  return static_cast<int>(std::ranges::count_if(
      world.Segments(), [&](const Segment& segment) { return IsBookedFor(segment, stable); }));
}

void DissolveStable(World& world, std::string_view stable) {
  const std::string name(stable);
  for (Segment& segment : world.Segments())
    if (IsBookedFor(segment, name)) ClearSegment(segment);
  for (Worker& worker : world.Workers())
    if (IsIn(world, worker, name)) worker.Stable = "None";
  world.Stables().Keep(
      [&](const Stable& kept) { return !(IsPlayers(world, kept) && kept.Name == name); });
}

bool IsInStable(const Worker& worker) {
  return !worker.Stable.View().empty() && worker.Stable != "None";
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

std::vector<const Worker*> Managers(const World& world) {
  return Of(SeenOnShows(world), [](const Worker& w) { return w.Position == kManager; });
}

std::vector<const Worker*> Clients(const World& world) {
  return Of(SeenOnShows(world), IsOnRoster);
}

const Worker* ManagerOf(const World& world, const Worker& client) {
  const Worker* manager = world.FindWorker(client.Manager);
  return manager && manager->Employer == client.Employer ? manager : nullptr;
}

std::vector<const Worker*> ClientsOf(const World& world, const Worker& manager) {
  return Of(SeenOnShows(world), [&](const Worker& w) { return w.Manager == manager.Uid; });
}

std::string WhyNotManage(const Worker& manager, const Worker& client) {
  if (client.Manager != manager.Uid) return {};
  return manager.Name + " manages " + client.Name.Str() + " already.";
}

int DaysSinceTurn(const World& world, const Worker& worker) {
  const Day turned = worker.LastTurn;
  if (turned <= kDayZero) return -1;
  return static_cast<int>((world.Today() - turned).count());
}

std::string TurnAdvice(const World& world, const Worker& worker) {
  const int days = DaysSinceTurn(world, worker);
  for (const auto& [upTo, words] : kMemories)
    if (days >= 0 && days <= upTo) return words;
  return "The fans are ready for a turn.";
}

}  // namespace grapplemont
