#include "business/loans.h"

#include <algorithm>
#include <array>
#include <limits>

namespace grapplemont {

namespace {

/// Whole dollars of interest, each time anew on the sum.
int InterestOn(int sum, int difficulty) {
  // Percent, by difficulty from 1 to 4.
  constexpr std::array<int, 4> kRates = {0, 2, 5, 8};
  const int rate =
      kRates[static_cast<std::size_t>(std::clamp<int>(difficulty, kEasy, kRockHard) - 1)];
  return static_cast<int>(static_cast<long long>(sum) * rate / 100);
}

struct LoanSize {
  int UpTo;  // steps
  int Months;
};
constexpr std::array<LoanSize, 3> kSizesOfLoans = {{{10, 12}, {25, 24}, {kMostLoanSteps, 36}}};

}  // namespace

int LoanTerm(int steps) {
  for (const LoanSize& size : kSizesOfLoans)
    if (steps <= size.UpTo) return size.Months;
  return kSizesOfLoans.back().Months;
}

long long LoanQuote(int dollars, int months, int difficulty) {
  const long long divisor = std::max(months, 1);
  const long long part = (dollars * 100LL + divisor / 2) / divisor;
  return part + InterestOn(dollars, difficulty) * 100LL;
}

int MonthlyRepayment(const Promotion& promotion, int difficulty) {
  const int base = promotion.LoanAmount / kLoanStep * kLoanStep;
  const long long whole = InterestOn(base, difficulty) +
                          static_cast<long long>(base) / std::max<int>(promotion.LoanMonths, 1);
  return static_cast<int>(std::min<long long>(whole, std::numeric_limits<int>::max()));
}

bool BankAccepts(const Promotion& promotion, int steps) {
  return steps * kLoanStep / 4 <= promotion.Money;
}

void TakeLoan(Promotion& promotion, int steps) {
  ForgetLoan(promotion);
  promotion.LoanAmount = steps * kLoanStep;
  promotion.LoanMonths = LoanTerm(steps);
  promotion.Money += steps * kLoanStep;
}

long long PayOffCost(const Promotion& promotion, int difficulty) {
  const int rest = std::max(promotion.LoanAmount - promotion.LoanRepaid, 0);
  return static_cast<long long>(rest) + InterestOn(rest, difficulty);
}

bool PayOffLoan(Promotion& promotion, int difficulty) {
  const long long cost = PayOffCost(promotion, difficulty);
  if (cost > promotion.Money) return false;
  promotion.Money -= cost;
  ForgetLoan(promotion);
  return true;
}

void ForgetLoan(Promotion& promotion) {
  promotion.LoanAmount = 0;
  promotion.LoanMonths = 0;
  promotion.LoanRepaid = 0;
  promotion.LoanMissed = 0;
}

}  // namespace grapplemont
