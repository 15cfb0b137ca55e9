#include "records/worldreport.h"

#include "records/counted.h"

#include <algorithm>

namespace grapplemont {

std::string Listed(const std::vector<std::string>& names) {
  constexpr std::size_t kMost = 4;
  std::string text;
  for (std::size_t i = 0; i < std::min(names.size(), kMost); ++i)
    text += (text.empty() ? "" : i + 1 == names.size() ? " and " : ", ") + names[i];
  if (names.size() > kMost) text += " and " + std::to_string(names.size() - kMost) + " more";
  return text;
}

std::string ContentsOf(const World& world) {
  return Counted(world.Promotions().Count(), "promotion") + ", " +
         Counted(world.Workers().Count(), "worker") + ", " +
         std::to_string(world.AllStaff().Count()) + " staff";
}

std::size_t TellFaults(const World& world, const TakeFault& take) {
  std::size_t count = 0;
  const auto tell = [&](Fault&& fault) {
    ++count;
    take(std::move(fault));
  };
  for (const Table* table : world.Tables())
    if (!table->Exists() &&
        std::find(kDataSet.begin(), kDataSet.end(), table->File()) != kDataSet.end())
      tell({std::string(table->File()), 0, {}, {}, "is missing"});
  CheckWorld(world, tell);
  return count;
}

std::vector<std::string> MistakeLines(const Building& building) {
  std::vector<std::string> lines;
  for (const Mistake& mistake : building.Mistakes) lines.push_back(mistake.Text());
  const std::size_t more = building.MistakeCount - building.Mistakes.size();
  if (more > 0) lines.push_back("and " + std::to_string(more) + " more");
  return lines;
}

std::string NothingBuilt(const Building& building) {
  return Counted(building.MistakeCount, "mistake") + "; nothing was built.";
}

std::string FaultyExport(std::size_t faults, std::string_view how) {
  return "has " + Counted(faults, "fault") + ", which " + std::string(how) +
         " lists; the tables will not build until they are mended.";
}

}  // namespace grapplemont
