#pragma once

#include <span>
#include <string>
#include <vector>

#include "records/world.h"

// Who is at the top of the wrestling world, and of what.

namespace grapplemont {

struct RankFigure {
  double Number = 0;  // what it is ordered by
  std::string Text;
};
struct RankRow {
  std::string Name, House;  // whose
  RankFigure First, Second;
};
/// A list of the best, the first figure deciding.
struct Ranking {
  const char* Title;
  const char* What;            // heads the names
  const char *First, *Second;  // head the figures
  std::vector<RankRow> (*Rows)(const World& world);
};
std::span<const Ranking> Rankings();
/// Its rows from the top, a hundred at most.
std::vector<RankRow> RowsOf(const World& world, const Ranking& ranking);

}  // namespace grapplemont
