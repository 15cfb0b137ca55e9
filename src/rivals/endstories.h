#pragma once

#include <string>

#include "records/world.h"

// How a career ends: GameInfo.EndCode, and what the papers make of it.

namespace grapplemont {

struct EndStory {
  std::string Headline;
  std::string Body;
  std::string SignedBy;
};
/// The story of the player's end, by its code 1 to 9.
EndStory StoryOfTheEnd(const World& world, int endCode);
/// The career in figures, a line each.
std::string CareerInFigures(const World& world);

}  // namespace grapplemont
