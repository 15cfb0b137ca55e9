#pragma once

#include <string>

#include "records/checks/checkworld.h"

namespace grapplemont::test {

/// What is wrong in the world, a fault a line.
inline std::string FaultsOf(const World& world) {
  std::string lines;
  for (const Fault& fault : CheckWorld(world)) lines += fault.Line() + "\n";
  return lines;
}

}  // namespace grapplemont::test
