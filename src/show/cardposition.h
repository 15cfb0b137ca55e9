#pragma once

#include "records/world.h"

namespace grapplemont {

/// What his place on the card does to a worker. The numbers may leave 0..100.
struct CardPull {
  int Over = 0;
  int Morale = 0;
};
/// Compares the worker's place with the one that fits, tells the player by mail, and gives what
/// follows for the worker. Draws once; does nothing for a manager or non-wrestler.
CardPull CheckCardPosition(World& world, const Worker& worker);

}  // namespace grapplemont
