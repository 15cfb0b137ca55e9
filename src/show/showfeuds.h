#pragma once

#include "records/span.h"
#include "show/segmentrun.h"

// Feuds as a show sees them. In a singles feud the two enemies are the sides; in a tag feud each
// side has two.

namespace grapplemont {

/// "Bram Okafor and Ilya Marsh", with pairs by their teams' names.
std::string FeudText(const World& world, const Feud& feud);
/// Whether two are enemies in this feud. False for nobody.
bool AreEnemies(const Feud& feud, int workerX, int workerY);
/// The side of a feud this worker stands on: 1, 2, or 0 for none.
int FeudSideOf(const Feud& feud, int uid);
/// The slot from 1 of the first feud in which the two are enemies; 0 for none.
int FeudSlotOf(const World& world, int workerX, int workerY);
/// Marks every feud in which the two are enemies as used by the show.
void MarkFeud(SegmentRun& run, int workerX, int workerY);
/// The same of the feud in this slot.
void MarkSlot(SegmentRun& run, int slot);

// Feuds lift crowds, and what the enemies show moves the heat of their feud.

/// The slot of the first feud of a Segment's first two people, or of the first tag feud in which
/// both its pairs stand whole on a side of their own; 0 for none.
int FeudSlotOf(const World& world, const Segment& segment, bool ofTeams);
/// Lifts the crowd towards the heat of the feud in this slot and marks it as used; nothing for slot
/// 0. Draws once where the crowd is below the heat.
void FeudLift(SegmentRun& run, int slot);

/// By how much the heat of a feud goes at a time, and the heats at which talk alone lifts no more.
Span HeatMoves();
Span HeatOfTalk();

/// The heat of the first feud of Worker1 and Worker2 follows the match as it is rated so far; in a
/// tag match too, where the two are partners.
void HeatFollowsMatch(SegmentRun& run);
/// The heat of every feud between those who speak and those they speak of. An interview draws once,
/// whether there is such a feud or not; an angle never.
void HeatFollowsTalk(SegmentRun& run);

// What a Segment writes into the record of a feud. Each tally goes to the first feud in which the
// two are enemies.

/// The win of a match that counts wins, which marks the feud as used; a feud that one side runs
/// away with cools. Nothing for other matches and for a draw.
void TallyResult(SegmentRun& run);
/// One word against an enemy.
void TallyVerbal(SegmentRun& run, int speakerUid, int targetUid);
/// Every attack that a match's run-ins and aftermath stand for.
void TallyAttacks(SegmentRun& run);

/// What the end of a feud brings each of its sides, in points of Over.
struct FeudPayout {
  int Losers, Winners;
};
/// By the record as it stands, the last match included, which side one has won or lost.
FeudPayout PayoutOf(const Feud& feud, bool firstWon);

/// The slot of the feud that a match is booked to end; 0 for none.
int FeudEndedBy(const World& world, const Segment& segment);
/// A match that is booked to end its workers' feud does: both sides gain or lose by how it went,
/// some write about it, and its slot is free. Nothing for other matches.
void EndFeudByMatch(SegmentRun& run);

}  // namespace grapplemont
