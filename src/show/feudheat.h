#pragma once

#include "show/segmentrun.h"

// Feuds lift crowds, and what the enemies show moves the heat of their feud.

namespace grapplemont {

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

}  // namespace grapplemont
