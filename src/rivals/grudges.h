#pragma once

#include "records/world.h"

// Who is after whom at a rival's. The player's feuds are records of another kind: nothing here
// touches them.

namespace grapplemont {

/// The grudge of a worker there; nullptr for none. Nobody has two.
Grudge* GrudgeOf(World& world, int promotionUid, int workerUid);
const Grudge* GrudgeOf(const World& world, int promotionUid, int workerUid);
/// Whom they are after.
int OpponentIn(const Grudge& grudge, int workerUid);

/// Begins today, unless one of them has a grudge already or the promotion has as many as it can
/// tell of. True if it has begun.
bool BeginGrudge(World& world, const Promotion& rival, int one, int two, GrudgeReason why);
/// They are even: the grudge is over, and the last word was the winner's.
void SettleGrudge(World& world, const Promotion& rival, int winner, int loser);
/// A week later: each is a little cooler, and one that is cold or whose people have parted ends.
void CoolGrudges(World& world);

}  // namespace grapplemont
