#pragma once

#include <ostream>

#include "records/world.h"

namespace grapplemont::tools {

/// Holds the show that match.dat holds and tells it from start to close, in UTF-8.
void TellShow(World& world, bool isEvent, std::ostream& out);

}  // namespace grapplemont::tools
