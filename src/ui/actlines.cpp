#include "ui/actlines.h"

#include <algorithm>
#include <iterator>
#include <vector>

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

using Numbers = std::vector<int>;

/// An act on rows or values, by how many it takes; 0 for any number.
struct NumberVerb {
  std::string_view Verb;
  std::size_t Takes;
  std::string (*Do)(Desk&, Screen&, const std::string& name, const Numbers&);
};
constexpr NumberVerb kNumberVerbs[] = {
    {"rows", 0,
     [](auto& desk, auto& screen, auto& name, const Numbers& all) {
       return PickRows(desk, screen, name, all);
     }},
    {"pick", 1,
     [](auto& desk, auto& screen, auto& name, const Numbers& all) {
       return Pick(desk, screen, name, all[0]);
     }},
    {"also", 1,
     [](auto& desk, auto& screen, auto& name, const Numbers& all) {
       return PickToo(desk, screen, name, all[0]);
     }},
    {"open", 1,
     [](auto& desk, auto& screen, auto& name, const Numbers& all) {
       return OpenRow(desk, screen, name, all[0]);
     }},
    {"slide", 1,
     [](auto& desk, auto& screen, auto& name, const Numbers& all) {
       return Slide(desk, screen, name, all[0]);
     }},
    {"move", 2,
     [](auto& desk, auto& screen, auto& name, const Numbers& all) {
       return MoveRow(desk, screen, name, all[0], all[1]);
     }},
};

std::string DoWithNumbers(Desk& desk, Screen& screen, std::string_view verb,
                          const std::string& name, std::string_view rest) {
  const auto found = std::ranges::find(kNumberVerbs, verb, &NumberVerb::Verb);
  if (found == std::end(kNumberVerbs)) return "there is no such command";
  Numbers numbers;
  while (!rest.empty()) {
    const auto number = AsNumber(WordOff(rest));
    if (!number) return "no number stands there";
    numbers.push_back(*number);
  }
  if (found->Takes != 0 && numbers.size() != found->Takes) return "a number is missing or too many";
  return found->Do(desk, screen, name, numbers);
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
