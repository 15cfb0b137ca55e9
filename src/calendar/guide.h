#pragma once

#include <string_view>
#include <vector>

#include "records/world.h"

// The guide through a player's first week: eight steps, which watch what the player does.

namespace grapplemont {

struct GuideLine {
  std::string_view Title, Says;
  bool IsDone;
};

/// Opens the guide of a new game: with a show on television the one, else the other.
void BeginGuide(World& world);
/// Its steps in their order; none without a guide, and once it is closed.
std::vector<GuideLine> GuideLines(const World& world);
/// Marks what is done by now; `screens` are the names of those that lie on the desk.
void WatchGuide(World& world, const std::vector<std::string_view>& screens);
/// For good.
void CloseGuide(World& world);

}  // namespace grapplemont
