#pragma once

#include <array>
#include <string>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// So many matches a feud needs to be one of the year's; as many of the best count.
inline constexpr int kFewestFeudMatches = 3;

/// A feud's matches of the year.
struct FeudYear {
  std::array<int, 4> Parties{};  // uids, as in HeldMatch.Feud
  std::vector<int> Ratings;      // the best first
  int Best = 0;                  // the sum of the best that count
};

/// The feuds that were fought from one day to the one before another.
std::vector<FeudYear> FeudYears(const World& world, Day from, Day until);
/// "Ada Lane vs Bo Reed"; pairs by their teams' names where they have any.
std::string FeudName(const World& world, const FeudYear& feud);

}  // namespace grapplemont
