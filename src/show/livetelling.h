#pragma once

#include <span>
#include <string_view>

#include "records/world.h"

// How the player has the shows told (telling.dat).

namespace grapplemont {

/// How fast a report that is told live goes on by itself.
struct TellingPace {
  std::string_view Name;  // "Slow"
  int PerWord = 0;        // milliseconds; 0: it waits for its reader
};
/// In the order of TellingHabit.Pace.
std::span<const TellingPace> TellingPaces();

/// Reports appear sentence by sentence. False in a slot that has never been asked, and in one that
/// a later program has set.
bool TellsLive(const World& world);
void SetTellsLive(World& world, bool live);

/// The row of TellingPaces, from 0.
int PaceOfTelling(const World& world);
void SetPaceOfTelling(World& world, int pace);

/// Milliseconds until what comes behind these words: as long as it takes to read them at the pace,
/// and some more where a breath is held. 0: never by itself.
int WaitBehind(std::string_view words, bool holdsBreath, int pace);

}  // namespace grapplemont
