#pragma once

#include <string>

#include "ui/desk.h"

namespace grapplemont::console {

/// A box that waits for the player's answer.
struct Box {
  enum class Kind { Ok, YesNo, Input };
  Kind Is = Kind::Ok;
  std::string Title, Text;
  std::string Default = {};  // "yes" or "no", or the text that is offered
};

/// What is answered to a command.
struct Answer {
  ui::Screen* Top = nullptr;  // nullptr when the program is at its end
  const Box* Open = nullptr;
  std::string Error = {};  // UTF-8, as are all answers
  std::string Help = {}, Shared = {};
  std::string Note = {};  // what the player should know of what was done, beside the screen
  std::string Only = {};  // the one control that was asked for
  const std::vector<ui::Finding>* Found = nullptr;  // what a search has brought
};

/// One JSON object, without the line's end.
std::string JsonAnswer(const Answer& answer);
/// Lines for people, `width` letters wide where it can be done.
std::string TextAnswer(const Answer& answer, int width);

}  // namespace grapplemont::console
