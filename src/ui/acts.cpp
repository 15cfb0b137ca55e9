#include "ui/acts.h"

#include <charconv>

namespace grapplemont::ui {

namespace {

/// The control if it is there for the player, else nullptr and why not.
Control* Reach(Screen& screen, std::string_view name, std::string& why) {
  Control* control = screen.Find(name);
  const std::string quoted = "\"" + std::string(name) + "\"";
  if (!control) {
    why = screen.Name() + " has no control " + quoted + ".";
  } else if (!control->Visible) {
    why = quoted + " is not visible.";
  } else if (!control->Enabled) {
    why = quoted + " is disabled.";
  } else {
    return control;
  }
  return nullptr;
}

std::string CannotBe(const Control& control, std::string_view action) {
  return "\"" + control.Name() + "\" is a " + std::string(KindName(control.Is())) +
         " and cannot be " + std::string(action) + ".";
}

/// The row that a number or a text means; 0 when none.
template <class TextOf>
int FindRow(std::string_view rowOrText, int count, TextOf textOf) {
  for (int row = 1; row <= count; ++row)
    if (textOf(row) == rowOrText) return row;
  int row = 0;
  const auto [end, fault] =
      std::from_chars(rowOrText.data(), rowOrText.data() + rowOrText.size(), row);
  const bool whole = fault == std::errc() && end == rowOrText.data() + rowOrText.size();
  return whole && row >= 1 && row <= count ? row : 0;
}

std::string NoRow(const Control& control, std::string_view rowOrText) {
  return "\"" + control.Name() + "\" has no row \"" + std::string(rowOrText) + "\".";
}

std::string FirstColumn(const ListBox& list, int row) {
  const auto& cells = list.Rows()[static_cast<std::size_t>(row - 1)].Cells;
  return cells.empty() ? std::string() : cells.front().Text;
}

void Choose(Screen& screen, OptionButton& chosen) {
  for (Control* control : screen.Controls())
    if (auto* option = dynamic_cast<OptionButton*>(control);
        option && option->Group == chosen.Group)
      option->Checked = option == &chosen;
}

}  // namespace

std::string Click(Desk& desk, Screen& screen, std::string_view name) {
  std::string why;
  Control* control = Reach(screen, name, why);
  if (!control) return why;
  if (auto* button = dynamic_cast<Button*>(control)) {
    desk.Event(button->OnClick);
  } else if (auto* picture = dynamic_cast<Picture*>(control); picture && picture->OnClick) {
    desk.Event(picture->OnClick);
  } else if (auto* box = dynamic_cast<CheckBox*>(control)) {
    return Check(desk, screen, name, !box->Checked);
  } else if (dynamic_cast<OptionButton*>(control)) {
    return Check(desk, screen, name, true);
  } else {
    return CannotBe(*control, "clicked");
  }
  return {};
}

std::string Type(Desk& desk, Screen& screen, std::string_view name, std::string_view text) {
  std::string why;
  Control* control = Reach(screen, name, why);
  if (!control) return why;
  auto* box = dynamic_cast<TextBox*>(control);
  if (!box) return CannotBe(*control, "typed into");
  if (box->MaxLength > 0) text = text.substr(0, static_cast<std::size_t>(box->MaxLength));
  box->Text = text;
  desk.Event(box->OnChange);
  return {};
}

namespace {

using FindIn = int (*)(const Control& control, std::string_view wanted);

int ByNumberOrText(const Control& control, std::string_view wanted) {
  if (const auto* combo = dynamic_cast<const ComboBox*>(&control))
    return FindRow(wanted, combo->Count(), [&](int row) -> std::string_view {
      return combo->Rows()[static_cast<std::size_t>(row - 1)];
    });
  const auto& list = dynamic_cast<const ListBox&>(control);
  return FindRow(wanted, list.Count(), [&](int row) { return FirstColumn(list, row); });
}

int ByNumber(const Control& control, std::string_view wanted) {
  const auto* combo = dynamic_cast<const ComboBox*>(&control);
  const int count = combo ? combo->Count() : dynamic_cast<const ListBox&>(control).Count();
  return FindRow(wanted, count, [](int) { return std::string_view(); });
}

std::string PickBy(FindIn find, Desk& desk, Screen& screen, std::string_view name,
                   std::string_view wanted) {
  std::string why;
  Control* control = Reach(screen, name, why);
  if (!control) return why;
  auto* combo = dynamic_cast<ComboBox*>(control);
  auto* list = dynamic_cast<ListBox*>(control);
  if (!combo && !list) return CannotBe(*control, "picked from");
  const int row = find(*control, wanted);
  if (row == 0) return NoRow(*control, wanted);
  if (combo) {
    combo->Select(row);
    desk.Event(combo->OnPick);
  } else {
    list->Multi ? list->Toggle(row) : list->Select(row);
    desk.Event(list->OnPick);
  }
  return {};
}

std::string OpenBy(FindIn find, Desk& desk, Screen& screen, std::string_view name,
                   std::string_view wanted) {
  std::string why;
  Control* control = Reach(screen, name, why);
  if (!control) return why;
  auto* list = dynamic_cast<ListBox*>(control);
  if (!list || !list->OnOpen) return CannotBe(*control, "opened");
  const int row = find(*control, wanted);
  if (row == 0) return NoRow(*list, wanted);
  list->Select(row);
  desk.Event([list] {
    if (list->OnPick) list->OnPick();
    list->OnOpen();
  });
  return {};
}

}  // namespace

std::string Pick(Desk& desk, Screen& screen, std::string_view name, std::string_view rowOrText) {
  return PickBy(ByNumberOrText, desk, screen, name, rowOrText);
}
std::string Pick(Desk& desk, Screen& screen, std::string_view name, int row) {
  return PickBy(ByNumber, desk, screen, name, std::to_string(row));
}
std::string OpenRow(Desk& desk, Screen& screen, std::string_view name, std::string_view rowOrText) {
  return OpenBy(ByNumberOrText, desk, screen, name, rowOrText);
}
std::string OpenRow(Desk& desk, Screen& screen, std::string_view name, int row) {
  return OpenBy(ByNumber, desk, screen, name, std::to_string(row));
}

std::string Check(Desk& desk, Screen& screen, std::string_view name, bool on) {
  std::string why;
  Control* control = Reach(screen, name, why);
  if (!control) return why;
  if (auto* box = dynamic_cast<CheckBox*>(control)) {
    if (box->Checked != on) {
      box->Checked = on;
      desk.Event(box->OnClick);
    }
  } else if (auto* option = dynamic_cast<OptionButton*>(control)) {
    if (!on) return "\"" + option->Name() + "\" is left by checking another of its group.";
    if (!option->Checked) {
      Choose(screen, *option);
      desk.Event(option->OnClick);
    }
  } else {
    return CannotBe(*control, "checked");
  }
  return {};
}

std::string Slide(Desk& desk, Screen& screen, std::string_view name, int value) {
  std::string why;
  Control* control = Reach(screen, name, why);
  if (!control) return why;
  auto* bar = dynamic_cast<ScrollBar*>(control);
  if (!bar) return CannotBe(*control, "slid");
  if (value < bar->Min || value > bar->Max)
    return "\"" + bar->Name() + "\" goes from " + std::to_string(bar->Min) + " to " +
           std::to_string(bar->Max) + ".";
  if (bar->Value == value) return {};
  bar->Value = value;
  desk.Event(bar->OnChange);
  return {};
}

namespace {

/// The way to a link of these words in the text; empty for none.
Handler LinkTo(const Desk& desk, std::string_view text, std::string_view words) {
  if (text.find(words) == std::string_view::npos) return {};  // most texts
  for (const Link& link : desk.LinksIn(text))
    if (text.substr(link.From, link.Length) == words) return link.Open;
  return {};
}

Handler LinkIn(const Desk& desk, const Control& control, std::string_view words) {
  if (control.Is() == Kind::Label || control.Is() == Kind::Report)
    return LinkTo(desk, control.Text.Get(), words);
  const auto* list = dynamic_cast<const ListBox*>(&control);
  if (!list) return {};
  for (const ListBox::Row& row : list->Rows())
    for (const Cell& cell : row.Cells)
      if (Handler open = LinkTo(desk, cell.Text, words)) return open;
  return {};
}

}  // namespace

std::string Follow(Desk& desk, Screen& screen, std::string_view words) {
  for (const Control* control : screen.Controls()) {
    if (!control->Visible || words.empty()) continue;
    if (const Handler open = LinkIn(desk, *control, words)) {
      desk.Event(open);
      return {};
    }
  }
  return screen.Name() + " shows no link \"" + std::string(words) + "\".";
}

}  // namespace grapplemont::ui
