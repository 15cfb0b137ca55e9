#pragma once

#include <string>
#include <string_view>

#include "ui/desk.h"

// Acts as lines of text: what Act::Line says is done again.

namespace grapplemont::ui {

/// Does what the line of an act says: "click cmdsign", "on frmMainScreen click cmdnext", "undo".
/// Gives an empty text, or why it cannot be done. Requires a screen on the desk.
std::string DoAct(Desk& desk, std::string_view line);

/// A text of several lines on one, and back.
std::string OnOneLine(std::string_view text);
std::string InLines(std::string_view line);

}  // namespace grapplemont::ui
