#pragma once

#include <span>

#include "show/segmentroles.h"

namespace grapplemont {

enum class Phase { Finish, Aftermath };

/// Something that a worker does in a match and that can be the occasion of his turn.
struct TurnAct {
  Phase When;
  int Code;
  Part By;
  Part On;
  bool Always = false;  // he turns, whatever the purpose
};

/// The acts of 1 vs 1 and of 2 vs 2; none of other styles.
std::span<const TurnAct> TurnActsOf(int style);
/// Whether the match is booked to see it.
bool Happens(const Segment& segment, const TurnAct& act);

}  // namespace grapplemont
