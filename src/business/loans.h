#pragma once

#include "records/promotion.h"

namespace grapplemont {

/// What a bank asks for each month, in dollars: the equal part and, by the difficulty, a share of
/// the whole sum. 0 for no loan.
int MonthlyRepayment(const Promotion& promotion, int difficulty);
/// Clears the four fields of the loan.
void ForgetLoan(Promotion& promotion);

}  // namespace grapplemont
