#include "desktop/screenview.h"
#include "desktop/tableview.h"
#include "desktop/topbar.h"

// Which control of a screen has the keyboard, and which has it again when the screen comes back.

namespace grapplemont::desktop {

namespace {

/// Whether a widget stands beside the pages, and so belongs to whichever is open.
bool IsInBars(const QWidget* widget) {
  for (; widget; widget = widget->parentWidget()) {
    if (dynamic_cast<const ScreenView*>(widget)) return false;
    if (dynamic_cast<const HubFrame*>(widget)) return true;
  }
  return false;
}

}  // namespace

void ScreenView::RememberKeyboard() {
  QWidget* focus = window()->focusWidget();
  if (focus && (isAncestorOf(focus) || IsInBars(focus))) keyboard_ = focus;
}

const ui::Control* ScreenView::ControlWith(const QWidget* focus) const {
  for (ControlView* view : views_)
    if (focus && (view->Widget() == focus || view->Widget()->isAncestorOf(focus)))
      return &view->Shows();
  return nullptr;
}

const ui::Control* ScreenView::KeyboardOn() const {
  return ControlWith(window()->focusWidget());
}

const ui::Control* ScreenView::KeyboardHeld() const {
  return ControlWith(keyboard_);
}

void ScreenView::GiveKeyboard(const ui::Control& control) {
  for (ControlView* view : views_)
    if (&view->Shows() == &control) view->FocusTarget()->setFocus(Qt::ActiveWindowFocusReason);
}

void ScreenView::HoldKeyboard(const ui::Control& control) {
  for (ControlView* view : views_)
    if (&view->Shows() == &control) keyboard_ = view->FocusTarget();
}

void ScreenView::TakeKeyboard() {
  if (keyboard_ && keyboard_->isEnabled() && keyboard_->isVisibleTo(window()))
    return keyboard_->setFocus(Qt::ActiveWindowFocusReason);  // as it was, with ring and cursor
  // Where there is only one way to go, no list keeps the space bar from it.
  if (screen_->Is() != ui::Role::Hub && page_.Cancel)
    for (ControlView* view : views_) {
      const ui::Kind kind = view->Shows().Is();
      // What a page begins with: an offer of a wage is not typed into a name below it.
      const auto* bar = dynamic_cast<const ui::ScrollBar*>(&view->Shows());
      const bool begins =
          kind == ui::Kind::TextBox || kind == ui::Kind::ListBox || (bar && !bar->Tells);
      if (begins && view->Shows().Enabled && view->FocusTarget()->isVisibleTo(this))
        return view->FocusTarget()->setFocus(Qt::OtherFocusReason);
    }
  setFocus(Qt::OtherFocusReason);
}

bool ScreenView::ChooseMissing() {
  TableView* next = nullptr;
  for (ControlView* view : views_) {
    auto* table = dynamic_cast<TableView*>(view);
    if (!table || !table->isVisible()) continue;
    if (table->FocusTarget() == window()->focusWidget() && table->ChooseCurrent()) return true;
    if (!next && table->WaitsForChoice()) next = table;
  }
  if (next) next->FocusTarget()->setFocus(Qt::TabFocusReason);
  return false;
}

}  // namespace grapplemont::desktop
