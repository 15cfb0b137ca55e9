#pragma once

#include <string>
#include <vector>

#include "show/holdshow.h"
#include "show/runsegment.h"

namespace grapplemont {

/// Below this condition somebody is tired, and careless in the ring.
inline constexpr int kTiredBelow = 60;

/// What no forecast reckons with, as it is said beside each.
inline constexpr const char* kLuckLeftOut =
    "One night in eight is flat: every match loses a tenth then, which no forecast reckons with.";
static_assert(kFlatNightOdds == 8);

/// What a rating may come to.
struct Forecast {
  int Low = 0, High = 0;
  friend bool operator==(const Forecast&, const Forecast&) = default;
};

/// What match.dat as it stands may come to, from rehearsals on a copy of the world; neither the
/// world nor its draws move. Chance is the same for the same Segment wherever it stands, so that a
/// row's forecast moves only with what the other rows do to it. That the night may be flat is left
/// out: it would make every range too wide to book by.
struct ShowForecast {
  std::vector<Forecast> Rows;         // a row each; 0 to 0 for an empty one
  Forecast Rating;                    // of the show
  std::vector<std::string> Warnings;  // what would hurt it
};
ShowForecast ForecastShow(const World& world, bool isEvent, const CommentaryTeam& team);
/// One row of it, and the rehearsal of the middle rating with all its steps.
struct RowForecast {
  Forecast Rating;
  ToldSegment Typical;
};
/// The same of match.dat with another Segment in one of its records: what the row may come to.
RowForecast ForecastRow(const World& world, bool isEvent, int record, const Segment& segment);

}  // namespace grapplemont
