#pragma once

#include "records/world.h"

// Who costs what on the first of a month, in dollars.

namespace grapplemont {

/// 0 for whoever draws no wage: nobody's worker, one who has been sent home, one whose contract has
/// no end.
int MonthlyWage(const Worker& worker);
/// 0 for nobody's staff, for Owners, and for a contract without an end.
int MonthlyWage(const Staff& staff);

/// What the promotion pays to all its people.
struct WageBill {
  long long Workers = 0;
  long long Staff = 0;
};
WageBill WagesOf(const World& world, int promotionUid);

}  // namespace grapplemont
