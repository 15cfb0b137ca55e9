#pragma once

#include "records/fields/companies.h"

// What the first of a month brings in and costs, in dollars, and the spending that a promotion's
// standing asks for. Sizes outside the six count as the nearest.

namespace grapplemont {

/// What people think a ticket is worth at this size, and what it costs when a game begins.
int FairTicketPrice(int size);

/// A month's sales of merchandise before the cap.
int MerchBase(int size, int image);
/// The most that a level of merchandising can sell.
int MerchandiseCap(int level);
/// A month's sales, capped and by the economy; 0 for a promotion that has no merchandise.
int MerchandiseSales(const Promotion& promotion, int economy);

int AdvertisingCost(int level);
int MerchandisingCost(int level);
int ProductionCost(int level);

/// The level of advertising of a rival.
int TargetAdvertising(int size, int image);

/// The levels a rival keeps whenever its image has been looked at.
struct RivalSpending {
  int Merchandising;
  int Production;
};
RivalSpending RivalSpendingFor(int size);

}  // namespace grapplemont
