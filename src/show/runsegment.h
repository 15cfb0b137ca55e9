#pragma once

#include <string>
#include <vector>

#include "report/report.h"
#include "show/segmentrun.h"

// A Segment of a show from its scoring to what it changes.

namespace grapplemont {

/// A told Segment: everything a spectator reads of it.
struct ToldSegment {
  Score Quality, Crowd, Overall;
  std::string Notes;   // of the road agent
  std::string Report;  // prose
  std::string Verdict;
  std::vector<SaidSentence> Sentences;  // of the report
};

/// Its percentages, by what they are called.
struct ToldFigure {
  const char* Name;
  Score ToldSegment::*Of;
};
inline constexpr ToldFigure kToldFigures[] = {{"Match Quality", &ToldSegment::Quality},
                                              {"Crowd Reaction", &ToldSegment::Crowd},
                                              {"Overall Rating", &ToldSegment::Overall}};

/// Runs record `number` of match.dat in the show under way: scores it, tells it, changes what it
/// changes, adds it to the show's sum and writes its rating. `memory` is nullptr for a run without
/// prose.
ToldSegment RunSegment(World& world, int number, LineMemory* memory);

/// With a match's score: wear, morale and card position of everybody, Over by the result, the
/// tallies of feuds, the end of a feud, injuries.
void MatchConsequences(SegmentRun& run);

}  // namespace grapplemont
