#include "ui/actlines.h"

#include <algorithm>

#include "ui/acts.h"
#include "ui/asnumber.h"

namespace grapplemont::ui {

namespace {

/// Takes the first word and the blank behind it off the front.
std::string WordOff(std::string_view& line) {
  const std::string word(line.substr(0, line.find(' ')));
  line.remove_prefix(std::min(line.size(), word.size() + 1));
  return word;
}

std::string VisitAgain(Desk& desk, std::string_view what) {
  constexpr std::size_t kMost = 10000;
  const std::size_t colon = what.find(": ");
  if (colon == what.npos) return "it does not say what";
  const std::string_view words = what.substr(colon + 2);
  for (const Finding& found : desk.NewSearch()(words, kMost))
    if (found.Heading == what.substr(0, colon) && found.Words == words) {
      desk.Visit(Finding(found));
      return {};
    }
  return "nothing is called so";
}

/// What stands behind the name is numbers: rows, or where a scroll bar goes.
std::string DoWithNumbers(Desk& desk, Screen& screen, std::string_view verb,
                          const std::string& name, std::string_view rest) {
  std::vector<int> numbers;
  while (!rest.empty()) {
    const auto number = AsNumber(WordOff(rest));
    if (!number) return "no number stands there";
    numbers.push_back(*number);
  }
  if (verb == "rows") return PickRows(desk, screen, name, numbers);
  const std::size_t wanted = verb == "move" ? 2 : 1;
  if (numbers.size() != wanted) return "a number is missing or too many";
  if (verb == "pick") return Pick(desk, screen, name, numbers[0]);
  if (verb == "also") return PickToo(desk, screen, name, numbers[0]);
  if (verb == "open") return OpenRow(desk, screen, name, numbers[0]);
  if (verb == "slide") return Slide(desk, screen, name, numbers[0]);
  if (verb == "move") return MoveRow(desk, screen, name, numbers[0], numbers[1]);
  return "there is no such command";
}

std::string DoOn(Desk& desk, Screen& screen, const std::string& verb, std::string_view rest) {
  if (verb == "undo" || verb == "redo")
    return desk.Take(verb == "undo" ? desk.Undo : desk.Redo).empty() ? "nothing to take" : "";
  if (verb == "explain")
    return (rest.empty() ? desk.OpenHelp() : desk.OpenGlossary(rest)) ? "" : "no help";
  if (verb == "follow") return Follow(desk, screen, InLines(rest));
  if (verb == "visit") return VisitAgain(desk, rest);
  const std::string name = WordOff(rest);
  if (verb == "click") return Click(desk, screen, name);
  if (verb == "type") return Type(desk, screen, name, InLines(rest));
  if (verb == "check") return Check(desk, screen, name, rest == "on");
  return DoWithNumbers(desk, screen, verb, name, rest);
}

}  // namespace

std::string DoAct(Desk& desk, std::string_view line) {
  // The screen may close while its own handler runs.
  std::shared_ptr<Screen> screen = desk.Screens().back();
  const std::string whole(line);
  std::string verb = WordOff(line);
  if (verb == "on") {
    const std::string name = WordOff(line);
    for (const auto& open : desk.Screens())
      if (open->Name() == name) screen = open;
    verb = WordOff(line);
  }
  const std::string why = DoOn(desk, *screen, verb, line);
  return why.empty() ? why : "\"" + whole + "\" on " + screen->Name() + ": " + why;
}

std::string OnOneLine(std::string_view text) {
  std::string line;
  for (const char letter : text)
    line += letter == '\n' ? "\\n" : letter == '\\' ? "\\\\" : std::string(1, letter);
  return line;
}

std::string InLines(std::string_view line) {
  std::string text;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const bool escaped = line[i] == '\\' && i + 1 < line.size();
    if (escaped) ++i;
    text += escaped && line[i] == 'n' ? '\n' : line[i];
  }
  return text;
}

}  // namespace grapplemont::ui
