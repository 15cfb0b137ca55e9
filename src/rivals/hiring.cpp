#include "rivals/rivalsteps.h"
#include "rivals/workermarket.h"
#include "roster/placement.h"

namespace grapplemont {

void RivalWorkerHiring(World& world) {
  Rosters rosters(world);
  for (const Promotion& promotion : world.Promotions())
    if (IsRival(world, promotion)) FitRoster(world, promotion, rosters);
}

void RivalPositions(World& world) {
  for (Worker& worker : world.Workers()) {
    const Promotion* employer = world.FindPromotion(worker.Employer);
    if (employer && IsRival(world, *employer))
      worker.Position = PlacementPosition(worker, employer->Size);
  }
}

}  // namespace grapplemont
