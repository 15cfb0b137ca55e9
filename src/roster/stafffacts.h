#pragma once

#include <vector>

#include "records/world.h"
#include "roster/workerfacts.h"

// What is known of a member of staff, in words.

namespace grapplemont {

/// "Announcer" and so on; "Unknown" for a code without a text.
std::string_view PostText(int post);
/// "Written contract for 12 months, at $5,000 per month"; empty for free agents and Owners.
std::string StaffContractLine(const Staff& staff);
/// The first group is the person, with the name for heading.
std::vector<FactGroup> StaffFacts(const World& world, const Staff& staff);

}  // namespace grapplemont
