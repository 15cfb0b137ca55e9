#pragma once

#include <string>

#include "records/world.h"

// What the board has to say to the player beside its monthly trends.

namespace grapplemont {

/// From this image on a rise of class is in sight, below that one a fall.
inline constexpr int kRiseInSight = 90, kFallInSight = 15;

/// The size class that the promotion's image brings into sight, above or below its own; 0 for none.
int ClassInSight(const Promotion& promotion);

/// Who writes for the board of the player's promotion: its owner, or "The Board".
std::string VoiceOfBoard(const World& world);

/// A mail on the morning after a rise of class has come into sight, and a warning while a fall is;
/// none within thirty days of the last warning.
void BoardWarning(World& world);

}  // namespace grapplemont
