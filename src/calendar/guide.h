#pragma once

#include <string_view>
#include <vector>

#include "records/world.h"

// The guide to a player's first show: eight steps, which watch what the player does.

namespace grapplemont {

struct GuideLine {
  std::string_view Page, Title, Says;
  bool IsDone;
  bool IsOfShow;  // comes with the show, whatever before it has been left out
};

/// Opens the guide of a new game: with a show on television the one, else the other.
void BeginGuide(World& world);
/// Its steps in their order; none without a guide, and once it is closed.
std::vector<GuideLine> GuideLines(const World& world);
/// The place of the step that comes next, from 0: once the show's own have begun the next of them,
/// then what was left out; as many as there are when all is done.
std::size_t NextStep(const std::vector<GuideLine>& lines);
/// What a page says of the guide: the first step about it that is not done, else `justDone` if that
/// is about it: the number of the step that opening it has done, 0 for none. Empty for any other.
std::string GuideOnPage(const World& world, std::string_view screen, int justDone);
/// Marks what is done by now; `screens` are the names of those that lie on the desk. Gives the
/// number of the last step that has come to be done, 0 for none.
int WatchGuide(World& world, const std::vector<std::string_view>& screens);
/// For good.
void CloseGuide(World& world);

}  // namespace grapplemont
