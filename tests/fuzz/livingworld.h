#pragma once

#include <map>
#include <string>

#include "records/world.h"

namespace grapplemont::fuzz {

using Files = std::map<std::string, Bytes>;

/// A good game, in which there is something of everything.
const World& SampleGame();
const Files& SampleFiles();

/// Loads any files into `world`: they give a message that names one of them, or a world that keeps
/// its bytes, can be looked at, changed, taken back, and mended for good as data. True for a world.
bool LoadAndLive(World& world, const Files& files);

}  // namespace grapplemont::fuzz
