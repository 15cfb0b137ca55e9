#pragma once

#include "records/world.h"
#include "rivals/rivals.h"

// Which class a rival thinks its own, and how it keeps to it.

namespace grapplemont {

/// Whether it could live in the class above: that has room, a fair sum is in hand, and its ten best
/// stand comparison with the ten best of those who are there. Where nobody is there, it could.
bool IsReadyToRise(const World& world, const Promotion& rival, const Rosters& rosters);
/// Whether its ten best stand comparison with those of its own class, and that is not too full; of
/// whoever is alone there they do.
bool IsAtHome(const World& world, const Promotion& rival, const Rosters& rosters);

/// What a rival has in mind: near a rise for which it is not ready it would stay below; near a
/// fall, where it is at home, it would stay up. Its house shows see to either, and whoever would
/// stay below hunts for nobody.
enum class SizeAim { None, StayBelow, StayUp };
SizeAim SizeAimOf(const World& world, const Promotion& rival, const Rosters& rosters);

}  // namespace grapplemont
