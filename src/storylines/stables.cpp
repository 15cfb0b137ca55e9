#include "storylines/stables.h"

#include <algorithm>

namespace grapplemont {

std::vector<const Worker*> StableMembers(const World& world, std::string_view stable) {
  std::vector<const Worker*> members;
  if (stable.empty() || stable == "None") return members;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == world.PlayerUid() && worker.Stable == stable) members.push_back(&worker);
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

}  // namespace grapplemont
