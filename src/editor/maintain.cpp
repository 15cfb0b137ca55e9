#include "editor/maintain.h"

#include <algorithm>

#include "editor/worldcopy.h"
#include "records/tables/worldreport.h"

namespace grapplemont {

namespace {

bool Names(const std::vector<Fault>& faults, std::string_view file) {
  return std::any_of(faults.begin(), faults.end(),
                     [&](const Fault& fault) { return fault.File == file; });
}

/// The faults of the world; a file that cannot be read is none that is missing.
FaultList FaultsBeside(const World& world, const std::vector<Fault>& unreadable) {
  FaultList faults;
  for (const Fault& fault : unreadable) faults.Take(Fault(fault));
  TellFaults(world, [&](Fault&& fault) {
    if (!Names(unreadable, fault.File)) faults.Take(std::move(fault));
  });
  return faults;
}

}  // namespace

FaultList Maintain(World& world, const std::vector<Fault>& unreadable) {
  FaultList doings;
  for (Table* table : world.Tables()) {
    const bool ofData =
        std::find(kDataSet.begin(), kDataSet.end(), table->File()) != kDataSet.end();
    if (!ofData || table->Exists() || Names(unreadable, table->File())) continue;
    table->Load({});
    doings.Take({std::string(table->File()), 0, {}, {}, "is missing; made without a record"});
  }
  doings.Take(MendWorld(world));
  return doings;
}

Maintenance PlanMaintenance(const World& world, const std::vector<Fault>& unreadable) {
  Maintenance plan;
  plan.Faults = FaultsBeside(world, unreadable);
  World trial = TrialCopyOf(world);
  plan.Doings = Maintain(trial, unreadable);
  plan.Left = FaultsBeside(trial, unreadable);
  return plan;
}

}  // namespace grapplemont
