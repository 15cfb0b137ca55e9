#include "ui/acts.h"

#include <functional>

#include "ui/actlines.h"
#include "ui/asnumber.h"

namespace grapplemont::ui {

namespace {

std::string Quoted(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

/// Tells the desk what is about to be done; `words` stand behind the control's name.
void Note(Desk& desk, const Screen& screen, const Control& control, std::string_view verb,
          std::string_view words = {}) {
  const std::string on = desk.Top() == &screen ? "" : "on " + screen.Name() + " ";
  const bool goesOn = control.Is() == Kind::TextBox || control.Is() == Kind::ScrollBar;
  const bool says = control.Is() == Kind::Button || control.Is() == Kind::CheckBox ||
                    control.Is() == Kind::OptionButton;
  const std::string caption = says ? control.Text.Get() : std::string();
  desk.NoteOwn({on + std::string(verb) + " " + control.Name() +
                    (words.empty() ? "" : " " + std::string(words)),
                (caption.empty() ? "" : caption + ", ") + screen.Title.Get(), goesOn});
}

/// Does an act to a control that is there for the player; else why it cannot be done.
std::string OnControl(Screen& screen, std::string_view name,
                      const std::function<std::string(Control&)>& act) {
  Control* control = screen.Find(name);
  if (!control) return screen.Name() + " has no control " + Quoted(name) + ".";
  if (!control->Visible) return Quoted(name) + " is not visible.";
  if (!control->Enabled)
    return Quoted(name) + " is disabled." + (control->Tip->empty() ? "" : " " + control->Tip.Get());
  return act(*control);
}

std::string CannotBe(const Control& control, std::string_view action) {
  return Quoted(control.Name()) + " is a " + std::string(KindName(control.Is())) +
         " and cannot be " + std::string(action) + ".";
}

/// The same to a control of class C alone; `action` is what cannot be done to any other.
template <class C>
std::string ReachA(Screen& screen, std::string_view name, std::string_view action,
                   const std::function<std::string(C&)>& act) {
  return OnControl(screen, name, [&](Control& control) {
    auto* of = dynamic_cast<C*>(&control);
    return of ? act(*of) : CannotBe(control, action);
  });
}

void Choose(Screen& screen, OptionButton& chosen) {
  for (Control* control : screen.Controls())
    if (auto* option = dynamic_cast<OptionButton*>(control);
        option && option->Group == chosen.Group)
      option->Checked = option == &chosen;
}

/// What a row's first column says.
std::string TextOf(const ComboBox& combo, int row) {
  return combo.Rows()[static_cast<std::size_t>(row - 1)];
}
std::string TextOf(const ListBox& list, int row) {
  return list.CellOf(row, 0).Text;
}

/// A row as a player names it.
struct Wanted {
  std::string Words;
  bool ByText = true;  // else by its number alone

  /// The row that is meant; 0 when none.
  template <class Rows>
  int In(const Rows& rows) const {
    for (int row = 1; ByText && row <= rows.Count(); ++row)
      if (TextOf(rows, row) == Words) return row;
    const int row = AsNumber(Words).value_or(0);
    return row >= 1 && row <= rows.Count() ? row : 0;
  }
};

std::string NoRow(const Control& control, const Wanted& wanted) {
  return Quoted(control.Name()) + " has no row " + Quoted(wanted.Words) + ".";
}

std::string PickRow(Desk& desk, Screen& screen, std::string_view name, const Wanted& wanted) {
  return OnControl(screen, name, [&](Control& control) -> std::string {
    auto* combo = dynamic_cast<ComboBox*>(&control);
    auto* list = dynamic_cast<ListBox*>(&control);
    if (!combo && !list) return CannotBe(control, "picked from");
    const int row = combo ? wanted.In(*combo) : wanted.In(*list);
    if (row == 0) return NoRow(control, wanted);
    Note(desk, screen, control, "pick", std::to_string(row));
    if (combo) {
      combo->Select(row);
    } else {
      list->Multi ? list->Toggle(row) : list->Select(row);
    }
    desk.Event(combo ? combo->OnPick : list->OnPick);
    return {};
  });
}

/// The same to a list that can have several rows chosen.
std::string ReachMany(Screen& screen, std::string_view name,
                      const std::function<std::string(ListBox&)>& act) {
  return ReachA<ListBox>(screen, name, "given more rows", [&](ListBox& list) {
    return list.Extends || list.Multi ? act(list)
                                      : Quoted(list.Name()) + " takes one row at a time.";
  });
}

std::string PickToo(Desk& desk, Screen& screen, std::string_view name, const Wanted& wanted) {
  return ReachMany(screen, name, [&](ListBox& list) -> std::string {
    const int row = wanted.In(list);
    if (row == 0) return NoRow(list, wanted);
    Note(desk, screen, list, "also", std::to_string(row));
    list.Toggle(row);
    desk.Event(list.OnPick);
    return {};
  });
}

std::string OpenRow(Desk& desk, Screen& screen, std::string_view name, const Wanted& wanted) {
  return ReachA<ListBox>(screen, name, "opened", [&](ListBox& list) -> std::string {
    if (!list.OnOpen) return CannotBe(list, "opened");
    const int row = wanted.In(list);
    if (row == 0) return NoRow(list, wanted);
    Note(desk, screen, list, "open", std::to_string(row));
    list.Select(row);
    desk.Event([&list] {
      if (list.OnPick) list.OnPick();
      list.OnOpen();
    });
    return {};
  });
}

}  // namespace

std::string Click(Desk& desk, Screen& screen, std::string_view name) {
  return OnControl(screen, name, [&](Control& control) -> std::string {
    auto* button = dynamic_cast<Button*>(&control);
    auto* picture = dynamic_cast<Picture*>(&control);
    if (const auto* box = dynamic_cast<CheckBox*>(&control))
      return Check(desk, screen, name, !box->Checked);
    if (control.Is() == Kind::OptionButton) return Check(desk, screen, name, true);
    if (!button && !(picture && picture->OnClick)) return CannotBe(control, "clicked");
    // What a clock presses by itself is no act of the player's.
    if (!button || (button->Every == 0 && !button->Fleeting)) Note(desk, screen, control, "click");
    desk.Event(button ? button->OnClick : picture->OnClick);
    return {};
  });
}

std::string Type(Desk& desk, Screen& screen, std::string_view name, std::string_view text) {
  return ReachA<TextBox>(screen, name, "typed into", [&](TextBox& box) -> std::string {
    if (box.MaxLength > 0) text = text.substr(0, static_cast<std::size_t>(box.MaxLength));
    Note(desk, screen, box, "type", OnOneLine(text));
    box.Text = text;
    desk.Event(box.OnChange);
    return {};
  });
}

std::string Pick(Desk& desk, Screen& screen, std::string_view name, std::string_view rowOrText) {
  return PickRow(desk, screen, name, {std::string(rowOrText)});
}
std::string Pick(Desk& desk, Screen& screen, std::string_view name, int row) {
  return PickRow(desk, screen, name, {std::to_string(row), false});
}
std::string PickToo(Desk& desk, Screen& screen, std::string_view name, std::string_view rowOrText) {
  return PickToo(desk, screen, name, Wanted{std::string(rowOrText)});
}
std::string PickToo(Desk& desk, Screen& screen, std::string_view name, int row) {
  return PickToo(desk, screen, name, Wanted{std::to_string(row), false});
}
std::string PickRows(Desk& desk, Screen& screen, std::string_view name, std::vector<int> rows) {
  return ReachMany(screen, name, [&](ListBox& list) -> std::string {
    std::string words;
    for (const int row : rows) words += (words.empty() ? "" : " ") + std::to_string(row);
    Note(desk, screen, list, "rows", words);
    list.SelectRows(rows);
    desk.Event(list.OnPick);
    return {};
  });
}
std::string OpenRow(Desk& desk, Screen& screen, std::string_view name, std::string_view rowOrText) {
  return OpenRow(desk, screen, name, Wanted{std::string(rowOrText)});
}
std::string OpenRow(Desk& desk, Screen& screen, std::string_view name, int row) {
  return OpenRow(desk, screen, name, Wanted{std::to_string(row), false});
}

std::string MoveRow(Desk& desk, Screen& screen, std::string_view name, int row, int to) {
  return ReachA<ListBox>(screen, name, "put in another order", [&](ListBox& list) -> std::string {
    if (!list.OnMove) return CannotBe(list, "put in another order");
    for (const int wanted : {row, to})
      if (wanted < 1 || wanted > list.Count()) return NoRow(list, {std::to_string(wanted), false});
    Note(desk, screen, list, "move", std::to_string(row) + " " + std::to_string(to));
    desk.Event([&, from = list.KeyOf(row), onto = list.KeyOf(to)] { list.OnMove(from, onto); });
    return {};
  });
}

std::string Check(Desk& desk, Screen& screen, std::string_view name, bool on) {
  return OnControl(screen, name, [&](Control& control) -> std::string {
    auto* box = dynamic_cast<CheckBox*>(&control);
    auto* option = dynamic_cast<OptionButton*>(&control);
    if (!box && !option) return CannotBe(control, "checked");
    if (option && !on) return Quoted(name) + " is left by checking another of its group.";
    if ((box ? box->Checked : option->Checked) == on) return {};
    Note(desk, screen, control, "check", on ? "on" : "off");
    if (box) {
      box->Checked = on;
    } else {
      Choose(screen, *option);
    }
    desk.Event(box ? box->OnClick : option->OnClick);
    return {};
  });
}

std::string Slide(Desk& desk, Screen& screen, std::string_view name, int value) {
  return ReachA<ScrollBar>(screen, name, "slid", [&](ScrollBar& bar) -> std::string {
    if (value < bar.Min || value > bar.Max)
      return Quoted(name) + " goes from " + std::to_string(bar.Min) + " to " +
             std::to_string(bar.Max) + ".";
    if (bar.Value == value) return {};
    Note(desk, screen, bar, "slide", std::to_string(value));
    bar.Value = value;
    desk.Event(bar.OnChange);
    return {};
  });
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
      desk.NoteOwn({"follow " + OnOneLine(words), std::string(words)});
      desk.Event(open);
      return {};
    }
  }
  return screen.Name() + " shows no link " + Quoted(words) + ".";
}

}  // namespace grapplemont::ui
