#pragma once

#include "records/world.h"

namespace grapplemont::tools {

/// What a sensible player does for his place on television, once a day: takes what networks offer,
/// asks for more weeks in time, and sends a tape a month until he has a show.
void WorkOnTelevision(World& world);

}  // namespace grapplemont::tools
