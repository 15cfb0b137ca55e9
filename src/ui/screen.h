#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/controls.h"
#include "ui/layout.h"

namespace grapplemont::ui {

class Desk;

/// What a shell makes of a screen: Cover fills the window (title, menu); the Hub gives side bar and
/// top bar; a Page fills the room beside them; a Dialog stands over what is below it; Wait takes no
/// input.
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
