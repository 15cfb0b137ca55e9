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

/// Everybody whom the booking makes turn, in order, nobody twice. An angle's box that may stay
/// empty turns only who is waiting to.
std::vector<TurnCall> BookedTurns(const World& world, const Segment& segment);

}  // namespace grapplemont
