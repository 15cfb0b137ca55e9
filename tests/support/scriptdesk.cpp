#include "support/scriptdesk.h"

#include <gtest/gtest.h>

#include "ui/acts.h"

namespace grapplemont::test {

namespace {

testing::ScopedTrace Trace(std::source_location at, const std::string& words) {
  return {at.file_name(), static_cast<int>(at.line()), words};
}

std::string Quoted(const std::optional<std::string>& words) {
  return words ? "\"" + *words + "\"" : "any text";
}

void ExpectWords(const char* what, const std::optional<std::string>& expected,
                 const std::string& actual) {
  EXPECT_EQ(expected.value_or(actual), actual) << "the " << what << " of the box";
}

}  // namespace

void ScriptDesk::Do(const std::string& act, std::string_view name, Place at,
                    const std::function<std::string(ui::Screen&)>& perform) {
  const testing::ScopedTrace trace = Trace(at, act + " " + std::string(name));
  // The screen may close while its own handler runs.
  if (Empty()) {
    ADD_FAILURE() << "Nothing lies on the desk.";
    return;
  }
  const std::shared_ptr<ui::Screen> top = Screens().back();
  const std::string refusal = perform(*top);
  if (!refusal.empty()) ADD_FAILURE() << top->Name() << ": " << refusal;
}

void ScriptDesk::Click(std::string_view name, Place at) {
  Do("Click", name, at, [&](ui::Screen& top) { return ui::Click(*this, top, name); });
}

void ScriptDesk::Type(std::string_view name, std::string_view text, Place at) {
  Do("Type", name, at, [&](ui::Screen& top) { return ui::Type(*this, top, name, text); });
}

void ScriptDesk::Pick(std::string_view name, std::string_view text, Place at) {
  Do("Pick", name, at, [&](ui::Screen& top) { return ui::Pick(*this, top, name, text); });
}

void ScriptDesk::Pick(std::string_view name, int row, Place at) {
  Do("Pick", name, at, [&](ui::Screen& top) { return ui::Pick(*this, top, name, row); });
}

void ScriptDesk::OpenRow(std::string_view name, std::string_view text, Place at) {
  Do("OpenRow", name, at, [&](ui::Screen& top) { return ui::OpenRow(*this, top, name, text); });
}

void ScriptDesk::OpenRow(std::string_view name, int row, Place at) {
  Do("OpenRow", name, at, [&](ui::Screen& top) { return ui::OpenRow(*this, top, name, row); });
}

void ScriptDesk::Check(std::string_view name, bool on, Place at) {
  Do("Check", name, at, [&](ui::Screen& top) { return ui::Check(*this, top, name, on); });
}

void ScriptDesk::Slide(std::string_view name, int value, Place at) {
  Do("Slide", name, at, [&](ui::Screen& top) { return ui::Slide(*this, top, name, value); });
}

void ScriptDesk::ExpectSay(Words title, Words text, Place at) {
  expected_.push_back(
      {.Kind = "Say", .Title = std::move(title), .Text = std::move(text), .At = at});
}

void ScriptDesk::ExpectAsk(Words title, Words text, bool answer, std::optional<ui::Default> offered,
                           Place at) {
  expected_.push_back({.Kind = "Ask",
                       .Title = std::move(title),
                       .Text = std::move(text),
                       .Yes = answer,
                       .Button = offered,
                       .At = at});
}

void ScriptDesk::ExpectPrompt(Words title, Words text, std::string answer, Words offered,
                              Place at) {
  expected_.push_back({.Kind = "Prompt",
                       .Title = std::move(title),
                       .Text = std::move(text),
                       .Answer = std::move(answer),
                       .Offered = std::move(offered),
                       .At = at});
}

void ScriptDesk::Finish() {
  for (const Expected& left : expected_)
    ADD_FAILURE_AT(left.At.file_name(), static_cast<int>(left.At.line()))
        << left.Kind << "(" << Quoted(left.Title) << ", " << Quoted(left.Text)
        << ") was expected and never came.";
  expected_.clear();
}

std::optional<ScriptDesk::Expected> ScriptDesk::Meet(const std::string& kind,
                                                     const std::string& title,
                                                     const std::string& text) {
  boxes_.push_back({kind, title, text});
  if (IsEasy && (kind == "Say" || expected_.empty())) return std::nullopt;
  if (expected_.empty()) {
    ADD_FAILURE() << "Unexpected box: " << kind << "(\"" << title << "\", \"" << text << "\")";
    return std::nullopt;
  }
  Expected next = std::move(expected_.front());
  expected_.pop_front();
  const testing::ScopedTrace trace = Trace(next.At, "expected here");
  EXPECT_EQ(next.Kind, kind) << "\"" << title << "\", \"" << text << "\"";
  ExpectWords("title", next.Title, title);
  ExpectWords("text", next.Text, text);
  return next.Kind == kind ? std::optional(std::move(next)) : std::nullopt;
}

void ScriptDesk::Say(const std::string& title, const std::string& text) {
  Meet("Say", title, text);
  Note({"ok"});
}

bool ScriptDesk::Ask(const std::string& title, const std::string& text, ui::Default answer) {
  const auto met = Meet("Ask", title, text);
  if (met) {
    EXPECT_EQ(met->Button.value_or(answer), answer) << "the default of \"" << text << "\"";
  }
  const bool yes = met ? met->Yes : answer == ui::Default::Yes;
  Note({yes ? "yes" : "no"});
  return yes;
}

std::string ScriptDesk::Prompt(const std::string& title, const std::string& text,
                               const std::string& offered) {
  const auto met = Meet("Prompt", title, text);
  const std::string typed = met ? met->Answer : std::string();
  Note({typed.empty() ? "cancel" : "enter " + typed});
  if (met) ExpectWords("offered text", met->Offered, offered);
  return typed;
}

void ScriptDesk::Repaint() {
  if (OnRepaint) OnRepaint();
}

const ui::Control* ScriptDesk::Look(std::string_view name) const {
  const ui::Control* control = Top() ? Top()->Find(name) : nullptr;
  if (!control) ADD_FAILURE() << "\"" << TopName() << "\" has no control \"" << name << "\".";
  return control;
}

template <class C>
const C* ScriptDesk::Look(std::string_view name) const {
  const ui::Control* control = Look(name);
  const C* found = dynamic_cast<const C*>(control);
  if (control && !found)
    ADD_FAILURE() << "\"" << name << "\" is a " << ui::KindName(control->Is()) << ".";
  return found;
}

std::string ScriptDesk::TopName() const {
  return Top() ? Top()->Name() : std::string();
}

std::string ScriptDesk::Title() const {
  return Top() ? Top()->Title.Get() : std::string();
}

std::string ScriptDesk::Text(std::string_view name) const {
  const ui::Control* control = Look(name);
  return control ? control->Text.Get() : std::string();
}

std::string ScriptDesk::Tip(std::string_view name) const {
  const ui::Control* control = Look(name);
  return control ? control->Tip.Get() : std::string();
}

std::string ScriptDesk::Badge(std::string_view button) const {
  const auto* found = Look<ui::Button>(button);
  return found ? found->Badge.Get() : std::string();
}

bool ScriptDesk::Enabled(std::string_view name) const {
  const ui::Control* control = Look(name);
  return control && control->Enabled;
}

bool ScriptDesk::Visible(std::string_view name) const {
  const ui::Control* control = Look(name);
  return control && control->Visible;
}

bool ScriptDesk::Checked(std::string_view name) const {
  const ui::Control* control = Look(name);
  if (const auto* box = dynamic_cast<const ui::CheckBox*>(control)) return box->Checked;
  const auto* option = control ? Look<ui::OptionButton>(name) : nullptr;
  return option && option->Checked;
}

int ScriptDesk::Value(std::string_view name) const {
  const auto* bar = Look<ui::ScrollBar>(name);
  return bar ? bar->Value.Get() : 0;
}

std::vector<std::vector<std::string>> ScriptDesk::Rows(std::string_view name) const {
  std::vector<std::vector<std::string>> rows;
  const ui::Control* control = Look(name);
  if (const auto* combo = dynamic_cast<const ui::ComboBox*>(control)) {
    for (const std::string& row : combo->Rows()) rows.push_back({row});
  } else if (const auto* list = control ? Look<ui::ListBox>(name) : nullptr) {
    for (const ui::ListBox::Row& row : list->Rows())
      for (rows.emplace_back(); const ui::Cell& cell : row.Cells) rows.back().push_back(cell.Text);
  }
  return rows;
}

std::vector<std::string> ScriptDesk::FirstColumn(std::string_view name) const {
  std::vector<std::string> first;
  for (auto& row : Rows(name)) first.push_back(row.empty() ? std::string() : row.front());
  return first;
}

std::vector<int> ScriptDesk::Selected(std::string_view name) const {
  std::vector<int> selected;
  const ui::Control* control = Look(name);
  if (const auto* combo = dynamic_cast<const ui::ComboBox*>(control)) {
    if (combo->Selected() != 0) selected.push_back(combo->Selected());
  } else if (const auto* list = control ? Look<ui::ListBox>(name) : nullptr) {
    int row = 0;
    for (const ui::ListBox::Row& held : list->Rows())
      if (++row; held.Selected) selected.push_back(row);
  }
  return selected;
}

}  // namespace grapplemont::test
