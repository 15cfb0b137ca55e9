#pragma once

#include <string>
#include <string_view>

#include "ui/screen.h"

namespace grapplemont::test {

/// Arranges a table of the screen by chance as a player does who sorts, filters and searches it;
/// `what` is its name and a number. Gives why it cannot be done; throws FoundFault where the table
/// shows what the list has not.
std::string Arrange(ui::Screen& screen, std::string_view what);

}  // namespace grapplemont::test
