#pragma once

#include "records/world.h"

namespace grapplemont::tools {

/// What a sensible player does beside the shows, once a day: fills the sponsors' places, looks
/// after television, keeps the contracts of those he needs, the roster and the posts as full as a
/// rival's, and spends by the promotion's standing, less when in debt.
void WorkInTheOffice(World& world);

}  // namespace grapplemont::tools
