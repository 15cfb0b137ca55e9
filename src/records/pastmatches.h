#pragma once

#include <vector>

#include "records/world.h"

// The player's past matches by who was in them, found without a walk over all.

namespace grapplemont {

/// The number of the record that counts a worker's matches in the player's promotion; 0 for none.
int TallyNumberOf(const World& world, int workerUid);
/// The record itself; nullptr for none.
const MatchTally* TallyOf(const World& world, int workerUid);
/// The numbers of the matches that a worker was in, oldest first.
const std::vector<int>& MatchesWith(const World& world, int workerUid);

}  // namespace grapplemont
