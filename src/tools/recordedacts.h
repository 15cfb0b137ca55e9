#pragma once

#include <string>
#include <string_view>

#include "ui/desk.h"

namespace grapplemont::tools {

/// Takes the first word and the blank behind it off the front.
std::string NextWord(std::string_view& line);

/// Does what a line of a record says, of which the verb has been taken off; why it cannot be done,
/// empty where it was.
std::string DoRecorded(ui::Desk& desk, ui::Screen& screen, std::string_view verb,
                       std::string_view rest);

}  // namespace grapplemont::tools
