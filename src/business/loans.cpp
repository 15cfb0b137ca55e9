#include "business/loans.h"

#include <algorithm>
#include <array>

namespace grapplemont {

int MonthlyRepayment(const Promotion& promotion, int difficulty) {
  // Percent of the sum, by difficulty from 1 to 4.
  constexpr std::array<int, 4> kRates = {0, 2, 5, 8};
  constexpr int kUnit = 100000;
  const int base = promotion.LoanAmount / kUnit * kUnit;
  const int rate =
      kRates[static_cast<std::size_t>(std::clamp<int>(difficulty, kEasy, kRockHard) - 1)];
  const int months = std::max<int>(promotion.LoanMonths, 1);
  return static_cast<int>(static_cast<long long>(base) * rate / 100) + base / months;
}

void ForgetLoan(Promotion& promotion) {
  promotion.LoanAmount = 0;
  promotion.LoanMonths = 0;
  promotion.LoanRepaid = 0;
  promotion.LoanMissed = 0;
}

}  // namespace grapplemont
