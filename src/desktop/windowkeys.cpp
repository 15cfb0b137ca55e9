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

namespace {

bool CanBePressed(const ui::Button* button) {
  return button && button->Enabled && button->Visible;
}

}  // namespace

/// A page has its own main action, which keeps Enter while it waits: nobody who is choosing means
/// to leave. A page above the hub without any goes on to the hub's, all else leads back: a second
/// Enter must not end the day behind what the first has done. What is being typed keeps Enter from
/// either.
ui::Button* Window::EnterButton() const {
  const ScreenView *top = TopView(), *hub = HubView();
  if (!top || box_ || finder_) return nullptr;
  if (ui::Button* const main = top->MainNow()) return main;
  const ui::Role role = top->Shows().Is();
  if (role == ui::Role::Hub) return nullptr;
  if (hub && role == ui::Role::Page) {
    if (qobject_cast<QLineEdit*>(focusWidget())) return nullptr;
    ui::Button* const next = hub->MainNow(false);
    if (CanBePressed(next) && WhyWaits(*next).empty()) return next;
  }
  ui::Button* const back = top->Page().Cancel;
  return CanBePressed(back) ? back : nullptr;
}

void Window::PressEnter() {
  ScreenView& top = *TopView();
  ui::Button* const button = EnterButton();
  if (!button) return;
  if (button == top.Page().Cancel && button->Enabled) {
    top.PressCancel();
  } else if (&button->Parent() != &top.Shows()) {
    PressHub(*button);
  } else if (!top.Press(button) && !top.ChooseMissing()) {
    HintAt(*button, Shown(WhyNotPress(*button)));
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

namespace {

QKeyCombination PressedIn(const QKeyEvent& event) {
  return QKeyCombination(event.modifiers() & ~Qt::KeypadModifier,
                         static_cast<Qt::Key>(event.key()));
}

/// Signs such as + may need Shift to be typed.
bool IsPressed(const QString& key, const QKeyEvent& event) {
  const QKeySequence keys(key);
  if (keys.isEmpty()) return false;
  const QKeyCombination pressed = PressedIn(event);
  const bool isSign = event.key() < Qt::Key_A && event.key() > Qt::Key_Space;
  return keys[0] == pressed ||
         (isSign && keys[0] == QKeyCombination(pressed.keyboardModifiers() & ~Qt::ShiftModifier,
                                               pressed.key()));
}

/// Letters are typed; only with Ctrl or Alt do they mean anything else.
bool IsLetter(const QKeyEvent& event) {
  return !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) && event.key() < Qt::Key_F1;
}

/// A box that is typed in takes back its own letters by Ctrl+Z.
bool TakesItself(const QWidget& typedIn, const QKeyEvent& event) {
  const bool types =
      qobject_cast<const QLineEdit*>(&typedIn) || qobject_cast<const QPlainTextEdit*>(&typedIn);
  return types && event.modifiers().testFlag(Qt::ControlModifier) &&
         (event.key() == Qt::Key_Z || event.key() == Qt::Key_Y);
}

}  // namespace

bool Window::PressButtonKey(const QWidget& typedIn, const QKeyEvent& event) {
  ScreenView* const top = TopView();
  if (!top || event.isAutoRepeat() || TakesItself(typedIn, event)) return false;
  if (top->Shows().Is() == ui::Role::Hub) return false;  // the side bar's keys are its own
  for (ui::Control* control : top->Shows().Controls()) {
    auto* const button = dynamic_cast<ui::Button*>(control);
    if (!button || !button->Visible || !IsPressed(settings_.KeyOn(*button), event)) continue;
    if (!top->Press(button)) HintAt(*button, Shown(WhyNotPress(*button)));
    return true;
  }
  return false;
}

bool Window::PressSideKey(const QKeyEvent& event) {
  if (!HubInReach() || event.isAutoRepeat()) return false;
  for (const auto& group : HubView()->Page().Side)
    for (const auto& command : group.Commands) {
      if (!IsPressed(settings_.Key(command.Press->Name(), command.Key), event)) continue;
      if (const std::string why = WhyNotPress(*command.Press); !why.empty())
        Hint(*this, Shown(why));
      else if (command.Press->Visible)
        PressHub(*command.Press);
      return true;
    }
  return false;
}

bool Window::PressOwnKey(const QKeyEvent& event) {
  for (const OwnCommand& own : KeyedCommands())
    if (IsPressed(KeyOf(own), event)) {
      if (!event.isAutoRepeat()) own.Run();
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
  if (IsLetter(event)) return false;
  return PressButtonKey(typedIn, event) || PressSideKey(event) || PressOwnKey(event);
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

/// What was typed or clicked while a page was long in coming was meant for the one before.
void Window::DropInput() {
  busy_ = true;
  QApplication::processEvents();
  busy_ = false;
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
