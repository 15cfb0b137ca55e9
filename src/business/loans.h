#pragma once

#include "records/fields/companies.h"

// Bank loans: one at a time, in steps of 100000 dollars.

namespace grapplemont {

inline constexpr int kLoanStep = 100000;  // dollars
inline constexpr int kMostLoanSteps = 100;

/// Months that a loan of so many steps runs: 12, 24 or 36.
int LoanTerm(int steps);
/// What a loan costs each month, in cents: the equal part to the cent and, by the difficulty, a
/// share of the whole sum. Months below 1 count as 1.
long long LoanQuote(int dollars, int months, int difficulty);
/// What a bank takes each month, in whole dollars. 0 for no loan.
int MonthlyRepayment(const Promotion& promotion, int difficulty);

/// The bank wants a quarter of the sum in hand.
bool BankAccepts(const Promotion& promotion, int steps);
/// Pays out a loan of so many steps. Requires that there is none.
void TakeLoan(Promotion& promotion, int steps);

/// What it costs to be rid of the loan at once: the rest and, by the difficulty, a share of it.
long long PayOffCost(const Promotion& promotion, int difficulty);
/// False, and nothing has changed, when the money is short.
bool PayOffLoan(Promotion& promotion, int difficulty);

/// Clears the four fields of the loan.
void ForgetLoan(Promotion& promotion);

}  // namespace grapplemont
