#pragma once

#include "booking/auto/autoplan.h"

// Who wins, how, and to what end.

namespace grapplemont {

/// What the auto booker would like of a match; what the workers refuse gives way.
struct Wish {
  int Favoured = 0;       // uid of who should win; 0: whoever it helps
  bool Firm = false;      // nobody else may
  bool Changes = false;   // the finish must let a Title change hands
  bool Feud = false;      // bad blood: cheap finishes, brawls
  bool EndsFeud = false;  // clean, and settled
  bool MayDraw = false;   // better a draw than no match
};

/// A match of these people, first side first, of which nothing else is decided.
Segment NewMatch(int style, int type, const std::vector<int>& people);

/// Chooses the result, the finish, the aftermath and the purpose of a match whose people, type and
/// Title are set. False when nothing is found that all accept. Draws.
bool Decide(AutoPlan& plan, Segment& match, const Wish& wish);

}  // namespace grapplemont
