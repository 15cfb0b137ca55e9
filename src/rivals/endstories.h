#pragma once

#include <string>

#include "records/world.h"

// How a career ends: GameInfo.EndCode, and what the papers make of it.

namespace grapplemont {

enum EndOfCareer { kEndLoan = 1, kEndBankrupt, kEndBoard };

struct EndStory {
  std::string Headline;
  std::string Body;
  std::string SignedBy;
};
/// Whether the game's EndCode, 1 to 9, ends the career.
bool HasEnded(const GameInfo& game);
bool HasEnded(const World& world);
/// The story of the player's end, by its code 1 to 9.
EndStory StoryOfTheEnd(const World& world, int endCode);
/// The career in figures, a line each.
std::string CareerInFigures(const World& world);

}  // namespace grapplemont
