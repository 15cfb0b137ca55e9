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

/// What a rival has in mind with its card: near a rise for which it is not ready it would stay
/// below; near a fall, where it is at home, it would stay up.
enum class Aim { None, StayBelow, StayUp };
Aim AimOf(const World& world, const Promotion& rival, const Rosters& rosters);
/// Whether somebody is in the way of the aim when their contract ends: one of the stars of a
/// promotion that lives by television and would stay below, or one in the last place that counts
/// where it would stay up.
bool IsInTheWay(const World& world, const Promotion& rival, Aim aim, const Worker& worker);

/// A rival that would stay below gives the places of those who are the first to go anyway, as long
/// as they stand below the card, to the least popular who count on it; so many a week, and the
/// roster stays as large as it was. No draws.
void MindTheCard(World& world, const Promotion& rival, Rosters& rosters);

}  // namespace grapplemont
