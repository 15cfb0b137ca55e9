#pragma once

#include "booking/autooutcome.h"

namespace grapplemont {

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
