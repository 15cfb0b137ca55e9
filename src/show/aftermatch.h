#pragma once

#include "show/segmentrun.h"

// What a match leaves behind in its workers.

namespace grapplemont {

/// What a match leaves behind in one of its workers: card position, wear, morale, Over. Of who
/// stands in the wrong place on the card the player hears by mail. The winners get a second call.
void AfterMatch(SegmentRun& run, Worker& worker, bool isWinner);

/// Whom a hard match hurts. Draws once for everybody in a match of Strain 3 and up and for the
/// loser by a sick bump.
void DrawInjuries(SegmentRun& run);
/// Draws which injury it is, and how many months it lasts.
void BreakSomething(World& world, Worker& worker);
/// Injuries have the numbers from 1 to this.
inline constexpr int kInjuryKinds = 12;
/// They are out with an injury for this many months, and the world hears of it.
void Injure(World& world, Worker& worker, int kind, int months);
/// A stiff worker hurts the others of their match.
void HurtOthers(SegmentRun& run, const Worker& stiff);

}  // namespace grapplemont
