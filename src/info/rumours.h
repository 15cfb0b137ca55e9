#pragma once

#include <string>
#include <vector>

#include "info/infowords.h"
#include "records/world.h"

// What is whispered. Every rumour is true; only the one who tells it is not sure.

namespace grapplemont {

struct Rumour {
  Whisper Is;
  std::string Words;
};

/// All that can be heard, the same words all month long while they are true; no more than
/// kMostOfAKind of a kind.
std::vector<Rumour> RumoursOf(const World& world);

}  // namespace grapplemont
