#pragma once

#include "records/fields/people.h"

namespace grapplemont {

/// The card position 1 to 6 that this Over earns in a promotion of this size. The small ones have
/// no low places: a Small promotion begins at 5, a Backyard one at 3.
int FittingPosition(int size, int over);
/// The position a worker takes when such a promotion signs him; managers and non-wrestlers keep
/// theirs.
int PlacementPosition(const Worker& worker, int size);

/// Months of a contract that a rival of this size gives.
int ContractMonthsAt(int size);

}  // namespace grapplemont
