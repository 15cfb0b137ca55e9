#pragma once

#include <map>
#include <string>

#include "records/segments.h"

namespace grapplemont {

/// The level of each worker's grievance, 1 to 5, by his uid; who has none is not there.
std::map<int, int> GrievancesOf(const World& world, const Segment& match);
/// What a level takes from Morale.
int MoralePrice(int level);
/// "Bram Okafor -15" for each of them, most first; empty when nobody minds.
std::string GrievanceText(const World& world, const Segment& match);
/// By what it costs: "nine will hold it against you, 50 morale each, two more 15 each".
std::string HeldAgainstText(const World& world, const Segment& match);

}  // namespace grapplemont
