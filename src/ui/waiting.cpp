#include "ui/waiting.h"

#include <cctype>

namespace grapplemont {

void Waiting::Done() {
  if (screen_) game_.Desk().Close(*screen_);
  screen_ = nullptr;
}

void Waiting::Tell(std::string_view step) {
  if (!screen_) {
    if (!game_.Desk().Knows("frmWait")) return;
    game_.Desk().Open("frmWait");
    screen_ = game_.Desk().Top();
  }
  if (ui::Control* label = screen_->Find("lblstep")) label->Text = InWords(step);
  game_.Desk().Repaint();
}

std::string InWords(std::string_view name) {
  std::string words;
  for (const char letter : name) {
    const auto byte = static_cast<unsigned char>(letter);
    if (std::isupper(byte) && !words.empty() && words.back() != ' ') words += ' ';
    words += words.empty() ? letter : static_cast<char>(std::tolower(byte));
  }
  return words;
}

}  // namespace grapplemont
