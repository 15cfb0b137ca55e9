#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>

#include "desktop/pieces.h"
#include "desktop/window.h"

// The keys that mean the same everywhere or belong to a button, and input that comes at the wrong
// time.

namespace grapplemont::desktop {

/// What no widget has wanted: Escape is the top screen's, and Enter with Ctrl is Enter.
void Window::keyPressEvent(QKeyEvent* event) {
  ScreenView* top = TopView();
  if (!top || box_ || finder_ || acting_ > 0 || event->isAutoRepeat()) return;
  if (IsEnter(event->key())) return PressEnter();
  if (!top->HandleKey(event->key())) QMainWindow::keyPressEvent(event);
}

/// A page has its own main action. Above the hub one without goes on to the hub's, unless something
/// is being typed: a name that is finished with Enter must not end the day.
ui::Button* Window::EnterButton() const {
  const ScreenView *top = TopView(), *hub = HubView();
  if (!top || box_ || finder_) return nullptr;
  if (ui::Button* const main = top->MainNow()) return main->Enabled ? main : nullptr;
  if (!hub || top->Shows().Is() != ui::Role::Page || qobject_cast<QLineEdit*>(focusWidget()))
    return nullptr;
  ui::Button* const next = hub->MainNow(false);
  return next && next->Enabled && WhyWaits(*next).empty() ? next : nullptr;
}

void Window::PressEnter() {
  ScreenView& top = *TopView();
  if (ui::Button* const button = EnterButton()) {
    if (&button->Parent() == &top.Shows())
      top.Press(button);
    else
      PressHub(*button);
  } else if (const ui::Button* const main = top.MainNow(); main && !main->Enabled) {
    HintAt(*main, main->Tip->empty() ? Shown(main->Text.Get()) + " cannot be pressed now."
                                     : Shown(main->Tip.Get()));
  }
}

void Window::HintAt(const ui::Button& refused, const QString& why) {
  QWidget* const button = TopView()->WidgetOf(refused);
  Hint(button ? *button : *this, why);
}

void Window::ShowEnter() {
  if (syncing_) return;
  const ui::Button* const pressed = KeepsEnter(focusWidget()) ? nullptr : EnterButton();
  for (const Layer& layer : layers_)
    if (layer.View) layer.View->SetEnter(pressed);
  if (frame_) frame_->Top().SetEnter(pressed);
}

/// A box that is typed in takes back its own letters by Ctrl+Z.
bool Window::PressButtonKey(const QWidget& typedIn, const QKeyEvent& event) {
  ScreenView* const top = TopView();
  const bool types =
      qobject_cast<const QLineEdit*>(&typedIn) || qobject_cast<const QPlainTextEdit*>(&typedIn);
  if (!top || event.isAutoRepeat()) return false;
  if (types && event.modifiers().testFlag(Qt::ControlModifier)) return false;
  const QKeyCombination pressed(event.modifiers() & ~Qt::KeypadModifier,
                                static_cast<Qt::Key>(event.key()));
  for (ui::Control* control : top->Shows().Controls()) {
    auto* const button = dynamic_cast<ui::Button*>(control);
    if (!button || button->Key.empty() || !button->Visible) continue;
    if (QKeySequence(Shown(button->Key))[0] != pressed) continue;
    if (!top->Press(button)) HintAt(*button, Shown(button->Tip.Get()));
    return true;
  }
  return false;
}

bool Window::HandleCommonKey(const QWidget& typedIn, const QKeyEvent& event) {
  if (box_ || finder_ || acting_ > 0) return false;
  const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
  if (modifiers == Qt::NoModifier && IsEnter(event.key())) {
    if (!TopView() || KeepsEnter(&typedIn)) return false;
    if (!event.isAutoRepeat()) PressEnter();
    return true;
  }
  if (modifiers == Qt::NoModifier && event.key() == Qt::Key_F1) {
    OpenHelp();
    return true;
  }
  if (modifiers == Qt::NoModifier && event.key() == Qt::Key_F11 && !event.isAutoRepeat()) {
    TurnFullScreen();
    return true;
  }
  if (PressButtonKey(typedIn, event) || PressSideKey(event)) return true;
  if (!modifiers.testFlag(Qt::ControlModifier) || modifiers.testFlag(Qt::AltModifier)) return false;
  if (event.key() == Qt::Key_F) return TopView() && TopView()->FocusSearch();
  for (const OwnCommand& own : OwnCommands())
    if (std::find(own.Keys.begin(), own.Keys.end(), event.key()) != own.Keys.end()) {
      own.Run();
      return true;
    }
  return false;
}

namespace {

constexpr QEvent::Type kInput[] = {QEvent::MouseButtonPress,
                                   QEvent::MouseButtonRelease,
                                   QEvent::MouseButtonDblClick,
                                   QEvent::Wheel,
                                   QEvent::KeyPress,
                                   QEvent::KeyRelease,
                                   QEvent::Shortcut,
                                   QEvent::ShortcutOverride,
                                   QEvent::ContextMenu,
                                   QEvent::TouchBegin,
                                   QEvent::TouchUpdate,
                                   QEvent::TouchEnd};

}  // namespace

/// While an event is under way and shows itself, nothing that is typed or clicked counts.
bool Window::SwallowWhileBusy(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Close && watched == this) {
    closing_ = true;
    event->ignore();
    return true;
  }
  return std::ranges::find(kInput, event->type()) != std::end(kInput);
}

bool Window::eventFilter(QObject* watched, QEvent* event) {
  if (busy_ && SwallowWhileBusy(watched, event)) return true;
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
    return QMainWindow::eventFilter(watched, event);
  const auto* widget = static_cast<QWidget*>(watched);
  const bool ours = widget->window() == this;
  return ours && HandleCommonKey(*widget, *static_cast<QKeyEvent*>(event));
}

}  // namespace grapplemont::desktop
