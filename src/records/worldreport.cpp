#include "records/worldreport.h"

#include <algorithm>

namespace grapplemont {

std::string Counted(std::size_t count, std::string_view what) {
  return std::to_string(count) + " " + std::string(what) + (count == 1 ? "" : "s");
}

std::string ContentsOf(const World& world) {
  const auto count = [](const auto& records) { return static_cast<std::size_t>(records.Count()); };
  return Counted(count(world.Promotions()), "promotion") + ", " +
         Counted(count(world.Workers()), "worker") + ", " +
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
  return Counted(building.Mistakes.size(), "mistake") + "; nothing was built.";
}

std::string FaultyExport(const std::vector<Fault>& faults, std::string_view how) {
  return "has " + Counted(faults.size(), "fault") + ", which " + std::string(how) +
         " lists; the tables will not build until they are mended.";
}

}  // namespace grapplemont
