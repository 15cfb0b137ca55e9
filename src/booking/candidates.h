#pragma once

#include "booking/casting.h"

namespace grapplemont {

/// What a booker wants to know of somebody before he casts him, in a line: "Midcard, Heel, Over 64,
/// Condition 92, Morale 70, managed by Cal Drift, in The Tide"; of a stable its members, of a Title
/// who may hold it.
std::string AboutCandidate(const World& world, const Role& role, const Candidate& candidate);

}  // namespace grapplemont
