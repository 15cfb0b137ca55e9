#pragma once

#include <string>
#include <vector>

#include "calendar/advanceday.h"

// What wants looking at when the day begins.

namespace grapplemont {

/// How far the card of a coming show is, today's as it is booked and a later one as it is drafted,
/// of the segments it needs: "5 of 8". Empty for a show that cannot be drafted yet.
std::string BookedText(const World& world, const Appointment& show);
/// What is to be done on a show day: "Tonight: Friday Fire, 3 of 3 matches, 5 of 7 segments.";
/// empty on another.
std::string TonightText(const World& world);

/// The player's Titles that somebody holds, the finest first.
std::vector<const Title*> HeldTitles(const World& world);
/// The player's feuds, the hottest first.
std::vector<const Feud*> HottestFeuds(const World& world);

/// Out with an injury, or away for another reason.
bool IsAway(const Worker& worker);
/// Of a morale that wants looking at.
bool IsUnhappy(const Worker& worker);

// The player's workers, those who want it most first; twenty at most.

/// Who is hurt or away for another reason, then who is worn.
std::vector<const Worker*> HurtAndWorn(const World& world);
std::vector<const Worker*> Unhappy(const World& world);
/// Whose contracts end within half a year.
std::vector<const Worker*> ContractsThatEnd(const World& world);

/// How many of each: "2 hurt or worn, nobody unhappy, no contract ends soon."
std::string PeopleText(const World& world);

}  // namespace grapplemont
