#pragma once

#include <string>

#include "records/world.h"

// The stranger who cannot bear that the player is alone at the top.

namespace grapplemont {

/// Whether the player's promotion is the only Global one.
bool IsAloneAtTheTop(const World& world);
/// Draws once, when the player has been alone at the top at five month ends and nothing ends the
/// game; then the stranger waits.
void AwaitStranger(World& world);

/// What the stranger says when they meet, a paragraph a line.
std::string StrangersWords(const World& world);
/// He founds his promotion with his own money, is its owner and buys stars for it wherever they
/// work, by a draw each from the most popular down; the game goes on. Nothing but that
/// where no promotion fits into the world any more.
void MeetStranger(World& world);

}  // namespace grapplemont
