#pragma once

#include "records/world.h"

// Who comes to the market from nowhere, and who gives up waiting there.

namespace grapplemont {

/// A month's: somebody whom nobody has wanted for long gives up and a rookie takes their place, and
/// more rookies come while few are free. Draws from the world's life.
void FindNewTalent(World& world);
/// The one free worker who would give up next; nullptr while few are free. Nobody on the player's
/// shortlist does, no woman while women are few, and none but lightweights while they are many.
Worker* NextToGiveUp(World& world);

}  // namespace grapplemont
