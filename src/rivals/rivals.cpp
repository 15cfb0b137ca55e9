#include "rivals/rivals.h"

#include "records/modVar.h"
#include "records/severing.h"

namespace grapplemont {

bool IsAlive(const Promotion& promotion) {
  return !(promotion.Name == kToBeDeleted);
}

bool IsRival(const World& world, const Promotion& promotion) {
  return promotion.Uid != world.PlayerUid() && IsAlive(promotion);
}

bool IsOnMainRoster(const Worker& worker) {
  return IsOnRoster(worker) || worker.Position == kManager || worker.Position == kNonWrestler;
}

Rosters::Rosters(const World& world) {
  for (const Worker& worker : world.Workers())
    if (worker.Employer != 0 && IsOnMainRoster(worker)) ++counts_[worker.Employer];
}

int Rosters::Of(int promotionUid) const {
  const auto found = counts_.find(promotionUid);
  return found == counts_.end() ? 0 : found->second;
}

void Rosters::Move(const Worker& worker, int fromUid, int toUid) {
  if (!IsOnMainRoster(worker)) return;
  if (fromUid != 0) --counts_[fromUid];
  if (toUid != 0) ++counts_[toUid];
}

void PartWays(World& world, const std::vector<Worker*>& workers) {
  std::set<int> uids;
  for (Worker* worker : workers) {
    SeverWorker(world, *worker);
    worker->Split = "None";
    uids.insert(worker->Uid);
  }
  LoseClients(world, uids);
}

}  // namespace grapplemont
