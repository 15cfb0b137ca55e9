#pragma once

#include <string>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// One thing that makes a promotion worth more or less.
struct WorthLine {
  std::string What;
  std::string Why;  // how the dollars came about
  long long Dollars;
};

/// What a buyer would look at, in a fixed order; a line that comes to nothing says so. The worth is
/// the sum of the lines.
std::vector<WorthLine> PromotionWorth(const World& world, const Promotion& promotion);
long long SumOf(const std::vector<WorthLine>& lines);

}  // namespace grapplemont
