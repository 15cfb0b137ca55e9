#pragma once

#include "records/world.h"
#include "rivals/rivals.h"

// Which class a rival thinks its own, and how it keeps to it.

namespace grapplemont {

/// Whether it could live in the class above: that has room, a fair sum is in hand, and its ten best
/// stand comparison with the ten best of those who are there.
bool IsReadyToRise(const World& world, const Promotion& rival);
/// Whether its ten best stand comparison with those of its own class; of whoever is alone there
/// they do.
bool IsAtHome(const World& world, const Promotion& rival);

/// A rival near a rise for which it is not ready gives places on the card to newcomers, or parts
/// with its most popular; one near a fall that is at home where it is keeps the card to its names.
/// Each week this many come for as many who go, and the roster stays as large as it was. No draws.
void MindTheCard(World& world, const Promotion& rival, Rosters& rosters);

}  // namespace grapplemont
