#pragma once

#include <string>
#include <vector>

#include "booking/wizard/roster.h"

// Which angles are offered, and whom the seats of angles and interviews may be given to.

namespace grapplemont {

/// Why the player's promotion cannot do the angle today: its Risk, its Size, a Commissioner, the
/// date; empty when it can. Writers are not looked at.
std::string WhyNotOffered(const World& world, const Angle& angle);
bool IsOffered(const World& world, const Angle& angle);
/// All that are, in the order of their numbers.
std::vector<const Angle*> OfferedAngles(const World& world);

/// The people whom a seat of the Segment may be given to, in the order of their file; nobody where
/// it is for a stable or a Title.
std::vector<const Worker*> WorkersFor(const World& world, Casting from, const Segment& segment,
                                      const BookingView& view);
/// Whether this worker is one of them.
bool MayBeCast(const World& world, Casting from, const Worker& worker, const Segment& segment,
               const BookingView& view);
/// Somebody or something that a seat may be given to.
struct Candidate {
  std::string Name;
  int Uid = 0;  // of a worker; 0 for a stable or a Title
};
/// All of them, in the order of their file.
std::vector<Candidate> CandidatesFor(const World& world, Casting from, const Segment& segment,
                                     const BookingView& view);
/// What a seat's list says when there is nobody: "No women available".
std::string_view NobodyFor(Casting from);

/// Puts a candidate into the seat: a worker at its place, a stable or a Title by its name.
void Cast(Segment& segment, const Role& seat, const Candidate& candidate);

/// What stands against an angle's cast, in the words of a box; empty for nothing. Asks in this
/// order: everybody is there, nobody twice, the manager, the table, the stable, the Title.
std::string WhyNotCast(const World& world, const Segment& segment, const BookingView& view);

/// What a booker wants to know of a candidate, in a line: "Midcard, Heel, Over 64, Condition 92,
/// Morale 70, managed by Cal Drift, in The Tide"; of a stable its members, of a Title who may hold
/// it.
std::string AboutCandidate(const World& world, const Role& seat, const Candidate& candidate);

}  // namespace grapplemont
