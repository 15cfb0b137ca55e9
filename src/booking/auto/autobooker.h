#pragma once

#include <string>
#include <vector>

#include "booking/wizard/roster.h"

namespace grapplemont {

/// What a sheet offers and asks for before the show can start.
struct SheetTerms {
  int OpenRows = 0;  // records 1 to this can be booked
  int MinMatches = 0;
  int MinSegments = 0;
  int BestMatches = 0;  // how many of the rows the auto booker fills with matches
};
/// Of a television show by its time slot: Primetime, Early, Late and Graveyard.
inline constexpr SheetTerms kTvTerms[] = {{11, 4, 8, 6}, {8, 3, 7, 5}, {6, 3, 6, 4}, {5, 2, 5, 3}};
/// Of an Event. Its dark match is one of the seven and counts for nothing in what it needs.
inline constexpr SheetTerms kEventTerms = {9, 4, 6, 7};

/// A card that the auto booker proposes.
struct AutoCard {
  std::vector<Segment> Rows;         // a record of match.dat each, in order
  std::vector<std::string> Reasons;  // why each is there; empty for what was booked before
  std::vector<std::string> Missing;  // what the roster could not fill; empty for a full card
};

/// Books what is still empty of the sheet in match.dat, within its open rows (`openRows` of them);
/// what is booked stays. Draws from World::RandomDraw.
AutoCard AutoBook(World& world, bool isEvent, int openRows);

}  // namespace grapplemont
