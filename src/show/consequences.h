#pragma once

#include "show/segmentrun.h"

// What a Segment changes: people, Titles, feuds, teams. Each is told in the run's notes or by mail.

namespace grapplemont {

/// With a match's score: wear, morale and card position of everybody, Over by the result, the
/// tallies of feuds, the end of a feud, injuries.
void MatchConsequences(SegmentRun& run);
/// A stiff worker hurts the others of his match.
void HurtOthers(SegmentRun& run, const Worker& stiff);
/// Teams that were in the match have one match more behind them.
void GainTeamExperience(SegmentRun& run);
/// The Title at stake goes to its new holders, if the result takes it there.
void ChangeTitle(SegmentRun& run);
/// The turns that the booking asks for; may move the crowd.
void ApplyTurns(SegmentRun& run);
/// Of a Title at stake, by the final rating.
void MoveTitleImage(SegmentRun& run);
/// Over of everybody who spoke, by the final rating; managers, stables and Titles that an angle
/// moves.
void TalkConsequences(SegmentRun& run);

/// One word or one attack against an enemy goes into the feud's record.
void TallyVerbal(SegmentRun& run, int speakerUid, int targetUid);
void TallyAttack(SegmentRun& run, int attackerUid, int targetUid);

/// One sentence behind a worker's name in the notes; nothing for a change of 0.
void ReportOver(SegmentRun& run, const Worker& worker, int change, bool isMatch);

}  // namespace grapplemont
