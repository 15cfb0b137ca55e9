#pragma once

#include <string>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// A line for each file of people, companies and stories that has filled nine tenths of what it may
/// hold: long before nobody new can be found. Whoever reads it can still act.
std::vector<std::string> NearlyFullFiles(const World& world);

}  // namespace grapplemont
