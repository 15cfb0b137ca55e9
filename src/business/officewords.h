#pragma once

#include <string>

#include "records/fields/companies.h"

// What several screens of the office say alike.

namespace grapplemont {

/// "Current finance: $1284500".
std::string FinanceText(const Promotion& promotion);

/// "20% \ $200000 p.m" for a level and what a month of it costs, "0% \ $0 p.m" for none.
std::string SpendingText(int level, int dollarsAMonth);

/// "$8333.33" for an amount in cents, "$25000" for whole dollars.
std::string DollarsAndCents(long long cents);

}  // namespace grapplemont
