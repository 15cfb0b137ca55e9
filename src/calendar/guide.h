#pragma once

#include <string_view>
#include <vector>

#include "records/world.h"

// The guide to a player's first show: eight steps, which watch what the player does.

namespace grapplemont {

struct GuideLine {
  std::string_view Page, Title, Says;
  bool IsDone;
};

/// Opens the guide of a new game: with a show on television the one, else the other.
void BeginGuide(World& world);
/// Its steps in their order; none without a guide, and once it is closed.
std::vector<GuideLine> GuideLines(const World& world);
/// What a page says of the guide: the next step when the page is what that is about, else the one
/// before it, which opening the page may just have done. Empty for any other page.
std::string GuideOnPage(const World& world, std::string_view screen);
/// Marks what is done by now; `screens` are the names of those that lie on the desk.
void WatchGuide(World& world, const std::vector<std::string_view>& screens);
/// For good.
void CloseGuide(World& world);

}  // namespace grapplemont
