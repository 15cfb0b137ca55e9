#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <algorithm>

#include "desktop/pieces.h"
#include "desktop/window.h"
#include "desktop/windowoptions.h"

// The keys that mean the same everywhere, and input that comes at the wrong time.

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
  ui::Button* const next = hub->MainNow();
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
    Hint(*this, main->Tip->empty() ? Shown(main->Text.Get()) + " cannot be pressed now."
                                   : Shown(main->Tip.Get()));
  }
}

void Window::ShowEnter() {
  if (syncing_) return;
  const ui::Button* const pressed = KeepsEnter(focusWidget()) ? nullptr : EnterButton();
  for (const Layer& layer : layers_)
    if (layer.View) layer.View->SetEnter(pressed);
  if (frame_) frame_->Top().SetEnter(pressed);
}

/// What the window does by itself, with Ctrl and a key or by search.
std::vector<Window::OwnCommand> Window::OwnCommands() {
  const bool dark = IsDark(settings_.Colours());
  const auto colours = [this](Scheme scheme) { return [this, scheme] { SetColours(scheme); }; };
  return {
      {{Qt::Key_Comma}, "Window options", "Ctrl ,", [this] { OpenOptions(); }},
      {{}, "Full screen", "F11", [this] { TurnFullScreen(); }},
      {{}, "High contrast", {}, colours(Scheme::Contrast)},
      {{}, "Colours as the desktop has them", {}, colours(Scheme::System)},
      {{},
       settings_.Still() ? "Let the cursor blink" : "Nothing moves by itself",
       {},
       [this] { SetStill(!settings_.Still()); }},
      {{Qt::Key_K}, {}, {}, [this] { OpenFinder(); }},
      {{Qt::Key_L}, dark ? "Light colours" : "Dark colours", "Ctrl L", [this] { TurnColours(); }},
      {{Qt::Key_Plus, Qt::Key_Equal},
       "Larger text",
       "Ctrl +",
       [this] { SetZoom(settings_.Zoom() + 1); }},
      {{Qt::Key_Minus}, "Smaller text", "Ctrl -", [this] { SetZoom(settings_.Zoom() - 1); }},
      {{Qt::Key_0}, "Text as the desktop has it", "Ctrl 0", [this] { SetZoom(0); }},
      {{}, "Help for this page", "F1", [this] { OpenHelp(); }},
      {{}, "Glossary", {}, [this] { OpenGlossary({}); }}};
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
  if (PressSideKey(event)) return true;
  if (!modifiers.testFlag(Qt::ControlModifier) || modifiers.testFlag(Qt::AltModifier)) return false;
  if (event.key() == Qt::Key_F) return TopView() && TopView()->FocusSearch();
  for (const OwnCommand& own : OwnCommands())
    if (std::find(own.Keys.begin(), own.Keys.end(), event.key()) != own.Keys.end()) {
      own.Run();
      return true;
    }
  return false;
}

void Window::OpenHelp() {
  Act([this] {
    desk_.OpenHelp();
    return std::string();
  });
}

void Window::OpenGlossary(const std::string& term) {
  Act([&] {
    desk_.OpenGlossary(term);
    return std::string();
  });
}

void Window::TurnColours() {
  SetColours(IsDark(settings_.Colours()) ? Scheme::Light : Scheme::Dark);
}

void Window::SetColours(Scheme scheme) {
  settings_.SetColours(scheme);
  Relook();
}

void Window::TurnFullScreen() {
  setWindowState(windowState() ^ Qt::WindowFullScreen);
}

void Window::SetStill(bool still) {
  static const int kUsualBlink = QApplication::cursorFlashTime();
  settings_.SetStill(still);
  QApplication::setCursorFlashTime(still ? 0 : kUsualBlink);
}

void Window::OpenOptions() {
  if (desk_.Top() && desk_.Top()->Name() == kWindowOptions) return;
  std::vector<KeyedCommand> commands;
  if (const ScreenView* hub = HubView())
    for (const auto& group : hub->Page().Side)
      for (const auto& command : group.Commands)
        commands.push_back({command.Press->Name(), command.Press->Text.Get(), command.Key});
  Act([&] {
    desk_.Event([&] { desk_.Open(NewWindowOptions(desk_, *this, std::move(commands))); });
    return std::string();
  });
}

void Window::SetZoom(int zoom) {
  const int text = std::clamp(DesktopText() + zoom, kSmallestText, kLargestText);
  settings_.SetZoom(text - DesktopText());
  Relook();
}

void Window::SetLook(Scheme scheme, int zoom) {
  settings_.SetColours(scheme);
  SetZoom(zoom);
}

void Window::Relook() {
  const ui::Control* const keyboard = TopView() ? TopView()->KeyboardOn() : nullptr;
  RetireAll();
  ApplyLook(settings_.Colours(), DesktopText() + settings_.Zoom());
  setPalette(QApplication::palette());
  Sync();
  if (keyboard && TopView()) TopView()->GiveKeyboard(*keyboard);
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
