#pragma once

#include <string>

#include "records/world.h"

// What plain days pass by that the player could have used.

namespace grapplemont {

/// The ventures of a small promotion's month, each once a month.
inline constexpr int kVentureKinds = 6;
/// Whether the promotion is small enough to have a month of ventures.
bool HasSmallMonth(const Promotion& promotion);
/// What was done of this month's; nullptr for nothing yet.
const MonthPlan* PlanOfTheMonth(const World& world);
/// How many are still open this month; 0 for a promotion that is too big.
int VenturesLeft(const World& world);

/// Days that are about to pass.
class Passing {
 public:
  explicit Passing(const World& world) : from_(world.Today()), open_(VenturesLeft(world)) {}
  /// "Passed on the way: 3 staff meetings and 6 ventures of the month." Empty for nothing. A
  /// meeting of the first day was known of, one of the last is still to come.
  std::string Text(const World& world) const;

 private:
  Day from_;
  int open_;  // ventures of the month in which the days begin
};

}  // namespace grapplemont
