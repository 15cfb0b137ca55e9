#pragma once

#include "show/segmentrun.h"

// What a match leaves behind in its workers.

namespace grapplemont {

/// What a match leaves behind in one of its workers: card position, wear, morale, Over. The winners
/// get a second call.
void AfterMatch(SegmentRun& run, Worker& worker, bool isWinner);

/// What their place on the card does to a worker. The numbers may leave 0..100.
struct CardPull {
  int Over = 0;
  int Morale = 0;
};
/// Compares the worker's place with the one that fits, tells the player by mail, and gives what
/// follows for the worker. Draws once; does nothing for a manager or non-wrestler.
CardPull CheckCardPosition(World& world, const Worker& worker);

/// Whom a hard match hurts. Draws once for everybody in a match of Strain 3 and up and for the
/// loser by a sick bump.
void DrawInjuries(SegmentRun& run);
/// Draws which injury it is, and how many months it lasts.
void BreakSomething(World& world, Worker& worker);
/// Hurts a worker who is not hurt already: which injury and how many months are drawn, and the
/// notes tell it.
void Injure(SegmentRun& run, Worker& worker);
/// A stiff worker hurts the others of their match.
void HurtOthers(SegmentRun& run, const Worker& stiff);

}  // namespace grapplemont
