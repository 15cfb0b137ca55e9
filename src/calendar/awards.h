#pragma once

#include <vector>

#include "records/world.h"

// The awards of the year, given on 31 December for the twelve months that ended the day before.
// Nothing is drawn: whoever reads the same world gives the same awards.

namespace grapplemont {

/// All awards that the world has earned, as they would be given today, in the order of their kinds.
/// An award that nobody has earned is left out.
std::vector<YearAward> AwardsOfTheYear(const World& world);
/// On 31 December: gives them, tells of them by mail, closes the year's book, and notes how
/// everybody stands for the next year. On other days nothing.
void GiveAwards(World& world);
/// How everybody stands now is what the next awards compare with.
void NoteYearEnd(World& world);

}  // namespace grapplemont
