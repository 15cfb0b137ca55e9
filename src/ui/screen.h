#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/controls.h"

// What belongs together on a screen, as a small tree over its controls: no pixels.

namespace grapplemont::ui {

struct Box {
  enum class Kind { Item, Field, Rows, Columns, Group, Tabs, Spacer };
  Kind Is = Kind::Spacer;
  std::string Title = {};       // a Field's label, a Group's or a tab's heading
  Control* Shown = nullptr;     // an Item's or a Field's control
  std::vector<Box> Parts = {};  // of an Item or a Field: what stands within it or beside it
  int Stretch = 0;              // share of the room left over; 0 takes what it needs
  int Letters = 0;  // of Columns: the width of a part that may stand beside others; 0: the shell's
  int Spare = 0;    // of a Group: the width in letters from which on a page has room for it
  bool Waits = false;  // of the first part of Columns: goes last where they stand below each other

  Box() = default;
  Box(Control& control) : Is(Kind::Item), Shown(&control) {}
  Box(Kind is, std::string title, std::vector<Box> parts)
      : Is(is), Title(std::move(title)), Parts(std::move(parts)) {}
  /// The same box with a share of the room left over.
  Box Grow(int share = 1) && {
    Stretch = share;
    return std::move(*this);
  }
  /// The same Group, which a narrower page leaves out: it shows what is to be had elsewhere, too.
  Box From(int letters) && {
    Spare = letters;
    return std::move(*this);
  }
  /// The same first part of Columns, which lets the others go first where there is no room for all
  /// of them beside each other: it helps with what they ask.
  Box AfterOthers() && {
    Waits = true;
    return std::move(*this);
  }
  /// The same Columns, with parts below each other that would be narrower than so many letters.
  Box Wide(int letters) && {
    Letters = letters;
    return std::move(*this);
  }
};

inline Box Rows(std::vector<Box> parts) {
  return {Box::Kind::Rows, {}, std::move(parts)};
}
inline Box Columns(std::vector<Box> parts) {
  return {Box::Kind::Columns, {}, std::move(parts)};
}
/// A card with a heading (may be empty).
inline Box Group(std::string title, std::vector<Box> parts) {
  return {Box::Kind::Group, std::move(title), std::move(parts)};
}
/// Each part is a Group whose title names its tab.
inline Box Tabs(std::vector<Box> parts) {
  return {Box::Kind::Tabs, {}, std::move(parts)};
}
/// A control with its label.
inline Box Field(std::string label, Control& control) {
  Box box(control);
  box.Is = Box::Kind::Field;
  box.Title = std::move(label);
  return box;
}
/// The same with buttons right behind what it shows, and below it the words that they open.
inline Box Field(std::string label, Control& control, const std::vector<Control*>& beside) {
  Box box = Field(std::move(label), control);
  for (Control* part : beside) box.Parts.emplace_back(*part);
  return box;
}
inline Box Grow(Control& control, int share = 1) {
  return Box(control).Grow(share);
}
/// A table in whose rows buttons stand: the n-th in the row of the key n, in the column for them.
inline Box WithButtons(ListBox& list, const std::vector<Button*>& buttons) {
  Box box(list);
  for (Button* button : buttons) box.Parts.emplace_back(*button);
  return box;
}
inline Box Spacer() {
  return {};
}

/// How far a command of the hub reaches: its room only tells, or changes the company, or what is on
/// today; Away leaves the game.
enum class Reach { Tells, Company, Today, Away };

/// A group of the hub's commands in the side bar.
struct SideGroup {
  struct Command {
    Button* Press;
    std::string Key = {};  // "F2"
    Reach Into = Reach::Company;
    std::string Also = {};   // what else people call its room
    std::string Pages = {};  // the screens of its room, by name, between blanks
  };
  std::string Title;
  std::vector<Command> Commands;
};

/// A screen's arrangement. Facts is the line under the title, More are those under that, and Face
/// stands before them all. Actions stand right of the title, in order; Main is gold, stands last
/// and is what Enter does, whatever has the keyboard; Then takes its part while Main is hidden
/// or disabled; Cancel is what Escape does. Main and Cancel need not be among Actions. On a page
/// above the hub that has no Main, Enter does what the hub's Main does.
struct Page {
  Label* Facts = nullptr;
  std::vector<Label*> More = {};
  Picture* Face = nullptr;
  std::vector<Button*> Actions = {};
  Button* Main = nullptr;
  Button* Then = nullptr;
  Button* First = nullptr;  // the hub alone: in Main's place on its own page, while it is visible
  Button* Cancel = nullptr;
  /// What Escape would lose, as a question that it asks first; empty while there is nothing.
  std::function<std::string()> Loses = {};
  /// Why the page stays while rooms of the hub are visited: those that reach up to Lets open above
  /// it and lead back, the others wait. Empty: who goes to a room leaves the page.
  std::string Stays = {};
  Reach Lets = Reach::Company;
  bool Large = false;  // a dialog that wants nearly the whole window, whatever is in it
  Box Body = {};
  Button* Clear = nullptr;  // takes the screen's own filters off; Backspace does
  // The hub alone: its commands, and what the top bar always says.
  std::vector<SideGroup> Side = {};
  std::vector<Label*> Top = {};
  std::vector<Button*> TopActions = {};  // Main is the last of them
};

class Desk;

/// What a shell makes of a screen: Cover fills the window (title, menu); the Hub gives side bar and
/// top bar; a Page fills the room beside them; a Dialog, which asks for something, stands over what
/// is below it; Wait takes no input.
enum class Role { Cover, Hub, Page, Dialog, Wait };

/// A window of the program: its controls are its members, its handlers ask rules and show answers.
class Screen {
  unsigned revision_ = 1;  // stands before the property that counts in it

 public:
  Screen(Desk& desk, std::string name, std::string title, Role role = Role::Page);
  virtual ~Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  const std::string& Name() const { return name_; }
  Role Is() const { return role_; }
  virtual Page Layout() = 0;
  /// Runs once, when the screen has come to the top for the first time.
  virtual void Load() {}
  /// Runs when a screen above it has closed, and when an event was taken back: shows the world as
  /// it is.
  virtual void Return() {}

  /// In the order of their members; nullptr for an unknown name.
  const std::vector<Control*>& Controls() const { return controls_; }
  Control* Find(std::string_view name) const;

  Property<std::string> Title{revision_, {}};
  unsigned Revision() const { return revision_; }

 protected:
  Desk& desk() { return desk_; }
  void Close();  // this screen
  /// Controls made later stand before this one.
  void KeepLast(Control& control) { last_ = &control; }
  void PutBefore(Control& control, const Control& next);

 private:
  friend class Control;
  friend class Desk;
  Desk& desk_;
  std::string name_;
  Role role_;
  bool loaded_ = false;
  Control* last_ = nullptr;
  std::vector<Control*> controls_;
};

}  // namespace grapplemont::ui
