#include "booking/candidates.h"

#include "records/modWresCheck.h"
#include "storylines/stables.h"

namespace grapplemont {

namespace {

std::string AboutWorker(const World& world, const Worker& worker) {
  std::string text = std::string(PositionText(worker.Position)) + ", " +
                     std::string(DispositionText(worker.Disposition)) + ", Over " +
                     std::to_string(worker.Over) + ", Condition " +
                     std::to_string(worker.Condition) + ", Morale " + std::to_string(worker.Morale);
  if (worker.TurnPending) text += ", waiting to turn";
  if (!worker.Debuted) text += ", not seen yet";
  if (const std::string manager = WorkerName(world, worker.Manager); !manager.empty())
    text += ", managed by " + manager;
  if (!(worker.Stable == "None") && !worker.Stable.View().empty()) text += ", in " + worker.Stable;
  return text;
}

std::string AboutStable(const World& world, std::string_view name) {
  const auto members = StableMembers(world, name), active = ActiveMembers(world, name);
  std::string text = std::to_string(members.size()) + " of " + std::to_string(kFullStable) +
                     " members, " + std::to_string(active.size()) + " of them active";
  if (const Worker* leader = StableLeader(world, name)) text += ", led by " + leader->Name;
  return text;
}

std::string AboutTitle(const World& world, bool singles, std::string_view name) {
  for (const Title& title : world.Titles()) {
    if (!IsVacantTitle(world, title, singles) || !(title.Name == name)) continue;
    std::string text = "Vacant, image " + std::to_string(title.Image) + "%";
    if (title.Woman) text += ", for women";
    if (title.Lightweight) text += ", for lightweights";
    return text;
  }
  return {};
}

}  // namespace

std::string AboutCandidate(const World& world, const Role& role, const Candidate& candidate) {
  if (role.From == Casting::Stables) return AboutStable(world, candidate.Name);
  if (role.Place == 0)
    return AboutTitle(world, role.From == Casting::SinglesTitles, candidate.Name);
  const Worker* worker = world.FindWorker(candidate.Uid);
  return worker ? AboutWorker(world, *worker) : std::string();
}

}  // namespace grapplemont
