#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/checks/checkworld.h"

// The clean-up of the data, with a report before it changes anything.

namespace grapplemont {

/// What is wrong with the data, what a clean-up would do about it, and what it would leave.
struct Maintenance {
  FaultList Faults;
  FaultList Doings;
  FaultList Left;
};

/// Looks at the data without a change. Files named in `unreadable` are there but cannot be taken
/// for record files; the clean-up leaves them to the player.
Maintenance PlanMaintenance(const World& world, const std::vector<Fault>& unreadable = {});

/// Puts the data in order: a file that is missing begins empty, and all is mended that a new game
/// would mend in its copy. Gives what was done; nothing for data in order. Draws nothing.
FaultList Maintain(World& world, const std::vector<Fault>& unreadable = {});

}  // namespace grapplemont
