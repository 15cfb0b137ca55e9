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

/// Everything the other matches set for a Segment of these people, first side first.
Segment NewMatch(int style, int type, const std::vector<int>& people);

/// How much a win would do for the worker: rising beats fading where they are about as popular.
/// Draws once.
int WinWorth(AutoPlan& plan, const Worker& worker);

/// Chooses the result, the finish, the aftermath and the purpose of a match whose people, type and
/// Title are set. False when nothing is found that all accept. Draws.
bool Decide(AutoPlan& plan, Segment& match, const Wish& wish);

/// One way for a match to end.
struct Ending {
  int Finish = 0;
  int Other1 = 0;  // runs in
  int Aftermath = 0;
};

/// Endings of a match of styles 1 and 2 whose Winner and Loser are set, the most wanted first and
/// what a stubborn loser accepts last. Draws.
std::vector<Ending> EndingsOf(AutoPlan& plan, const Segment& match, const Wish& wish);
/// What the match is for, by its result.
int PurposeOf(const AutoPlan& plan, const Segment& match, const Wish& wish);

}  // namespace grapplemont
