#include <nlohmann/json.hpp>

#include "console/answer.h"
#include "console/controltext.h"
#include "records/fields/charset.h"

namespace grapplemont::console {

namespace {

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
  if (!answer.Error.empty()) json["error"] = answer.Error;
  if (!answer.Help.empty()) json["help"] = answer.Help;
  return json.dump();
}

}  // namespace grapplemont::console
