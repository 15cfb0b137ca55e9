#include <algorithm>

#include "console/answer.h"
#include "console/columns.h"
#include "console/command.h"
#include "console/controltext.h"
#include "console/sections.h"
#include "records/fields/charset.h"

namespace grapplemont::console {

namespace {

/// "== Today ================ frmMainScreen =="
std::string Rule(char stroke, const std::string& left, const std::string& right, int width) {
  const std::string twice(2, stroke);
  std::string line = twice + " " + Shortened(Printable(left), 60) + " ";
  const auto used = line.size() + right.size() + 4;
  line.append(std::max(static_cast<std::size_t>(width), used + 2) - used, stroke);
  return line + " " + right + " " + twice + "\n";
}

/// The commands that some control of the screen takes.
std::string Possible(const ui::Screen& screen, int width) {
  bool takes[static_cast<int>(Verb::Slide) + 1] = {};
  const auto can = [&](Verb verb) -> bool& { return takes[static_cast<int>(verb)]; };
  for (const ui::Control* control : screen.Controls()) {
    if (!control->Visible || !control->Enabled) continue;
    const auto* list = dynamic_cast<const ui::ListBox*>(control);
    const auto* picture = dynamic_cast<const ui::Picture*>(control);
    const ui::Kind kind = control->Is();
    can(Verb::Click) |= kind == ui::Kind::Button || (picture && picture->OnClick);
    can(Verb::Type) |= kind == ui::Kind::TextBox;
    can(Verb::Pick) |= kind == ui::Kind::ComboBox || (list && list->Count() > 0);
    can(Verb::Open) |= list && list->OnOpen && list->Count() > 0;
    can(Verb::Check) |= kind == ui::Kind::CheckBox || kind == ui::Kind::OptionButton;
    can(Verb::Slide) |= kind == ui::Kind::ScrollBar;
  }
  std::string text = "Type: ";
  for (Verb verb : {Verb::Click, Verb::Type, Verb::Pick, Verb::Open, Verb::Check, Verb::Slide})
    if (can(verb)) text += std::string(RowOf(verb).Form) + ", ";
  std::string wrapped;
  for (const std::string& line :
       Wrapped(text + "show [NAME], help, quit", static_cast<std::size_t>(width)))
    wrapped += line + "\n";
  return wrapped;
}

std::string ScreenText(ui::Screen& screen, int width) {
  std::string text = Rule('=', screen.Title, screen.Name(), width);
  for (const Section& section : Sections(screen)) {
    text += section.Heading.empty() ? "\n" : "\n" + Printable(section.Heading) + "\n";
    for (const Section::Part& part : section.Parts) text += ControlText(part, false, width);
  }
  return text + "\n" + Possible(screen, width);
}

std::string BoxText(const Box& box, int width) {
  std::string answers = "ok";
  if (box.Is == Box::Kind::YesNo) answers = box.Default == "yes" ? "[yes] or no" : "yes or [no]";
  if (box.Is == Box::Kind::Input) answers = "enter TEXT or cancel";
  std::string text = Rule('-', box.Title, answers, width);
  for (const std::string& line : Wrapped(Printable(box.Text), static_cast<std::size_t>(width) - 4))
    text += "  " + line + "\n";
  if (box.Is == Box::Kind::Input && !box.Default.empty())
    text += "  Offered: " + Printable(box.Default) + "\n";
  return text;
}

std::string OneControl(ui::Screen& screen, const std::string& name, int width) {
  for (const Section& section : Sections(screen))
    for (const Section::Part& part : section.Parts)
      if (part.Shown->Name() == name) return ControlText(part, true, width);
  return {};
}

}  // namespace

std::string TextAnswer(const Answer& answer, int width) {
  if (!answer.Error.empty()) return "Error: " + answer.Error + "\n";
  if (!answer.Help.empty()) return answer.Help;
  if (answer.Open) return ToUtf8(BoxText(*answer.Open, width));
  if (!answer.Top) return "The game has ended.\n";
  if (!answer.Only.empty()) return ToUtf8(OneControl(*answer.Top, answer.Only, width));
  return ToUtf8(ScreenText(*answer.Top, width));
}

}  // namespace grapplemont::console
