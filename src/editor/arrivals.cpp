#include "editor/arrivals.h"

#include <algorithm>

#include "records/fields/wording.h"
#include "records/tables/worldreport.h"

namespace grapplemont {

int Arrivals::Count(Fate fate) const {
  return static_cast<int>(std::count_if(Rows.begin(), Rows.end(),
                                        [&](const Arrival& row) { return row.Comes == fate; }));
}

void MendArrivals(World& world, Arrivals& arrivals) {
  const FaultList mended = MendWorld(world);
  arrivals.Mended.insert(arrivals.Mended.end(), mended.begin(), mended.end());
}

std::string WhyNoArrivals(const World& world) {
  const std::size_t faults = TellFaults(world);
  return faults == 0 ? "" : "The data have " + Counted(faults, "fault") + ". Clean them up first.";
}

std::string Shown(std::string_view text) {
  std::string shown(text);
  std::replace_if(
      shown.begin(), shown.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
  return shown;
}

bool IsNoName(std::string_view text) {
  const std::string shown = Shown(text);
  const std::string_view letters = detail::Trimmed(shown);
  return letters.empty() || letters == "None";
}

int NamesTaken::UidOf(std::string_view name) const {
  const auto found = uids_.find(std::string(name));
  return found == uids_.end() ? 0 : found->second;
}

int UidMap::operator()(int uid) const {
  const auto found = leads_.find(uid);
  if (found != leads_.end()) return found->second;
  return here_.contains(uid) ? uid : 0;
}

}  // namespace grapplemont
