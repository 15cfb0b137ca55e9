#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// How a show of the player's went, week by week, the oldest first.
struct TvPast {
  std::vector<std::string> Days;  // "09/03"
  std::vector<double> Ratings;    // 2.5 for a rating of 2.50
  std::vector<double> Attendance;
};
/// A year at most. What was called off had neither viewers nor guests and is left out.
TvPast TvPastOf(const World& world, std::string_view show);

}  // namespace grapplemont
