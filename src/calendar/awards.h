#pragma once

#include <vector>

#include "records/world.h"

// The awards of the year, given at the end of 31 December, behind its shows. Nothing is drawn:
// whoever reads the same world gives the same awards.

namespace grapplemont {

/// All awards that the year has earned so far, today included, in the order of their kinds. An
/// award that nobody has earned is left out.
std::vector<YearAward> AwardsOfTheYear(const World& world);
/// On 31 December, once: gives them, tells of them by mail, closes the year's book, and notes how
/// everybody stands for the next year. On other days nothing. Requires that the day's shows are
/// over.
void GiveAwards(World& world);
/// How everybody stands now is what the next awards compare with.
void NoteYearEnd(World& world);

}  // namespace grapplemont
