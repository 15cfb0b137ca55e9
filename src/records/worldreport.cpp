#include "records/worldreport.h"

#include "records/counted.h"

#include <algorithm>

namespace grapplemont {

std::string ContentsOf(const World& world) {
  return Counted(world.Promotions().Count(), "promotion") + ", " +
         Counted(world.Workers().Count(), "worker") + ", " +
         std::to_string(world.AllStaff().Count()) + " staff";
}

std::vector<Fault> FaultsOf(const World& world) {
  std::vector<Fault> faults;
  for (const Table* table : world.Tables())
    if (!table->Exists() &&
        std::find(kDataSet.begin(), kDataSet.end(), table->File()) != kDataSet.end())
      faults.push_back({std::string(table->File()), 0, {}, {}, "is missing"});
  for (Fault& fault : CheckWorld(world)) faults.push_back(std::move(fault));
  return faults;
}

std::string NothingBuilt(const Building& building) {
  return Counted(std::ssize(building.Mistakes), "mistake") + "; nothing was built.";
}

std::string FaultyExport(const std::vector<Fault>& faults, std::string_view how) {
  return "has " + Counted(std::ssize(faults), "fault") + ", which " + std::string(how) +
         " lists; the tables will not build until they are mended.";
}

}  // namespace grapplemont
