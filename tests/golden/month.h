#pragma once

#include <string>
#include <vector>

#include "records/tables/differences.h"

namespace grapplemont::test {

/// The golden months of the checkout: NAME of each tests/golden/NAME.month, in order.
std::vector<std::string> MonthNames();

/// What a month comes to: what differs in the records from how it began, and what was told on the
/// way, UTF-8.
struct MonthOutcome {
  std::vector<Difference> Changes;
  std::string Told;
};

/// Plays the script of that name. A line that cannot be played fails the test.
MonthOutcome PlayMonth(const std::string& name);

}  // namespace grapplemont::test
