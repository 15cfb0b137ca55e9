#pragma once

#include <vector>

#include "records/segments.h"

// What the lists of a match's later steps offer: codes, in the order of the list. Each looks at
// what the steps before it have put into the Segment.

namespace grapplemont {

std::vector<int> OfferedFinishes(const World& world, const Segment& match);
/// "Nothing" stands last.
std::vector<int> OfferedAftermaths(const World& world, const Segment& match);
/// "None" stands last.
std::vector<int> OfferedPurposes(const World& world, const Segment& match);

}  // namespace grapplemont
