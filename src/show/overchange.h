#pragma once

#include "show/segmentrun.h"

// What a Segment does to its people's Over, and what else an angle moves.

namespace grapplemont {

/// Applies a change to the worker's Over, held to 0..100, and gives what came of it.
int ChangeOver(Worker& worker, int change);
/// The same, and tells it in the notes.
void ChangeOverAndTell(SegmentRun& run, Worker& worker, int change, const std::string& why);

/// One sentence behind a worker's name in the notes, and a step for the morning after; nothing for
/// a change of 0.
void ReportOver(SegmentRun& run, const Worker& worker, int change, const std::string& why);

/// Over by the result of a 1 vs 1 or 2 vs 2 match; nothing for a draw and for other styles.
void ShiftOver(SegmentRun& run);

// Talk against the speaker's Over: the most that it gains, by draws, how far below it begins to
// cost, and what it costs at least.
inline constexpr int kSensationalTalk = 4, kGoodTalk = 3;
inline constexpr int kTalkBelow = 15, kPoorTalk = 2;

/// Over of everybody who spoke in an interview or angle; managers, stables and Titles that an angle
/// moves.
void TalkConsequences(SegmentRun& run);

}  // namespace grapplemont
