#pragma once

#include "rivals/rivals.h"

// The house show that every rival holds in a week, out of sight.

namespace grapplemont {

/// How many wrestlers of each promotion are fit for one.
using HouseShowCrews = ByPromotion<int>;
HouseShowCrews CrewsFor(const World& world);
/// What a week's house show brings, in dollars; 0 where the crew is too small for one.
int HouseShowIncome(const Promotion& rival, int crew);
/// Every rival with a crew for it holds one: money comes in, the crew tires, a card is left. Draws
/// of World::Life for each of the crew, and those of the card.
void HoldHouseShows(World& world, const HouseShowCrews& crews);

}  // namespace grapplemont
