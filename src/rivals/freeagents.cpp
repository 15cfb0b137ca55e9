#include "rivals/rivals.h"
#include "rivals/rivalsteps.h"
#include "rivals/tuning.h"
#include "roster/invented.h"

namespace grapplemont {

namespace {

int CountFree(const World& world) {
  return static_cast<int>(std::count_if(world.Workers().begin(), world.Workers().end(),
                                        [](auto& worker) { return worker.Employer == 0; }));
}

/// Everybody who comes is free, so the share grows with both counts.
int NewTalentNeeded(int free, int all) {
  int needed = 0;
  while (needed < tuning::kNewTalentAMonth &&
         (free + needed) * 100 < tuning::kFreeWanted * (all + needed))
    ++needed;
  return needed;
}

}  // namespace

void DiscoverFreeAgents(World& world) {
  for (Worker& worker : world.Workers())
    if (worker.Employer == 0 && worker.Wage > tuning::kLeastAsked)
      worker.Wage =
          std::max<int>(worker.Wage - std::max(1, worker.Wage * tuning::kWaitingDiscount / 100),
                        tuning::kLeastAsked);
  const int needed = NewTalentNeeded(CountFree(world), world.Workers().Count());
  for (int n = 0; n < needed && !world.Workers().Full(); ++n) NewFillerWorker(world);
}

}  // namespace grapplemont
