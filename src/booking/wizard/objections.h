#pragma once

#include <map>
#include <span>
#include <string>
#include <vector>

#include "records/segments.h"

// When somebody in the ring objects to a result: the thresholds that the refusals and the price of
// overriding them share.

namespace grapplemont {

/// One who objects or is objected to: a worker, or two partners with their sums.
struct Standing {
  std::vector<const Worker*> People;
  int Over = 0;
  int Attitude = 0;
};
Standing StandingOf(const World& world, const std::vector<int>& uids);

inline constexpr int kAnyAttitude = 1000;

/// Objects when their Over is more than `By` above the other's and their Attitude below a bound.
struct Gap {
  int By;
  int AttitudeUnder;
  int Level = 0;  // of the grievance when they are overridden; 0 where another bound sets the price
};
using Gaps = std::span<const Gap>;

inline constexpr Gap kSinglesGaps[] = {{30, kAnyAttitude, 3}, {20, 75, 2}, {10, 40, 1}};
// Of sums; the first bound is lower when the second pair wins.
inline constexpr Gap kTagGapsFirstWins[] = {
    {40, kAnyAttitude, 3}, {40, 180, 3}, {20, 130, 2}, {0, 100, 1}};
inline constexpr Gap kTagGapsSecondWins[] = {
    {30, kAnyAttitude, 3}, {40, 180, 3}, {20, 130, 2}, {0, 100, 1}};
inline constexpr Gap kTagDrawGaps[] = {{40, kAnyAttitude, 3}, {20, 175, 2}, {10, kAnyAttitude, 1}};
// Of the one loser of the other styles.
inline constexpr Gap kLoserGaps[] = {{30, kAnyAttitude, 3}, {20, 95, 2}, {10, 90, 1}, {0, 50, 1}};
inline constexpr Gap kSurvivorGaps[] = {{25, kAnyAttitude}};
inline constexpr Gap kSpecialGaps[] = {{20, 92}};

// Attitude below which men object to losing to, or drawing with, a woman.
inline constexpr int kWomanRule = 95;
inline constexpr int kTagWomanRule = 185;  // of the sum

/// Below it a loser in a singles match wants to do something afterwards.
inline constexpr int kVengeful = 30;
/// What losers of little patience take as their heat back.
bool GivesHeatBack(int aftermath);

/// Whether the losers of a match of 1 vs 1 or of 2 vs 2 mind how it happens: cleanly by somebody,
/// or alone because of somebody who runs in, who is not far enough above them.
bool MindFinish(const World& world, const Segment& match, const Standing& losers,
                const Standing& winners);

bool IsAbove(const Standing& who, const Standing& other, const Gap& gap);
bool IsManAgainstWoman(const Standing& who, const Standing& other);
Gaps TagGaps(const Segment& match);

/// Those on the losing side who may object to the result of a match of the styles 3 to 9: the one
/// loser, each of an elimination, the losing team of a Survivor match, every other entrant of a
/// battle royal. Nobody after a draw or where no loser is named.
std::vector<int> Objectors(const Segment& match);

/// The level of each worker's grievance, 1 to 5, by their uid; who has none is not there.
std::map<int, int> GrievancesOf(const World& world, const Segment& match);
/// What a booking takes from Morale, by the worker's uid; who loses nothing is not there. What
/// `paid`, the row that it replaces, has cost already is not taken twice.
using PriceOfBooking = std::map<int, int>;
PriceOfBooking PriceOf(const World& world, const Segment& segment,
                       const Segment& paid = EmptySegment());
/// By what it costs: "nine will hold it against you, 50 morale each, two more 15 each".
std::string HeldAgainstText(const PriceOfBooking& price);
/// What insisting costs the morale of those who objected. Runs once, when a booking is completed.
void ApplyBookingGrievances(World& world, const Segment& segment,
                            const Segment& paid = EmptySegment());

}  // namespace grapplemont
