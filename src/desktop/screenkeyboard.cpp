#include <QScrollArea>
#include <algorithm>

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
  ControlView* const first = FirstInUse();
  (first ? first->FocusTarget() : this)->setFocus(Qt::OtherFocusReason);
}

/// What a page begins with: an offer of a wage is not typed into a name below it. Where there is
/// only one way to go, no list keeps the space bar from it.
ControlView* ScreenView::FirstInUse() const {
  if (screen_->Is() == ui::Role::Hub || !page_.Cancel) return nullptr;
  const auto first = std::ranges::find_if(views_, [this](ControlView* view) {
    const ui::Kind kind = view->Shows().Is();
    const auto* bar = dynamic_cast<const ui::ScrollBar*>(&view->Shows());
    const bool begins =
        kind == ui::Kind::TextBox || kind == ui::Kind::ListBox || (bar && !bar->Tells);
    return begins && view->Shows().Enabled && view->FocusTarget()->isVisibleTo(this);
  });
  return first == views_.end() ? nullptr : *first;
}

void ScreenView::ShowWhatIsMissing() {
  ControlView* const first = FirstInUse();
  const auto* line = first ? dynamic_cast<const ui::TextBox*>(&first->Shows()) : nullptr;
  if (!line || line->MaxLength == 0 || !line->Text->empty()) return;
  QWidget* const field = first->FocusTarget();
  field->setFocus(Qt::OtherFocusReason);
  for (QWidget* above = field->parentWidget(); above; above = above->parentWidget())
    if (auto* scroller = qobject_cast<QScrollArea*>(above)) scroller->ensureWidgetVisible(field);
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
