#pragma once

#include <string>

#include "records/world.h"

namespace grapplemont {

/// "From Halifax in Canada.": the same at every look, and kept in no file.
std::string HomeLine(const World& world, const Worker& worker);

}  // namespace grapplemont
