#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// What may follow the end of a career: the world goes on, and so does its past.

namespace grapplemont {

/// The rivals that have a chair for whoever was let go: none is bigger than the promotion that was
/// left. In the order of the file.
std::vector<const Promotion*> ChairsAfterTheEnd(const World& world);

/// The career goes on in another chair; the promotion that was left is a rival from now on.
void TakeChair(World& world, const Promotion& promotion);
/// A new name begins a career of its own from today: without former jobs, and with the reputation
/// of a beginner. The old name changes nothing. Requires a name.
void GoOnAs(World& world, std::string_view name);

/// Founds a promotion for the player and takes its chair. Requires that WhyNotFound of
/// rivals/founding.h says nothing.
void FoundAndLead(World& world, std::string_view name, std::string_view initials);

}  // namespace grapplemont
