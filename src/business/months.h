#pragma once

#include <string>

#include "records/fields/fields.h"

// Months as the office's charts and books count them.

namespace grapplemont {

/// The first of the month that lies so many months before the day's own.
Day MonthsBefore(Day day, int months);
/// "Mar 2026" for the month that ended before the day, a first of a month.
std::string MonthClosedBefore(Day first);

}  // namespace grapplemont
