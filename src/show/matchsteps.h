#pragma once

#include "show/segmentrun.h"

// What befalls a match's numbers after its scoring, and what the road agent says of it. The order
// is that of the run.

namespace grapplemont {

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
