#include "roster/hometown.h"

#include "words/names.h"

namespace grapplemont {

std::string HomeLine(const World& world, const Worker& worker) {
  const int drawn = world.Fate("home town", {worker.Uid}).Draw(kHomeTowns);
  const HomeTown& home = HomeTowns[static_cast<std::size_t>(drawn - 1)];
  std::string line = "From " + std::string(home.Name);
  if (!home.Where.empty()) line += " " + std::string(home.Where);
  return line + ".";
}

}  // namespace grapplemont
