#pragma once

#include "records/world.h"

// Buying a rival out of its debts.

namespace grapplemont {

/// The money that a rival of this size must not have more than to be for sale, in dollars: a
/// quarter of the way to the line where the bank closes it.
int ForSaleAtMost(int size);
bool IsForSale(const Promotion& rival);

enum class Takeover { Complete, Destruction };
/// Dollars: its debts, or these and a month's wages.
long long TakeoverCost(const Promotion& rival, Takeover kind);
/// The player pays, and the rival closes at the day's end. Its people come over or go free; an
/// owner goes free in any case.
void TakeOverRival(World& world, Promotion& rival, Takeover kind);

}  // namespace grapplemont
