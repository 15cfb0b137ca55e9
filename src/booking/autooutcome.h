#pragma once

#include "booking/autoplan.h"

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

/// Everything the other matches set for a Segment of these people, first side first.
Segment NewMatch(int style, int type, const std::vector<int>& people);

/// How much a win would do for the worker: rising beats fading where they are about as popular.
/// Draws once.
int WinWorth(AutoPlan& plan, const Worker& worker);

/// Chooses the result, the finish, the aftermath and the purpose of a match whose people, type and
/// Title are set. False when nothing is found that all accept. Draws.
bool Decide(AutoPlan& plan, Segment& match, const Wish& wish);

}  // namespace grapplemont
