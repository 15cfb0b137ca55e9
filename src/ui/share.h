#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "ui/arrangedtable.h"
#include "ui/screen.h"

// What a screen tells, as a text for elsewhere: a forum, a blog, a file of notes.

namespace grapplemont::ui {

enum class Form { Markdown, Html, BbCode };
/// "markdown", "html", "bbcode"; nothing for another word.
std::optional<Form> FormNamed(std::string_view word);

/// How the player has arranged a list of the screen; nullptr for as it is.
using TableFinder = std::function<const Table*(const ListBox& list)>;

/// Title, facts, fields, tables and reports, whatever can be seen; nothing that is pressed, and no
/// filter that lets all pass. A whole document where the form knows such a thing.
std::string Shared(Screen& screen, Form form, const TableFinder& arranged = {});
/// A table as the player has arranged it, or of it the chosen rows alone.
std::string Shared(const Table& table, Form form, bool chosenAlone = false);

}  // namespace grapplemont::ui
