#pragma once

#include <string>
#include <string_view>

#include "words/headings.h"

namespace grapplemont {

/// Why a text cannot stand under a heading; empty for a sound line.
std::string WhyNoLine(std::string_view text, const Heading& heading);

}  // namespace grapplemont
