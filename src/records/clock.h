#pragma once

#include <functional>

#include "records/fields.h"

namespace grapplemont {

/// Tells the present day of the world outside; nothing else in the program may ask for it.
using Clock = std::function<Day()>;

/// The machine's own calendar, in local time.
Day MachineToday();

}  // namespace grapplemont
