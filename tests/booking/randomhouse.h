#pragma once

#include "support/randomworld.h"
#include "support/smallworld.h"

namespace grapplemont::test {

/// A promotion whose roster nobody would put together, "Hand 1" and on, with groups, Titles and
/// feuds; CheckWorld may find fault with it. The same for the same seed.
World RandomHouse(std::uint64_t seed);

}  // namespace grapplemont::test
