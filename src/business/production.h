#pragma once

#include <array>

#include "records/fields/companies.h"

// Buying better production values, once and for all; what they cost each month is in
// monthlymoney.h.

namespace grapplemont {

/// The steps, in points, by which production can be raised.
inline constexpr std::array<int, 3> kProductionRaises = {1, 5, 10};
inline constexpr int kBestProduction = 100;

/// Dollars for a raise from this level: the price of the raise `number` from 1 to 3 of
/// kProductionRaises.
int ProductionRaiseCost(int production, int number);
/// Pays for the raise; what would pass 100 stops there. False, and nothing has changed, when the
/// money is short.
bool RaiseProduction(Promotion& promotion, int number);

}  // namespace grapplemont
