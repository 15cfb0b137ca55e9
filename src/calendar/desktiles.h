#pragma once

#include <array>
#include <string>

#include "records/world.h"

// The figures that stand above the desk.

namespace grapplemont {

/// A figure, and what it has done or has before it.
struct DeskTile {
  std::string Says, About;
  int Trend = 0;         // below 0 for what wants care, above 0 for what went well
  std::string Why = {};  // its steps, where they are noted
};
/// Money, image, standing, mail, people.
std::array<DeskTile, 5> DeskTiles(const World& world);

}  // namespace grapplemont
