#pragma once

#include "records/world.h"
#include "roster/staff.h"

namespace grapplemont {

/// The player's writers, and his television shows.
int PlayerWriters(const World& world);
int PlayerShows(const World& world);
/// Whether they can write an angle: for an Event any writer will do.
bool EnoughWriters(const World& world, bool isEvent);

}  // namespace grapplemont
