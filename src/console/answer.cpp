#include "console/answer.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "console/columns.h"
#include "console/command.h"
#include "console/controltext.h"
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
    can(Verb::Also) |= list && list->Extends && list->Count() > 0;
    can(Verb::Open) |= list && list->OnOpen && list->Count() > 0;
    can(Verb::Check) |= kind == ui::Kind::CheckBox || kind == ui::Kind::OptionButton;
    can(Verb::Slide) |= kind == ui::Kind::ScrollBar;
  }
  std::string text = "Type: ";
  for (Verb verb :
       {Verb::Click, Verb::Type, Verb::Pick, Verb::Also, Verb::Open, Verb::Check, Verb::Slide})
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

std::string FoundText(const std::vector<ui::Finding>& found) {
  if (found.empty()) return "Nothing is called so.\n";
  std::string text, heading;
  int number = 0;
  for (const ui::Finding& one : found) {
    if (one.Heading != heading) text += (heading.empty() ? "" : "\n") + one.Heading + "\n";
    heading = one.Heading;
    const std::string place = std::to_string(++number);
    text += std::string(6 - std::min<std::size_t>(place.size(), 5), ' ') + place + "  " +
            Printable(one.Words) + (one.About.empty() ? "" : " (" + Printable(one.About) + ")") +
            "\n";
  }
  return text + "\nType: visit NUMBER\n";
}

using Json = nlohmann::ordered_json;

void AddRows(Json& json, const ui::ComboBox& combo) {
  json["rows"] = Json::array();
  for (const std::string& row : combo.Rows()) json["rows"].push_back(Json::array({ToUtf8(row)}));
  json["selected"] = Json::array();
  if (combo.Selected() != 0) json["selected"].push_back(combo.Selected());
}

void AddRows(Json& json, const ui::ListBox& list) {
  Json rows = Json::array(), selected = Json::array();
  for (const ui::ListBox::Row& row : list.Rows()) {
    Json cells = Json::array();
    for (const ui::Cell& cell : row.Cells) cells.push_back(ToUtf8(cell.Text));
    rows.push_back(std::move(cells));
    if (row.Selected) selected.push_back(rows.size());
  }
  json["rows"] = std::move(rows);
  json["selected"] = std::move(selected);
  if (list.Count() == 0 && !list.EmptyText.empty()) json["empty"] = ToUtf8(list.EmptyText);
}

/// What only controls of this kind have.
void AddState(Json& json, const ui::Control& control) {
  if (const auto* combo = dynamic_cast<const ui::ComboBox*>(&control)) {
    AddRows(json, *combo);
  } else if (const auto* list = dynamic_cast<const ui::ListBox*>(&control)) {
    AddRows(json, *list);
  } else if (const auto* box = dynamic_cast<const ui::CheckBox*>(&control)) {
    json["checked"] = box->Checked.Get();
  } else if (const auto* option = dynamic_cast<const ui::OptionButton*>(&control)) {
    json["checked"] = option->Checked.Get();
  } else if (const auto* bar = dynamic_cast<const ui::ScrollBar*>(&control)) {
    json["value"] = bar->Value.Get();
    json["min"] = bar->Min.Get();
    json["max"] = bar->Max.Get();
  }
}

/// A text stands where the kind has one by its nature, and elsewhere when there is one.
void AddText(Json& json, const ui::Control& control) {
  std::string text = control.Text;
  if (const auto* chart = dynamic_cast<const ui::Chart*>(&control)) text = ChartText(*chart);
  const bool always = control.Is() != ui::Kind::ListBox && control.Is() != ui::Kind::ScrollBar &&
                      control.Is() != ui::Kind::Picture && control.Is() != ui::Kind::Chart;
  if (always || !text.empty()) json["text"] = ToUtf8(text);
}

Json ControlJson(const ui::Control& control) {
  Json json;
  json["name"] = ToUtf8(control.Name());
  json["kind"] = ui::KindName(control.Is());
  AddText(json, control);
  json["enabled"] = control.Enabled.Get();
  json["visible"] = control.Visible.Get();
  if (!control.Tip->empty()) json["tip"] = ToUtf8(control.Tip.Get());
  AddState(json, control);
  return json;
}

Json BoxJson(const Box& box) {
  constexpr const char* kKinds[] = {"ok", "yesno", "input"};
  Json json;
  json["kind"] = kKinds[static_cast<int>(box.Is)];
  json["title"] = ToUtf8(box.Title);
  json["text"] = ToUtf8(box.Text);
  if (box.Is != Box::Kind::Ok) json["default"] = ToUtf8(box.Default);
  return json;
}

}  // namespace

std::string TextAnswer(const Answer& answer, int width) {
  if (!answer.Error.empty()) return "Error: " + answer.Error + "\n";
  if (!answer.Help.empty()) return answer.Help;
  if (!answer.Shared.empty()) return answer.Shared;
  if (answer.Open) return ToUtf8(BoxText(*answer.Open, width));
  if (answer.Found) return ToUtf8(FoundText(*answer.Found));
  if (!answer.Top) return "The game has ended.\n";
  if (!answer.Only.empty()) return ToUtf8(OneControl(*answer.Top, answer.Only, width));
  const std::string note = answer.Note.empty() ? "" : answer.Note + "\n";
  return note + ToUtf8(ScreenText(*answer.Top, width));
}

std::string JsonAnswer(const Answer& answer) {
  Json json = Json::object();
  if (answer.Top) {
    json["screen"] = ToUtf8(answer.Top->Name());
    json["title"] = ToUtf8(answer.Top->Title.Get());
    json["controls"] = Json::array();
    for (const ui::Control* control : answer.Top->Controls())
      json["controls"].push_back(ControlJson(*control));
  }
  if (answer.Open) json["box"] = BoxJson(*answer.Open);
  if (answer.Found) {
    json["found"] = Json::array();
    for (const ui::Finding& one : *answer.Found)
      json["found"].push_back(
          Json::array({ToUtf8(one.Heading), ToUtf8(one.Words), ToUtf8(one.About)}));
  }
  if (!answer.Error.empty()) json["error"] = answer.Error;
  if (!answer.Note.empty()) json["note"] = answer.Note;
  if (!answer.Help.empty()) json["help"] = answer.Help;
  if (!answer.Shared.empty()) json["shared"] = answer.Shared;
  return json.dump();
}

}  // namespace grapplemont::console
