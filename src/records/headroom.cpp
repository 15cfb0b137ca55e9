#include "records/headroom.h"

namespace grapplemont {

namespace {

template <class T>
void Look(const Records<T>& records, std::string_view what, std::vector<std::string>& lines) {
  const RecordLayout& layout = LayoutOf<T>();
  if (records.Count() * 10 < layout.Limit * 9) return;
  lines.push_back(std::string(layout.File) + " holds " + std::to_string(records.Count()) + " " +
                  std::string(what) + "; " + std::to_string(layout.Limit) +
                  " is the most. Start the next game from a smaller database.");
}

}  // namespace

std::vector<std::string> NearlyFullFiles(const World& world) {
  std::vector<std::string> lines;
  Look(world.Workers(), "workers", lines);
  Look(world.AllStaff(), "staff", lines);
  Look(world.Teams(), "Tag Teams", lines);
  Look(world.Stables(), "stables", lines);
  Look(world.Titles(), "Titles", lines);
  Look(world.Shows(), "television shows", lines);
  Look(world.Events(), "Events", lines);
  Look(world.Networks(), "networks", lines);
  Look(world.Sponsors(), "sponsors", lines);
  return lines;
}

}  // namespace grapplemont
