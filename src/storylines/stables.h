#pragma once

#include <string_view>
#include <vector>

#include "records/world.h"

// Who belongs to a stable and who leads it.

namespace grapplemont {

/// A stable takes no more members than this.
inline constexpr int kFullStable = 10;

/// Everybody on the player's roster whose stable it is.
std::vector<const Worker*> StableMembers(const World& world, std::string_view stable);
/// Those of them who are fit.
std::vector<const Worker*> ActiveMembers(const World& world, std::string_view stable);
/// The most popular active member, the lower uid where two are alike; nullptr for none.
const Worker* StableLeader(const World& world, std::string_view stable);

}  // namespace grapplemont
