#pragma once

#include <vector>

#include "records/segmentparts.h"

namespace grapplemont {

/// When in a match something is done.
enum class Phase { Finish, Aftermath };

/// What an act stands for; an act may stand for several.
enum ActMeaning : unsigned {
  kTurnOccasion = 1,  // who does it can be booked to turn on whom it hits
  kSureTurn = 2,      // and turns, whatever the purpose
  kFeudAttack = 4,    // it counts in the record of a feud
  kStruck = 8         // somebody lays hands on them, in what the show sees
};

/// Something that somebody does to somebody in a match.
struct Act {
  Phase When;
  int Code;  // of the finish or aftermath
  Part By;
  Part On;
  unsigned Means;

  bool Is(ActMeaning meaning) const { return (Means & meaning) != 0; }
};

/// Everything that is done in the finish and in the aftermath that a match of 1 vs 1 or of 2 vs 2
/// is booked with, in that order; nothing for what is not such a match.
std::vector<Act> ActsOf(const Segment& segment);

}  // namespace grapplemont
