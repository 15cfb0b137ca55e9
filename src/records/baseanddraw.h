#pragma once

#include "records/world.h"

namespace grapplemont {

/// An amount of chance: a base and the size of the draw on top of it. Nothing is drawn for a Draw
/// of 0.
struct BaseAndDraw {
  int Base = 0;
  int Draw = 0;
};

/// The base and one draw.
inline int Drawn(World& world, BaseAndDraw amount) {
  return amount.Draw == 0 ? amount.Base : amount.Base + world.RandomDraw(amount.Draw);
}

/// What comes out on average, rounded down.
constexpr int Mean(BaseAndDraw amount) {
  return amount.Draw == 0 ? amount.Base : amount.Base + (amount.Draw + 1) / 2;
}

}  // namespace grapplemont
