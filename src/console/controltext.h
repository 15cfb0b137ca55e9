#pragma once

#include <string>

#include "console/sections.h"

namespace grapplemont::console {

/// The lines of one control: name, kind, what it says, and below them its rows or its prose; the
/// first few of them unless `whole`, which also tells its tip. In the program's own letters.
std::string ControlText(const Section::Part& part, bool whole, int width);

/// What a Chart says, in lines: "January: Image 61, Money 1200".
std::string ChartText(const ui::Chart& chart);

}  // namespace grapplemont::console
