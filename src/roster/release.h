#pragma once

#include "records/world.h"

namespace grapplemont {

/// The worker leaves the player's roster: contract, stable, manager, clients, feuds, Titles and
/// commentary end. Draws of 3; on a 1 the market reacts, and a rival who can pay him may sign him
/// on the spot.
void ReleaseWorker(World& world, Worker& worker);
/// The same without the market: he leaves whoever employs him, and nothing is drawn. A Title that
/// he held loses a tenth of its image.
void PartWith(World& world, Worker& worker);

}  // namespace grapplemont
