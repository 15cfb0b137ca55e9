#pragma once

#include "records/world.h"

// The card of every show that a rival holds: who meets whom, who wins, what it was worth. Nothing
// of it moves what the show does for the promotion; its Titles change hands here alone.

namespace grapplemont {

/// Whether they can be in a match tonight.
bool IsFit(const Worker& worker);

/// Today's show, from those who are fit. Titles are fought for, always at an Event and now and then
/// elsewhere; grudges are carried on; the card is kept, and the oldest cards make room for it.
/// Draws from World::Life alone.
void HoldCard(World& world, const Promotion& rival, UnseenShow show);

}  // namespace grapplemont
