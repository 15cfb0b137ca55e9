#pragma once

#include <string>
#include <vector>

#include "records/world.h"
#include "show/score.h"

// A show looked back upon.

namespace grapplemont {

/// The ratings of what has been told, by the rows of the sheet; those still to come have none.
struct RatingsSoFar {
  std::vector<std::string> Rows;
  std::vector<double> Values;
};
RatingsSoFar RatingsOfShow(const World& world);

struct RecapLine {
  int Number = 0;    // the row of the sheet
  std::string What;  // the one line of a sheet, told as a result
  int Rating = 0;
};
struct ShowRecap {
  int Rating = 0;
  std::vector<RecapLine> Lines;
  std::string Best, Worst;     // with their ratings; empty for a show without Segments
  std::vector<ScoreStep> Sum;  // what came into the sum and what was charged, and the mean at last
};
/// Of the show that has just closed. Requires one.
ShowRecap RecapOf(const World& world);

/// A percentage and how it came about, a line a step: "Crowd Reaction 91 =", "76 draw of the two".
std::string WhyText(std::string_view caption, const Score& score);

}  // namespace grapplemont
