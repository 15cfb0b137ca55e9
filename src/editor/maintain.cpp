#include "editor/maintain.h"

#include <algorithm>
#include <iterator>

#include "editor/worldcopy.h"
#include "records/worldreport.h"

namespace grapplemont {

namespace {

bool Names(const std::vector<Fault>& faults, std::string_view file) {
  return std::any_of(faults.begin(), faults.end(),
                     [&](const Fault& fault) { return fault.File == file; });
}

/// The faults of the world; a file that cannot be read is none that is missing.
std::vector<Fault> FaultsBeside(const World& world, const std::vector<Fault>& unreadable) {
  std::vector<Fault> faults = FaultsOf(world);
  std::erase_if(faults, [&](const Fault& fault) { return Names(unreadable, fault.File); });
  faults.insert(faults.begin(), unreadable.begin(), unreadable.end());
  return faults;
}

}  // namespace

std::vector<Fault> Maintain(World& world, const std::vector<Fault>& unreadable) {
  std::vector<Fault> doings;
  for (Table* table : world.Tables()) {
    const bool ofData =
        std::find(kDataSet.begin(), kDataSet.end(), table->File()) != kDataSet.end();
    if (!ofData || table->Exists() || Names(unreadable, table->File())) continue;
    table->Load({});
    doings.push_back({std::string(table->File()), 0, {}, {}, "is missing; made without a record"});
  }
  std::vector<Fault> mended = MendWorld(world);
  std::move(mended.begin(), mended.end(), std::back_inserter(doings));
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
