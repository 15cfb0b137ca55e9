#pragma once

#include "show/segmentrun.h"

// What a Segment does to its people's Over, and what else an angle moves.

namespace grapplemont {

/// Applies a change to the worker's Over, held to 0..100, and gives what came of it.
int ChangeOver(Worker& worker, int change);
/// The same, and tells it in the notes as a Segment of its kind does.
void ChangeOverAndTell(SegmentRun& run, Worker& worker, int change);

/// One sentence behind a worker's name in the notes; nothing for a change of 0.
void ReportOver(SegmentRun& run, const Worker& worker, int change, bool isMatch);

/// Over by the result of a 1 vs 1 match.
void ShiftOverSingles(SegmentRun& run, Worker& winner, Worker& loser);
/// Over by the result of a 2 vs 2 match.
void ShiftOverTeams(SegmentRun& run, Worker& winner1, Worker& winner2, Worker& loser1,
                    Worker& loser2);
/// The one that the match asks for; nothing for a draw and for other styles.
void ShiftOver(SegmentRun& run);

/// Over of one who spoke in an interview or angle, by its final rating. Who only
/// stands by (secondary) gains and loses less.
void TalkOver(SegmentRun& run, Worker& worker, bool isSecondary);

/// The same for everybody who spoke; managers, stables and Titles that an angle moves.
void TalkConsequences(SegmentRun& run);

}  // namespace grapplemont
