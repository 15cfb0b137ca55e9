#include "desktop/windowdesk.h"

#include "desktop/window.h"

namespace grapplemont::desktop {

void WindowDesk::Say(const std::string& title, const std::string& text) {
  if (window_) window_->Say(title, text);
}

bool WindowDesk::Ask(const std::string& title, const std::string& text, ui::Default answer) {
  return window_ && window_->Ask(title, text, answer);
}

std::string WindowDesk::Prompt(const std::string& title, const std::string& text,
                               const std::string& offered) {
  return window_ ? window_->Prompt(title, text, offered) : std::string();
}

void WindowDesk::Repaint() {
  if (window_) window_->RepaintNow();
}

}  // namespace grapplemont::desktop
