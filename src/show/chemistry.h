#pragma once

#include <string>
#include <vector>

#include "show/segmentrun.h"

// Teams that have been together for long make a better match.

namespace grapplemont {

struct Chemistry {
  int Level = 0;  // of all teams in the match together
  std::vector<std::string> Teams;
};

/// Of the teams whose two members are a side of the match; tag matches of two, three or four teams
/// only.
Chemistry ChemistryOf(const World& world, const Segment& segment);
/// Draws twice, quality first; not at all at level 0.
void AddChemistry(SegmentRun& run, const Chemistry& chemistry);

}  // namespace grapplemont
