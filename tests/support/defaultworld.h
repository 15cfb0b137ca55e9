#pragma once

#include "records/world.h"

namespace grapplemont::test {

/// The world that comes with the game, built from the tables of the checkout; a mistake in them
/// fails the test. Built once.
const World& DefaultWorld();

}  // namespace grapplemont::test
