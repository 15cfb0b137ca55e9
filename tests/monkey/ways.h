#pragma once

#include <span>
#include <string>

#include "support/diskstate.h"
#include "ui/screen.h"

namespace grapplemont::test {

/// What can be done to a control that is there for the player.
struct Act {
  const char* Verb;
  bool (*Can)(const ui::Control& control);
  /// What stands behind the control's name; empty for nothing.
  std::string (*Words)(Chance& chance, const ui::Control& control);
  int Weight;  // how much it is liked, beside others of its screen
};
std::span<const Act> Acts();
/// What is done to a table whether or not it has rows.
inline constexpr const char* kArranging = "table";
/// Whether the control is one that players work, whatever state it is in.
bool IsWorked(const ui::Control& control);

/// A text that somebody may type where `current` stands: what is expected there, and what is not.
/// One line.
std::string TypedText(Chance& chance, const std::string& current);

}  // namespace grapplemont::test
