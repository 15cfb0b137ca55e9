#pragma once

#include <array>

#include "records/span.h"
#include "show/segmentrun.h"

// What a match leaves behind in its workers.

namespace grapplemont {

/// What a match leaves behind in one of its workers: card position, wear, morale, Over. Of who
/// stands in the wrong place on the card the player hears by mail. The winners get a second call.
void AfterMatch(SegmentRun& run, Worker& worker, bool isWinner);

/// What a match of a strain from 1 to 5 costs in condition.
Span WearOf(int strain);
/// What a match above the worker's own standing gives in morale, and what one below it costs.
Span MoraleOfGoodMatch();
Span MoraleOfPoorMatch();
inline constexpr int kWinnersJoy = 3;  // morale, the most of a draw

/// A match of this quality carries those below the Over with it.
struct Showcase {
  int OverBelow;
  int QualityFrom;
  int Gain;
};
/// The second sees what the first has given.
inline constexpr std::array<Showcase, 2> kShowcases = {{{80, 91, 5}, {40, 66, 3}}};

// A place on the card that does not fit: too high costs Over, too low morale; where it is further
// off the second comes on top of the first.
inline constexpr int kOverOfPush = 1, kOverOfFarPush = 2;
inline constexpr int kMoraleOfHold = 3, kMoraleOfFarHold = 5;

/// Below this Condition the odds of an injury double.
inline constexpr int kWornOut = 40;
/// From this strain on a match hurts people.
int HurtingStrain();

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
