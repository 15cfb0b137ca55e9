#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// What somebody who chooses a promotion for a new game wants to know beside its records.

namespace grapplemont {

/// A promotion that can be chosen. Requires that the world stands.
struct Chair {
  const Promotion* Of = nullptr;
  int Strength = 0;   // the mean Over of its ten best who wrestle, 0 for nobody
  int Burdens = 0;    // 0 to 4: how many of the things in WhatBurdensAChair hold
  std::string Why;    // those, in words, and what it has instead of the others
  std::string Story;  // who draws the crowd, and what is at stake
};
/// Every promotion that has not ceased to exist, in the order of the file.
std::vector<Chair> ChairsOf(const World& world);

/// "Easy" to "Desperate", by burdens.
std::string_view ChairText(int burdens);
inline constexpr const char* kWhatBurdensAChair =
    "A job is harder for each of these: less than half the money that its size has on the "
    "average, a roster four points weaker than its size's, an image below 20%, no television.";

/// What this difficulty changes, a line each, from the rules themselves.
std::vector<std::string> WhatDifficultyChanges(int difficulty);

}  // namespace grapplemont
