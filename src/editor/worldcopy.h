#pragma once

#include "records/world.h"

namespace grapplemont {

/// A second world of the same records, to try things out on.
World TrialCopyOf(const World& world);

}  // namespace grapplemont
