#include <QApplication>
#include <algorithm>

#include "desktop/window.h"
#include "desktop/windowoptions.h"

// What the window does by itself, by a key or by search, and what the player sets about it.

namespace grapplemont::desktop {

std::vector<Window::OwnCommand> Window::OwnCommands() {
  std::vector<OwnCommand> commands = KeyedCommands();
  for (OwnCommand& setting : SettingCommands()) commands.push_back(std::move(setting));
  return commands;
}

/// Those with a key.
std::vector<Window::OwnCommand> Window::KeyedCommands() {
  const bool dark = IsDark(settings_.Colours());
  return {
      {{Qt::Key_Comma}, "Window options", "Ctrl ,", [this] { OpenOptions(); }},
      {{}, "Full screen", "F11", [this] { TurnFullScreen(); }},
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

/// What else the window options hold, as far as it is not as it is already.
std::vector<Window::OwnCommand> Window::SettingCommands() {
  constexpr int kLouder = 10;  // percent
  std::vector<OwnCommand> commands;
  const auto add = [&](const QString& words, std::function<void()> run) {
    commands.push_back({{}, words, {}, std::move(run)});
  };
  add("High contrast", [this] { SetColours(Scheme::Contrast); });
  add("Colours as the desktop has them", [this] { SetColours(Scheme::System); });
  add(settings_.Still() ? "Let the cursor blink" : "Nothing moves by itself",
      [this] { SetStill(!settings_.Still()); });
  add(settings_.Sounds() ? "Sound off" : "Sound on", [this] { SetSounds(!settings_.Sounds()); });
  if (settings_.Sounds()) {
    add("Louder sound", [this] { SetVolume(settings_.Volume() + kLouder); });
    add("Quieter sound", [this] { SetVolume(settings_.Volume() - kLouder); });
  }
  for (std::size_t i = 0; i < std::size(kDateForms); ++i)
    if (const auto form = static_cast<DateForm>(i); form != settings_.Dates())
      add(QString("Dates: ") + kDateForms[i].Words, [this, form] { SetDates(form); });
  for (const int percent : kScales)
    if (percent != settings_.Scale())
      add(QString("Window scale: %1%").arg(percent), [this, percent] { SetScale(percent); });
  add("Change keys", [this] { OpenOptions(); });
  return commands;
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

/// Qt takes the scale when the program starts.
void Window::SetScale(int percent) {
  settings_.SetScale(percent);
  Hint(*this, "The window scale counts from the next start of the game on.");
}

void Window::SetStill(bool still) {
  static const int kUsualBlink = QApplication::cursorFlashTime();
  settings_.SetStill(still);
  QApplication::setCursorFlashTime(still ? 0 : kUsualBlink);
}

/// What has been turned on or made louder is heard at once.
void Window::SetSounds(bool on) {
  settings_.SetSounds(on);
  heard_.clear();
  Hear(ui::Sound::Bell);
}

void Window::SetVolume(int percent) {
  settings_.SetVolume(std::clamp(percent, 0, 100));
  heard_.clear();
  Hear(ui::Sound::Bell);
}

void Window::SetDates(DateForm form) {
  settings_.SetDates(form);
  UseDateForm(form);
  Relook();
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

}  // namespace grapplemont::desktop
