#pragma once

#include <string>

#include "records/fields/companies.h"

// How a promotion stands with its money.

namespace grapplemont {

enum class Purse { Saving, Steady, Spending };
/// By the money in hand and by what the last two months did to it.
Purse PurseOf(const Promotion& promotion);

/// "Rich", "Comfortable" and so on, against what a promotion of the size needs.
std::string MoneyInWords(int size, long long money);

}  // namespace grapplemont
