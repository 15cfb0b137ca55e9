#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace grapplemont {

/// The candidate that `name` was probably meant to be: the fewest letters put in, left out,
/// exchanged or swapped with their neighbour, small and capital letters all but alike; the first
/// among equals. Empty without candidates.
std::string_view Nearest(std::string_view name, const std::vector<std::string_view>& candidates);

/// "; did you mean CWA?", "; the nearest is CWA" where it takes a stretch, or nothing.
std::string DidYouMean(std::string_view name, const std::vector<std::string_view>& candidates);

}  // namespace grapplemont
