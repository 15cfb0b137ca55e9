#include "ui/screen.h"

#include <algorithm>

#include "ui/desk.h"

namespace grapplemont::ui {

Screen::Screen(Desk& desk, std::string name, std::string title, Role role)
    : desk_(desk), name_(std::move(name)), role_(role) {
  Title = std::move(title);
}

Screen::~Screen() = default;

Control* Screen::Find(std::string_view name) const {
  const auto found = std::ranges::find_if(controls_, [&](auto* c) { return c->Name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

void Screen::PutBefore(Control& control, const Control& next) {
  std::erase(controls_, &control);
  controls_.insert(std::find(controls_.begin(), controls_.end(), &next), &control);
  if (last_ == &control) last_ = nullptr;
}

void Screen::Close() {
  desk_.Close(*this);
}

}  // namespace grapplemont::ui
