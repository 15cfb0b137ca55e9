#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// The workers of other promotions and of the market whom the player keeps an eye on.

namespace grapplemont {

bool IsShortlisted(const World& world, int workerUid);
/// Those who are still in the world, in the order in which they were noted.
std::vector<const Worker*> Shortlisted(const World& world);
/// Why he cannot be noted; empty when he can.
std::string WhyNotShortlist(const World& world, const Worker& worker);
/// Takes the first free place, or that of somebody who has left the world.
void AddToShortlist(World& world, int workerUid);
void RemoveFromShortlist(World& world, int workerUid);
/// Where he works and how long he is bound, in a sentence.
std::string MarketStanding(const World& world, const Worker& worker);

}  // namespace grapplemont
