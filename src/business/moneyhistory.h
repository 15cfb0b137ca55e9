#pragma once

#include <string>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// What a promotion had when a month was closed.
struct MoneyPoint {
  std::string Month;  // "Mar 2026", the month that was closed
  int Dollars;
};

/// A promotion's money at the ends of the last five years' months, oldest first, and today as
/// "Today". From what the slot remembers; where the promotion's own record goes back further (at
/// most five months), from that.
std::vector<MoneyPoint> MoneyOverTime(const World& world, const Promotion& promotion);

}  // namespace grapplemont
