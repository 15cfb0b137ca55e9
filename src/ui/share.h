#pragma once

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

/// Title, facts, fields, tables and reports, whatever can be seen; nothing that is pressed. A whole
/// document where the form knows such a thing.
std::string Shared(Screen& screen, Form form);
/// A table as the player has arranged it.
std::string Shared(const Table& table, Form form);

}  // namespace grapplemont::ui
