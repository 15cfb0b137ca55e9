#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// Who belongs to a stable and who leads it; how one is founded, changed and given up.

namespace grapplemont {

/// A stable takes no more members than this.
inline constexpr int kFullStable = 10;

/// Everybody on the player's roster whose stable it is.
std::vector<const Worker*> StableMembers(const World& world, std::string_view stable);
/// Those of them who are fit.
std::vector<const Worker*> ActiveMembers(const World& world, std::string_view stable);
/// The player's stables, in the order of the file.
std::vector<const Stable*> PlayerStables(const World& world);

/// Why no stable can have this name from now on; empty when one can.
std::string WhyNotStableName(const World& world, std::string_view name);
/// Why no stable can be founded under this name; empty when one can.
std::string WhyNotFound(const World& world, std::string_view name);
/// Founds a stable of the player's. Requires that nothing stands against it.
void FoundStable(World& world, std::string_view name);
/// Its members go with the new name, and so does what is booked for it and not held yet. Requires a
/// name that can be had.
void RenameStable(World& world, std::string_view from, std::string_view to);
/// How many Segments are booked for a stable and have not been held yet.
int BookedFor(const World& world, std::string_view stable);
/// Its members are in none then, and what is booked for it is taken off the sheet.
void DissolveStable(World& world, std::string_view stable);

/// Whether he belongs to any stable.
bool IsInStable(const Worker& worker);
/// Why the worker cannot join; empty when he can.
std::string WhyNotJoin(const World& world, std::string_view stable, const Worker& worker);
void JoinStable(Worker& worker, std::string_view stable);
void LeaveStable(Worker& worker);

/// The most popular active member, the lower uid where two are alike; nullptr for none.
const Worker* StableLeader(const World& world, std::string_view stable);

}  // namespace grapplemont
