#include "roster/hometown.h"

#include "records/fields/outside.h"
#include "words/names.h"

namespace grapplemont {

std::string HomeLine(const Worker& worker) {
  // By the number alone, so that who was there from the start comes from one place in every game.
  constexpr std::uint64_t kApart = 0x9E3779B97F4A7C15;
  const int drawn =
      SeededDraws(static_cast<std::uint64_t>(int(worker.Uid)) * kApart).Draw(kHomeTowns);
  const HomeTown& home = HomeTowns[static_cast<std::size_t>(drawn - 1)];
  std::string line = "From " + std::string(home.Name);
  if (!home.Where.empty()) line += " " + std::string(home.Where);
  return line + ".";
}

}  // namespace grapplemont
