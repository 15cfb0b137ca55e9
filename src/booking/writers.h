#pragma once

#include "records/world.h"

namespace grapplemont {

/// How many writers a promotion needs before it can use angles, with this many television shows.
int WritersNeeded(int shows);
/// The player's writers, and his television shows.
int PlayerWriters(const World& world);
int PlayerShows(const World& world);
/// Whether they can write an angle: for an Event any writer will do.
bool EnoughWriters(const World& world, bool isEvent);

}  // namespace grapplemont
