#pragma once

#include "show/segmentrun.h"

// Feuds as a show sees them. In a singles feud the two enemies are the sides; in a tag feud each
// side has two.

namespace grapplemont {

/// Whether two are enemies in this feud. False for nobody.
bool AreEnemies(const Feud& feud, int workerX, int workerY);
/// The side of a feud this worker stands on: 1, 2, or 0 for none.
int FeudSideOf(const Feud& feud, int uid);
/// The slot from 1 of the first feud in which the two are enemies; 0 for none.
int FeudSlotOf(const World& world, int workerX, int workerY);
/// Marks every feud in which the two are enemies as used by the show.
void MarkFeud(World& world, ShowRun& show, int workerX, int workerY);

// Feuds lift crowds, and what the enemies show moves the heat of their feud.

/// How far heat may climb: held back near the top where enemies only talk.
enum class HeatRise { Free, HeldBack };
/// The heat after it has followed a rating; 0..100.
int MoveHeat(int heat, int target, HeatRise rise);

/// The slot of the first tag feud in which each pair stands whole on a side of its own; 0 for none.
int FeudSlotOfTeams(const World& world, int workerA, int partnerA, int workerB, int partnerB);
/// Lifts the crowd towards the heat of the feud in this slot and marks it as used; nothing for slot
/// 0. Draws once where the crowd is below the heat.
void FeudLift(SegmentRun& run, int slot);

/// The heat of the first feud of Worker1 and Worker2 follows the match as it is rated so far; in a
/// tag match too, where the two are partners.
void HeatFollowsMatch(SegmentRun& run);
/// The heat of every feud between those who speak and those they speak of. An interview draws once,
/// whether there is such a feud or not; an angle never.
void HeatFollowsTalk(SegmentRun& run);

// What a Segment writes into the record of a feud. Each tally goes to the first feud in which the
// two are enemies.

/// A win goes into the feud's record and marks it as used; a feud that one side runs away with
/// cools.
void TallyWin(SegmentRun& run, int winnerUid, int loserUid, bool isClean);
/// The win of a match that counts wins, and nothing for other matches and for a draw.
void TallyResult(SegmentRun& run);
/// One word or one attack against an enemy.
void TallyVerbal(SegmentRun& run, int speakerUid, int targetUid);
void TallyAttack(SegmentRun& run, int attackerUid, int targetUid);
/// Every attack that a match's run-ins and aftermath stand for.
void TallyAttacks(SegmentRun& run);

}  // namespace grapplemont
