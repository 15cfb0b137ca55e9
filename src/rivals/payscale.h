#pragma once

#include "records/world.h"
#include "rivals/rivals.h"

// What a promotion can pay its workers, and what it thinks each of them worth.

namespace grapplemont {

/// How whoever decides handles money: the owner by nature, the talented seldom badly; a board and
/// the player are even-handed.
enum class Spender { Careful, Even, Reckless };
Spender SpenderOf(const World& world, const Promotion& promotion);

/// The wage bill that the last month's books bear, in dollars a month: a share of what all else
/// left over, and in time what lies above or below a fair sum. A promotion without books goes by
/// its size.
long long WageBudget(const World& world, const Promotion& promotion);

/// A promotion's going rates: its budget spread over its roster by the square of popularity. In
/// thousands of dollars a month.
class PayScale {
 public:
  PayScale(const World& world, const Promotion& promotion, const Rosters& rosters);
  PayScale(const World& world, const Promotion& promotion)
      : PayScale(world, promotion, Rosters(world)) {}
  /// The wage thought fair for this Over, from 1 to the highest there is.
  int For(int over) const;
  /// What the budget has left over today's wages; below zero when they pass it.
  long long Room() const { return room_; }
  /// A wage has been added to the bill.
  void Spend(int wage) { room_ -= wage; }

 private:
  int top_;  // for an Over of 100
  long long room_;
};

}  // namespace grapplemont
