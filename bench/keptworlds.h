#pragma once

#include <functional>
#include <string>

#include "records/world.h"

namespace grapplemont::bench {

/// A world that takes long to make. It is made once and lies in the build's folder from then on,
/// where every later figure reads it; another program or other default data make their own.
World Kept(const std::string& name, const std::function<World()>& make);

}  // namespace grapplemont::bench
