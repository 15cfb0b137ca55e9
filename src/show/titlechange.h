#pragma once

#include "show/segmentrun.h"

namespace grapplemont {

/// The player's Title that the Segment names; nullptr for none.
Title* TitleAtStake(World& world, const Segment& segment);
/// New holders (`partner` 0 for a singles Title), and their reign begins today.
void Crown(World& world, Title& title, int holder, int partner);

}  // namespace grapplemont
