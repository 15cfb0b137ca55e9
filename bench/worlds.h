#pragma once

#include "records/world.h"

namespace grapplemont::bench {

inline constexpr Day kSomeDay{std::chrono::year{2026} / 3 / 3};

/// The default data, or the largest that the files may hold.
World DataWorld(bool large);
/// A new game made of it.
World Started(World data, Day start);
World StartedWorld(bool large, Day start);

}  // namespace grapplemont::bench
