#pragma once

#include <string>

#include "records/world.h"

// Ending the contract of a member of the player's staff before its time: as with workers.

namespace grapplemont {

/// What the player is asked before it happens.
std::string FiringQuestion(const World& world, const Staff& staff);
/// Pays, whatever is in the bank, and lets him go.
void FireStaff(World& world, Staff& staff);

}  // namespace grapplemont
