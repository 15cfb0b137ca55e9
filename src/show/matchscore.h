#pragma once

#include <string>
#include <vector>

#include "show/segmentrun.h"

// How good a match is, and what befalls its numbers afterwards.

namespace grapplemont {

/// Fills Quality and Crowd from the match and does what goes with it to the feuds.
void ScoreMatch(SegmentRun& run);

/// Teams that have been together for long make a better match.
struct Chemistry {
  int Level = 0;  // of all teams in the match together
  std::vector<std::string> Teams;
};

/// Of the teams whose two members are a side of the match; tag matches of two, three or four teams
/// only.
Chemistry ChemistryOf(const World& world, const Segment& segment);
/// Draws twice, quality first; not at all at level 0.
void AddChemistry(SegmentRun& run, const Chemistry& chemistry);
/// Such teams have one match more behind them.
void GainTeamExperience(SegmentRun& run);

// After the scoring, in the order of the run, with what the road agent says of it.

/// Remarks on workers who are in bad shape or in no mood; no number moves.
void RemarkOnShape(SegmentRun& run);
/// Losers who sold nothing for those whom the match was to put over.
void AddSelling(SegmentRun& run);
/// Stiff workers hurt the others, soft ones cost the match.
void AddStiffness(SegmentRun& run);

/// A Title match without its champion leaves the crowd cold. Nothing without a Title.
void CheckChampion(SegmentRun& run, const Title* title);

/// A crowd still pumped up from the match before; remembers this match's crowd for the next.
void AddBurnOut(SegmentRun& run);
/// The overall rating by the weights of the two others, on a flat night less.
void WeighMatch(SegmentRun& run);

}  // namespace grapplemont
