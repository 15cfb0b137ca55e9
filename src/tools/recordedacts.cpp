#include "tools/recordedacts.h"

#include <algorithm>
#include <vector>

#include "ui/acts.h"
#include "ui/asnumber.h"

namespace grapplemont::tools {

std::string NextWord(std::string_view& line) {
  const std::string word(line.substr(0, line.find(' ')));
  line.remove_prefix(std::min(line.size(), word.size() + 1));
  return word;
}

namespace {

/// What was put on one line.
std::string Lines(std::string_view typed) {
  std::string text;
  for (std::size_t i = 0; i < typed.size(); ++i) {
    const bool escaped = typed[i] == '\\' && i + 1 < typed.size();
    if (escaped) ++i;
    text += escaped && typed[i] == 'n' ? '\n' : typed[i];
  }
  return text;
}

using Numbers = std::vector<int>;

/// A command on rows or values, by how many it takes; 0 for any number.
struct NumberVerb {
  std::string_view Verb;
  std::size_t Takes;
  std::string (*Do)(ui::Desk&, ui::Screen&, const std::string& name, const Numbers&);
};
constexpr NumberVerb kNumberVerbs[] = {
    {"rows", 0,
     [](auto& desk, auto& screen, auto& name, const Numbers& all) {
       return ui::PickRows(desk, screen, name, all);
     }},
    {"pick", 1,
     [](auto& desk, auto& screen, auto& name, const Numbers& all) {
       return ui::Pick(desk, screen, name, all[0]);
     }},
    {"also", 1,
     [](auto& desk, auto& screen, auto& name, const Numbers& all) {
       return ui::PickToo(desk, screen, name, all[0]);
     }},
    {"open", 1,
     [](auto& desk, auto& screen, auto& name, const Numbers& all) {
       return ui::OpenRow(desk, screen, name, all[0]);
     }},
    {"slide", 1,
     [](auto& desk, auto& screen, auto& name, const Numbers& all) {
       return ui::Slide(desk, screen, name, all[0]);
     }},
    {"move", 2,
     [](auto& desk, auto& screen, auto& name, const Numbers& all) {
       return ui::MoveRow(desk, screen, name, all[0], all[1]);
     }},
};

/// An act on a control by its name.
std::string DoOnControl(ui::Desk& desk, ui::Screen& screen, std::string_view verb,
                        std::string_view rest) {
  const auto found = std::ranges::find(kNumberVerbs, verb, &NumberVerb::Verb);
  const std::string name = NextWord(rest);
  if (verb == "click") return ui::Click(desk, screen, name);
  if (verb == "type") return ui::Type(desk, screen, name, Lines(rest));
  if (verb == "check") return ui::Check(desk, screen, name, rest == "on");
  if (found == std::end(kNumberVerbs)) return "there is no such command";
  Numbers numbers;
  while (!rest.empty()) {
    const auto number = ui::AsNumber(NextWord(rest));
    if (!number) return "no number stands there";
    numbers.push_back(*number);
  }
  if (found->Takes != 0 && numbers.size() != found->Takes) return "a number is missing or too many";
  return found->Do(desk, screen, name, numbers);
}

}  // namespace

std::string DoRecorded(ui::Desk& desk, ui::Screen& screen, std::string_view verb,
                       std::string_view rest) {
  if (verb == "undo" || verb == "redo")
    return desk.Take(verb == "undo" ? desk.Undo : desk.Redo).empty() ? "nothing to take" : "";
  if (verb == "explain")
    return (rest.empty() ? desk.OpenHelp() : desk.OpenGlossary(rest)) ? "" : "no help";
  if (verb == "follow") return ui::Follow(desk, screen, Lines(rest));
  return DoOnControl(desk, screen, verb, rest);
}

}  // namespace grapplemont::tools
