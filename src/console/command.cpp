#include "console/command.h"

#include <algorithm>
#include <array>

#include "records/fields/charset.h"

namespace grapplemont::console {

std::optional<Line> ReadLine(std::istream& in) {
  using Traits = std::istream::traits_type;
  Line line;
  bool some = false;
  std::streambuf& from = *in.rdbuf();
  for (;;) {
    const auto next = from.sbumpc();
    if (Traits::eq_int_type(next, Traits::eof())) {
      in.setstate(std::ios::eofbit);
      if (!some) return std::nullopt;
      break;
    }
    some = true;
    const char byte = Traits::to_char_type(next);
    if (byte == '\n') break;
    if (line.Bytes.size() < kLongestLine)
      line.Bytes += byte;
    else
      line.TooLong = true;
  }
  if (!line.Bytes.empty() && line.Bytes.back() == '\r') line.Bytes.pop_back();
  return line;
}

std::optional<std::string> Letters(const Line& line, std::string& why) {
  const auto isControl = [](char letter) {
    const auto byte = static_cast<unsigned char>(letter);
    return (byte < 0x20 && letter != '\t') || byte == 0x7F;
  };
  if (line.TooLong) {
    why = "The line is longer than " + std::to_string(kLongestLine) + " bytes.";
  } else if (line.Bytes.find('\0') != std::string::npos) {
    why = "The line holds a NUL byte.";
  } else if (std::ranges::any_of(line.Bytes, isControl)) {
    why = "The line holds a control character.";
  } else if (auto letters = FromUtf8(line.Bytes)) {
    return letters;
  } else if (const std::string foreign = FirstForeignLetter(line.Bytes); foreign == "?") {
    why = "The line is not UTF-8.";
  } else {
    why = "The game writes Western European letters only; \"" + foreign + "\" is not one of them.";
  }
  return std::nullopt;
}

namespace {

using A = Arguments;
constexpr std::array<VerbRow, 22> kVerbs = {{
    {Verb::Show, A::MaybeName, "show", "show [NAME]", "the top screen, or all of one control"},
    {Verb::Click, A::Caption, "click", "click NAME",
     "press a button, a picture or a box, by its name or by what it says"},
    {Verb::Type, A::NameAndMaybeText, "type", "type NAME TEXT",
     "put TEXT into a text box; without TEXT empty it; \\n starts a new line in a long one"},
    {Verb::Pick, A::NameAndText, "pick", "pick NAME ROW-or-TEXT",
     "choose a row by its number from 1 or its first column"},
    {Verb::Also, A::NameAndText, "also", "also NAME ROW-or-TEXT",
     "choose a further row, or one less"},
    {Verb::Open, A::NameAndText, "open", "open NAME ROW-or-TEXT", "double click a row"},
    {Verb::Check, A::NameAndText, "check", "check NAME on|off", "set a check box or an option"},
    {Verb::Slide, A::NameAndText, "slide", "slide NAME VALUE", "move a scroll bar"},
    {Verb::Follow, A::Text, "follow", "follow NAME",
     "open the page of a worker or promotion whose name the screen shows"},
    {Verb::Find, A::Text, "find", "find TEXT",
     "list whatever is called so, from workers to mails and terms, with a number each"},
    {Verb::Visit, A::Text, "visit", "visit NUMBER", "open what was found under this number"},
    {Verb::Explain, A::MaybeText, "explain", "explain [TERM]",
     "what the screen is for, its keys and words; with TERM the glossary"},
    {Verb::Share, A::Text, "share", "share markdown|html|bbcode",
     "what the top screen tells as a text for elsewhere"},
    {Verb::Undo, A::None, "undo", "undo", "take back the last click of today"},
    {Verb::Redo, A::None, "redo", "redo", "do again what was taken back last"},
    {Verb::Ok, A::None, "ok", "ok", "to a message: go on"},
    {Verb::Yes, A::None, "yes", "yes", "to a question"},
    {Verb::No, A::None, "no", "no", "to a question"},
    {Verb::Enter, A::MaybeText, "enter", "enter TEXT", "to a box that wants a text"},
    {Verb::Cancel, A::None, "cancel", "cancel", "to a box that wants a text: give none"},
    {Verb::Help, A::None, "help", "help", "these lines"},
    {Verb::Quit, A::None, "quit", "quit", "leave; every click is saved already"},
}};
static_assert([] {
  for (std::size_t i = 0; i < kVerbs.size(); ++i)
    if (kVerbs[i].Is != static_cast<Verb>(i)) return false;
  return true;
}());

constexpr std::string_view kBlanks = " \t";

std::string_view WithoutBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Takes the first word and the one blank behind it off the front.
std::string_view TakeWord(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  const std::string_view word = text.substr(0, text.find_first_of(kBlanks));
  text.remove_prefix(std::min(word.size() + 1, text.size()));
  return word;
}

bool Fits(const VerbRow& row, const Command& command) {
  const bool noText = WithoutBlanks(command.Text).empty();
  switch (row.Takes) {
    case A::None:
    case A::MaybeName:
      return noText;
    case A::Caption:
      return !command.Name.empty();
    case A::NameAndText:
      return !command.Name.empty() && !command.Text.empty();
    case A::NameAndMaybeText:
      return !command.Name.empty();
    case A::Text:
      return !noText;
    case A::MaybeText:
      return true;
  }
  return false;
}

}  // namespace

std::span<const VerbRow> Verbs() {
  return kVerbs;
}

std::optional<Command> ReadCommand(std::string_view line, std::string& why) {
  if (WithoutBlanks(line).empty()) return Command{};
  const std::string_view word = TakeWord(line);
  const auto row = std::ranges::find_if(kVerbs, [&](auto& v) { return v.Word == word; });
  if (row == kVerbs.end()) {
    why = "There is no command \"" + std::string(word) + "\"; \"help\" lists them.";
    return std::nullopt;
  }
  Command command{row->Is, {}, {}};
  const bool named = row->Takes != A::None && row->Takes != A::Text && row->Takes != A::MaybeText;
  if (named && row->Takes != A::Caption) command.Name = TakeWord(line);
  if (row->Takes == A::Caption) command.Name = WithoutBlanks(line);
  command.Text = line;
  if (Fits(*row, command)) return command;
  why = "Write it as \"" + std::string(row->Form) + "\".";
  return std::nullopt;
}

std::string HelpText() {
  std::size_t width = 0;
  for (const VerbRow& row : kVerbs) width = std::max(width, row.Form.size());
  std::string text;
  for (const VerbRow& row : kVerbs) {
    text += "  " + std::string(row.Form) + std::string(width + 2 - row.Form.size(), ' ');
    text += std::string(row.Does) + "\n";
  }
  text += "Ctrl+C ends a look ahead (What If, A Hundred Futures) that takes too long.\n";
  return text;
}

}  // namespace grapplemont::console
