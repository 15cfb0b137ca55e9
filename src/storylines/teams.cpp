#include "storylines/teams.h"

#include <algorithm>

#include "records/modWresCheck.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

bool IsPlayers(const World& world, int uid) {
  const Worker* worker = world.FindWorker(uid);
  return worker && WorksForPlayer(world, *worker);
}

}  // namespace

std::vector<int> PlayerTeams(const World& world) {
  std::vector<int> numbers;
  for (const Team& team : world.Teams())
    if (IsPlayers(world, team.Worker1) && IsPlayers(world, team.Worker2))
      numbers.push_back(world.Teams().NumberOf(team));
  return numbers;
}

std::string WhyNotTeamName(const World& world, std::string_view name) {
  if (std::string why = WhyNoName(name); !why.empty()) return why;
  const bool taken = std::any_of(world.Teams().begin(), world.Teams().end(),
                                 [&](const Team& team) { return team.Name == name; });
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
  return world.Teams().Count();
}

void SetTeamFinisher(Team& team, std::string_view finisher) {
  const std::string_view trimmed = TrimmedName(finisher);
  team.Finisher = trimmed.empty() ? "None" : trimmed;
}

void DissolveTeam(World& world, int number) {
  world.Teams().Erase(number);
}

}  // namespace grapplemont
