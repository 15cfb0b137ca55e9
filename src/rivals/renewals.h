#pragma once

#include "records/world.h"

namespace grapplemont {

/// Contracts of the promotion's that have one month left are renewed by taste and budget or left to
/// run out.
void RenewContracts(World& world, const Promotion& promotion);

}  // namespace grapplemont
