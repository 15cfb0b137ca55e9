#pragma once

#include "records/world.h"

namespace grapplemont {

/// Whether the player's promotion has the sum, in thousands of dollars.
bool CanDonate(const World& world, int thousands);
/// The sum goes, and the player's reputation rises by a point for each thousand, up to 100.
/// Requires CanDonate.
void Donate(World& world, int thousands);

}  // namespace grapplemont
