#include "rivals/purse.h"

#include "rivals/bankruptcy.h"
#include "rivals/rivals.h"
#include "rivals/tuning.h"

namespace grapplemont {

namespace {

/// A fair sum to run a promotion of a size with, in dollars.
constexpr std::array<int, 6> kFairSum = {20000000, 10000000, 5000000, 2000000, 1000000, 200000};

struct MoneyWords {
  int FromPercent;  // of the fair sum
  const char* Words;
};
constexpr MoneyWords kWords[] = {
    {300, "Rich"}, {100, "Comfortable"}, {40, "Sound"}, {10, "Short of money"}, {0, "Scraping by"}};

/// Twice in a row the money at a month end was less (`sign` -1) or more (1) than at the one before.
bool MovedTwice(const Promotion& promotion, int sign) {
  const auto& money = promotion.MoneyBefore;
  if (money[1] == kNoEnd || money[2] == kNoEnd) return false;
  return sign * (static_cast<long long>(money[0]) - money[1]) > 0 &&
         sign * (static_cast<long long>(money[1]) - money[2]) > 0;
}

}  // namespace

Purse PurseOf(const Promotion& promotion) {
  if (promotion.Money < 0) return Purse::Saving;
  const long long wages =
      static_cast<long long>(promotion.LastMonth.WrestlerWages) + promotion.LastMonth.StaffWages;
  const bool hasReserve = promotion.Money >= tuning::kMonthsInHand * wages;
  if (!hasReserve && MovedTwice(promotion, -1)) return Purse::Saving;
  if (hasReserve && MovedTwice(promotion, 1)) return Purse::Spending;
  return Purse::Steady;
}

std::string MoneyInWords(int size, long long money) {
  if (money < BankruptcyLineOf(size).WarnedBelow) return "Close to bankruptcy";
  if (money < 0) return "In debt";
  const long long percent = money * 100 / BySize(kFairSum, size);
  for (const MoneyWords& row : kWords)
    if (percent >= row.FromPercent) return row.Words;
  return {};
}

}  // namespace grapplemont
