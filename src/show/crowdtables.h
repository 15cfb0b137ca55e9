#pragma once

#include <array>

#include "records/arithmetic.h"

// How many people a promotion draws, by size and image.

namespace grapplemont {

/// By tenths of the image, from below 10 to 90 up.
struct CrowdRow {
  std::array<int, 10> Base;
  std::array<int, 10> Draw;
};

using CrowdsBySize = std::array<CrowdRow, 6>;

/// By Event.Type from 1 pay-per-view to 4 small, then by size from Global to Backyard. All 0 where
/// a promotion is too small to hold such an Event.
extern const std::array<CrowdsBySize, 4> EventCrowds;
extern const CrowdsBySize TvCrowds;

}  // namespace grapplemont
