#pragma once

#include <string>
#include <vector>

#include "ui/controls.h"

// What belongs together on a screen, as a small tree over its controls: no pixels.

namespace grapplemont::ui {

struct Box {
  enum class Kind { Item, Field, Rows, Columns, Group, Tabs, Spacer };
  Kind Is = Kind::Spacer;
  std::string Title = {};    // a Field's label, a Group's or a tab's heading
  Control* Shown = nullptr;  // an Item's or a Field's control
  std::vector<Box> Parts = {};
  int Stretch = 0;  // share of the room left over; 0 takes what it needs

  Box() = default;
  Box(Control& control) : Is(Kind::Item), Shown(&control) {}
  Box(Kind is, std::string title, std::vector<Box> parts)
      : Is(is), Title(std::move(title)), Parts(std::move(parts)) {}
  /// The same box with a share of the room left over.
  Box Grow(int share = 1) && {
    Stretch = share;
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

/// A group of the hub's commands in the side bar.
struct SideGroup {
  struct Command {
    Button* Press;
    std::string Key = {};  // "F2"
  };
  std::string Title;
  std::vector<Command> Commands;
};

/// A screen's arrangement. Facts is the line under the title. Actions stand right of the title, in
/// order; Main is gold, stands last and is what Enter does; Then takes its part while Main is
/// hidden; Cancel is what Escape does. Main and Cancel need not be among Actions.
struct Page {
  Label* Facts = nullptr;
  std::vector<Button*> Actions = {};
  Button* Main = nullptr;
  Button* Then = nullptr;
  Button* Cancel = nullptr;
  bool Large = false;  // a dialog that wants nearly the whole window, whatever is in it
  Box Body = {};
  // The hub alone: its commands, and what the top bar always says.
  std::vector<SideGroup> Side = {};
  std::vector<Label*> Top = {};
  std::vector<Button*> TopActions = {};  // Main is the last of them
};

}  // namespace grapplemont::ui
