#pragma once

#include <vector>

#include "records/world.h"

namespace grapplemont {

/// Somebody who turns in a Segment, and on whom.
struct TurnCall {
  int Turner = 0;  // uids
  int Other = 0;   // 0: on nobody
  friend bool operator==(const TurnCall&, const TurnCall&) = default;
};

/// Everybody who does something in a 1 vs 1 or 2 vs 2 match that can be the occasion of his turn,
/// and whom he does it to; the finish before the aftermath.
std::vector<TurnCall> TurnOccasions(const Segment& segment);

/// Everybody whom the booking makes turn, in order, nobody twice. An angle's box that may stay
/// empty turns only who is waiting to.
std::vector<TurnCall> BookedTurns(const World& world, const Segment& segment);

}  // namespace grapplemont
