#pragma once

#include <map>

#include "records/world.h"

// The house show that every rival holds in a week, out of sight.

namespace grapplemont {

/// How many wrestlers of each promotion are fit for one, by the promotion's uid.
std::map<int, int> HouseShowCrews(const World& world);
/// What a week's house show brings, in dollars; 0 where the crew is too small for one.
int HouseShowIncome(const Promotion& rival, int crew);

// What becomes of rivals' Titles at their Events.

/// Each Title of a rival's that is not suspended: a vacant one finds champions if anybody may hold
/// it, the other changes hands in so many of a hundred defences, the sooner the longer it has not.
/// Draws of a hundred for a defence, then once for who wins.
void DefendRivalTitles(World& world);

}  // namespace grapplemont
