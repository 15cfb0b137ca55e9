#pragma once

#include <array>

#include "show/segmentrun.h"

// How good an interview or angle is.

namespace grapplemont {

// Each fills Crowd from the Segment and does what goes with it to the feuds.
void ScoreInterview(SegmentRun& run);
void ScoreAngle(SegmentRun& run);

/// No angle is better than the player's writers, if there are any.
void CapByWriters(SegmentRun& run);
/// The overall rating: most of the crowd, and a draw.
void RateTalk(SegmentRun& run);

// How the 79 angles are scored: whose talk counts, whose feud it touches, who attacks whom.

/// Who an angle's numbers stand for beside its places 1 to 4.
inline constexpr int kLeader = 9;  // of the stable in Segment.Text
inline constexpr int kGuest = 10;  // no Worker, and as good as they come

/// Which feud lifts the crowd, and whether its heat follows.
enum class AngleFeud {
  None,
  Pair,       // of the first two people, and the heat follows
  Teams,      // of the first two against the other two, and the heat follows
  TeamsLift,  // the same, and the heat stays
};

struct AngleTally {
  int From = 0;  // places, or kLeader
  int Against = 0;
};

struct AngleScore {
  std::array<int, 20> Numbers;
  std::array<int, 4> People;  // whose mean it is
  AngleFeud Feud = AngleFeud::None;
  std::array<AngleTally, 4> Tallies = {};
};

/// nullptr for a number that is no angle.
const AngleScore* FindAngleScore(int number);
/// Angles that the production carries, those that suffer from whoever is no diva, and spectacles.
bool IsVideo(int number);
bool IsForDivas(int number);
bool IsSpectacle(int number);

}  // namespace grapplemont
