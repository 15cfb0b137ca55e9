#pragma once

#include <string>

#include "records/fields/companies.h"
#include "records/world.h"

// How a promotion stands with its money.

namespace grapplemont {

enum class Purse { Saving, Steady, Spending };
/// By the money in hand and by what the last two months did to it.
Purse PurseOf(const Promotion& promotion);

/// Dollars that are enough to run a promotion of a size.
int FairSum(int size);
/// "Rich", "Comfortable" and so on, against what a promotion of the size needs.
std::string MoneyInWords(int size, long long money);

/// How deep in debt, in dollars, a promotion of a size is warned and closed.
struct BankruptcyLine {
  int WarnedFrom;
  int WarnedBelow;
  int BankruptBelow;
};
const BankruptcyLine& BankruptcyLineOf(int size);

// Buying a rival out of its debts.

/// A quarter of the debt is enough for which its bank would close it.
bool IsForSale(const Promotion& rival);

enum class Takeover { Complete, Destruction };
/// Dollars: its debts, or these and a month's wages.
long long TakeoverCost(const Promotion& rival, Takeover kind);
/// The player pays, and the rival closes at the day's end. Its people come over or go free; an
/// owner goes free in any case.
void TakeOverRival(World& world, Promotion& rival, Takeover kind);

}  // namespace grapplemont
