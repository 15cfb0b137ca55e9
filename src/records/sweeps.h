#pragma once

#include <string_view>

#include "records/world.h"

// What removes the records of the gone. A Promotion or Show that has ceased to exist carries "To Be
// Deleted" as its name until the day's end.

namespace grapplemont {

/// Removes every Promotion marked as gone; the numbers of all that follow change.
void CompactPromotions(World& world);
/// Removes the first show of that name, and only that one. True if there was one.
bool RemoveShow(World& world, std::string_view name);
/// Removes every show marked as gone.
void SweepDeadShows(World& world);
/// Ends every Promotion marked as gone: its people go free, its shows are marked as gone, its
/// sponsors, Events, Titles and Stables lose their owner; then the file is compacted.
void SweepDeadPromotions(World& world);

}  // namespace grapplemont
