#pragma once

#include <string>
#include <vector>

#include "show/holdshow.h"

namespace grapplemont {

/// What a rating may come to.
struct Forecast {
  int Low = 0, High = 0;
  friend bool operator==(const Forecast&, const Forecast&) = default;
};

/// What match.dat as it stands may come to, from rehearsals on a copy of the world; neither the
/// world nor its draws move.
struct ShowForecast {
  std::vector<Forecast> Rows;         // a row each; 0 to 0 for an empty one
  Forecast Rating;                    // of the show
  std::vector<std::string> Warnings;  // what would hurt it
};
ShowForecast ForecastShow(const World& world, bool isEvent, const CommentaryTeam& team);

}  // namespace grapplemont
