#pragma once

#include <string>

#include "records/world.h"

namespace grapplemont::desktop {

/// Writes the whole chronicle, told in a voice, into a file as PDF; why it could not, empty if it
/// has.
std::string WriteBookPdf(const World& world, const std::string& file, int voice);

}  // namespace grapplemont::desktop
