#pragma once

#include "records/world.h"

namespace grapplemont {

/// Gives the promotions, Titles, shows, workers and staff of a world of default data other names,
/// bodies and gifts. Who works where, how popular and how dear they are stays; images move by ten
/// points at most. Draws once from World::Life.
void InventWorld(World& world);

}  // namespace grapplemont
