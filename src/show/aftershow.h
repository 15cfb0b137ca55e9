#pragma once

#include "records/world.h"

// What the close of a show does to who was on it too often, or not at all.

namespace grapplemont {

/// Overexposure and rest: Over of who was seen three times and more, Morale of stars who were left
/// at home, and the debuts. Looks at the first `rows` records of match.dat.
void AfterShow(World& world, int rows);
/// An Event's: feuds that it did not use may cool. Draws once for each.
void CoolUnusedFeuds(World& world, const ShowRun& run);
/// An Event's: Titles that were not at stake may lose image. Draws once for each.
void FadeUnusedTitles(World& world);

}  // namespace grapplemont
