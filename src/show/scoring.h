#pragma once

#include "show/segmentrun.h"

// How good a Segment is: the three percentages, step by step. Every product is floored at once.

namespace grapplemont {

/// What a worker gives to Match Quality; by skill, morale, stiffness and condition.
int WorkRating(const Worker& worker);
/// What a worker gives to the crowd's reaction in a match, and in an interview or angle.
int DrawRating(const Worker& worker);
int TalkRating(const Worker& worker);
/// The skill that counts: the one strictly above both others, else Brawl.
int BestSkill(const Worker& worker);
/// Weighs quality and crowd: the crowd counts for more where it is the stronger.
int WeighRating(int quality, int crowd);

// Each fills Quality and Crowd from the Segment and does what goes with it to the feuds.
void ScoreMatch(SegmentRun& run);
void ScoreInterview(SegmentRun& run);
void ScoreAngle(SegmentRun& run);

/// A told Segment: everything a spectator reads of it.
struct ToldSegment {
  Score Quality, Crowd, Overall;
  std::string Notes;   // of the road agent
  std::string Report;  // prose
  std::string Verdict;
};

class LineMemory;
/// Runs record `number` of match.dat in the show under way: scores it, tells it, changes what it
/// changes, adds it to the show's sum and writes its rating. `memory` is nullptr for a run without
/// prose.
ToldSegment RunSegment(World& world, int number, LineMemory* memory);

}  // namespace grapplemont
