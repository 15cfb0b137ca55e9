#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <algorithm>

#include "desktop/look.h"
#include "desktop/window.h"

// The keys that mean the same everywhere, and input that comes at the wrong time.

namespace grapplemont::desktop {

/// What no widget has wanted: Enter and Escape are the top screen's.
void Window::keyPressEvent(QKeyEvent* event) {
  ScreenView* top = TopView();
  if (!top || box_ || finder_ || acting_ > 0 || event->isAutoRepeat()) return;
  if (!top->HandleKey(event->key())) QMainWindow::keyPressEvent(event);
}

/// What the window does by itself, with Ctrl and a key or by search.
std::vector<Window::OwnCommand> Window::OwnCommands() {
  const bool dark = IsDark(settings_.Colours());
  return {
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

bool Window::HandleCommonKey(const QKeyEvent& event) {
  if (box_ || finder_ || acting_ > 0) return false;
  const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
  if (modifiers == Qt::NoModifier && event.key() == Qt::Key_F1) {
    OpenHelp();
    return true;
  }
  if (modifiers == Qt::NoModifier) return PressSideKey(event);
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
  settings_.SetColours(IsDark(settings_.Colours()) ? Scheme::Light : Scheme::Dark);
  Relook();
}

void Window::SetZoom(int zoom) {
  const int text = std::clamp(DesktopText() + zoom, kSmallestText, kLargestText);
  settings_.SetZoom(text - DesktopText());
  Relook();
}

/// All views are made again: their sizes and colours were taken when they were built.
void Window::Relook() {
  RetireAll();
  ApplyLook(settings_.Colours(), DesktopText() + settings_.Zoom());
  setPalette(QApplication::palette());
  Sync();
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
  return ours && HandleCommonKey(*static_cast<QKeyEvent*>(event));
}

}  // namespace grapplemont::desktop
