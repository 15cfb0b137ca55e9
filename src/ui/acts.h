#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/desk.h"

// What a player can do to the controls of a screen, by name. Every shell and every test goes this
// way. Each gives an empty text, or why it cannot be done; then nothing has changed.

namespace grapplemont::ui {

/// A Button, a Picture with a handler, a CheckBox (turns it) or an OptionButton.
std::string Click(Desk& desk, Screen& screen, std::string_view name);
std::string Type(Desk& desk, Screen& screen, std::string_view name, std::string_view text);
/// A row from 1 or the exact text of a row's first column; in a list that takes several it toggles.
std::string Pick(Desk& desk, Screen& screen, std::string_view name, std::string_view rowOrText);
/// The row of this number, whatever its text and that of others.
std::string Pick(Desk& desk, Screen& screen, std::string_view name, int row);
/// Adds a row to the chosen ones of a list that can have several, or takes it from them.
std::string PickToo(Desk& desk, Screen& screen, std::string_view name, std::string_view rowOrText);
std::string PickToo(Desk& desk, Screen& screen, std::string_view name, int row);
/// Chooses exactly these rows of such a list.
std::string PickRows(Desk& desk, Screen& screen, std::string_view name, std::vector<int> rows);
/// Picks the row and opens it, as a double click does.
std::string OpenRow(Desk& desk, Screen& screen, std::string_view name, std::string_view rowOrText);
std::string OpenRow(Desk& desk, Screen& screen, std::string_view name, int row);
/// Drags a row to another's place.
std::string MoveRow(Desk& desk, Screen& screen, std::string_view name, int row, int to);
std::string Check(Desk& desk, Screen& screen, std::string_view name, bool on);
std::string Slide(Desk& desk, Screen& screen, std::string_view name, int value);
/// Follows a link whose words are `words`, wherever the screen shows it: in a label, a report or a
/// table.
std::string Follow(Desk& desk, Screen& screen, std::string_view words);

}  // namespace grapplemont::ui
