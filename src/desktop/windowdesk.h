#pragma once

#include "ui/desk.h"

namespace grapplemont::desktop {

class Window;

/// The desk whose screens lie in a window. Without one, questions are answered with the careful
/// answer.
class WindowDesk : public ui::Desk {
 public:
  void Say(const std::string& title, const std::string& text) override;
  bool Ask(const std::string& title, const std::string& text, ui::Default answer) override;
  std::string Prompt(const std::string& title, const std::string& text,
                     const std::string& offered) override;
  void Repaint() override;

 private:
  friend class Window;
  Window* window_ = nullptr;
};

}  // namespace grapplemont::desktop
