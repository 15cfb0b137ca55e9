#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// How risky the product may be, and who would not bear it.

namespace grapplemont {

/// A partner of the player's and the highest risk that it bears.
struct RiskLimit {
  std::string Who;   // "Friday Fire", "Gulp"
  std::string What;  // "Television, Prime Time on Nine", "Main sponsor"
  int Limit;
  std::string Otherwise;  // what happens above it
};
/// Of the player's television shows and sponsors, in the order of their files.
std::vector<RiskLimit> RiskLimits(const World& world);

/// Of how many that are there to be had a product of this risk can be had by how many.
struct RiskMarket {
  int Sponsors = 0, SponsorsThatBear = 0;
  int Slots = 0, SlotsThatBear = 0;  // a network has four
};
RiskMarket MarketFor(const World& world, int risk);

/// "For the whole family" and so on.
const char* RiskText(int risk);

}  // namespace grapplemont
