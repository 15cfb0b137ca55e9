#pragma once

#include "records/world.h"

namespace grapplemont {

/// The one way in which a promotion's image changes, by so many percent up (`gain`) or down. At 100
/// it rises a size class, at 0 it falls one, with all that follows for its people, and its Events,
/// a rival's spending and its tickets follow its standing in any case. Draws where a class is
/// crossed.
void ChangeImage(World& world, Promotion& promotion, int amount, bool gain);

/// The same by a step that may be negative.
void MoveImage(World& world, Promotion& promotion, int step);

}  // namespace grapplemont
