#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// What ties a worker to others, a sentence each.

namespace grapplemont {

/// Commissioner of a promotion, voice beside the ring.
std::vector<std::string> OfficesOf(const World& world, const Worker& worker);
/// His stable, his Tag Teams, his manager and those whom he manages.
std::vector<std::string> CompanyOf(const World& world, const Worker& worker);
/// The feuds that he is in, whatever side.
std::vector<std::string> FeudsOf(const World& world, const Worker& worker);

}  // namespace grapplemont
