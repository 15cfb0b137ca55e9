#pragma once

#include <string>
#include <vector>

#include "booking/wizard/roster.h"
#include "records/angles.h"

// Angles: which are offered, and whom their roles may be cast with.

namespace grapplemont {

/// Why the player's promotion cannot do the angle today: its Risk, its Size, a Commissioner, the
/// date; empty when it can. Writers are not looked at.
std::string WhyNotOffered(const World& world, const Angle& angle);
bool IsOffered(const World& world, const Angle& angle);
/// All that are, in the order of their numbers.
std::vector<const Angle*> OfferedAngles(const World& world);

/// Somebody or something that a role may be cast with.
struct Candidate {
  std::string Name;
  int Uid = 0;  // of a worker; 0 for a stable or a Title
};
/// All of them, in the order of their file. `turnsIn` is the angle: what a team turns to decides
/// who is waiting for it.
std::vector<Candidate> CandidatesFor(const World& world, Casting from, int turnsIn,
                                     const BookingView& view);
/// What a role's list says when there is nobody: "No women available".
std::string_view NobodyFor(Casting from);

/// Whether one of the player's Titles waits for a holder; a singles Title or one for a team.
bool IsVacantTitle(const World& world, const Title& title, bool singles);

bool IsUsed(const Role& role);
/// Puts a candidate into the angle: a worker at the role's place, a stable or a Title by its name.
void Cast(Segment& segment, const Role& role, const Candidate& candidate);
/// Whether somebody or something stands in the role.
bool IsCast(const Segment& segment, const Role& role);

/// What stands against an angle's cast, in the words of a box; empty for nothing. Asks in this
/// order: everybody is there, nobody twice, the manager, the table, the stable, the Title.
std::string WhyNotCast(const World& world, const Segment& segment, const BookingView& view);

/// What a booker wants to know of somebody before he casts him, in a line: "Midcard, Heel, Over 64,
/// Condition 92, Morale 70, managed by Cal Drift, in The Tide"; of a stable its members, of a Title
/// who may hold it.
std::string AboutCandidate(const World& world, const Role& role, const Candidate& candidate);

}  // namespace grapplemont
