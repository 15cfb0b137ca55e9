#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// The parts into which the player divides the roster: up to four, each by its name. Each act has a
// check that says why it cannot be; empty when it can.

namespace grapplemont {

/// Places 1 to 4.
inline constexpr int kSplits = 4;

/// The name of the place's split; empty for none.
std::string SplitName(const Promotion& promotion, int place);
/// How many of its people the split holds.
int PeopleInSplit(const World& world, std::string_view split);

/// A name for the place: a new split's, or another for the one that is there.
std::string WhyNotSplitName(const World& world, int place, std::string_view name);
/// A new split begins empty; a renamed one keeps its people. Requires a name that can be had.
void NameSplit(World& world, int place, std::string_view name);
/// Its people are in none then.
void DissolveSplit(World& world, int place);

}  // namespace grapplemont
