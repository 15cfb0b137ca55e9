#include <QApplication>
#include <QTimer>
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

namespace {

// What people look for who do not know how a setting is called here.
constexpr const char* kTextWords = "text size font letters zoom bigger";
constexpr const char* kThemeWords = "theme colours dark light mode";
constexpr const char* kSoundWords = "sound volume music bell crowd mute louder quieter";

}  // namespace

/// Those with a key.
std::vector<Window::OwnCommand> Window::KeyedCommands() {
  return {{{Qt::Key_Comma},
           "Window options",
           "Ctrl ,",
           [this] { OpenOptions(); },
           "settings preferences theme text size sound volume language dates animation scale keys"},
          {{}, "Full screen", "F11", [this] { TurnFullScreen(); }, "window maximise"},
          {{Qt::Key_K}, {}, {}, [this] { OpenFinder(); }},
          {{Qt::Key_L}, {}, {}, [this] { TurnColours(); }},
          {{Qt::Key_Plus, Qt::Key_Equal},
           "Larger text",
           "Ctrl +",
           [this] { SetZoom(settings_.Zoom() + 1); },
           kTextWords},
          {{Qt::Key_Minus},
           "Smaller text",
           "Ctrl -",
           [this] { SetZoom(settings_.Zoom() - 1); },
           kTextWords},
          {{Qt::Key_0}, "Text as the desktop has it", "Ctrl 0", [this] { SetZoom(0); }, kTextWords},
          {{}, "Help for this page", "F1", [this] { OpenHelp(); }, "keys manual how to"},
          {{}, "Glossary", {}, [this] { OpenGlossary({}); }, "terms words meaning"}};
}

/// What else the window options hold: every set of colours, and what is not as it is already.
std::vector<Window::OwnCommand> Window::SettingCommands() {
  constexpr int kLouder = 10;  // percent
  std::vector<OwnCommand> commands;
  const auto add = [&](const QString& words, const char* also, std::function<void()> run) {
    commands.push_back({{}, words, {}, std::move(run), also});
  };
  const auto addColours = [&](const char* words, Scheme scheme) {
    add(words, kThemeWords, [this, scheme] { SetColours(scheme); });
  };
  addColours("Dark colours", Scheme::Dark);
  addColours("Light colours", Scheme::Light);
  // The key turns to the one that is not shown.
  (commands.end() - (IsDark(settings_.Colours()) ? 1 : 2))->Key = "Ctrl L";
  addColours("High contrast", Scheme::Contrast);
  addColours("Colours as the desktop has them", Scheme::System);
  add(settings_.Still() ? "Let the cursor blink" : "Nothing moves by itself",
      "animation motion still", [this] { SetStill(!settings_.Still()); });
  add(settings_.Sounds() ? "Sound off" : "Sound on", kSoundWords,
      [this] { SetSounds(!settings_.Sounds()); });
  if (settings_.Sounds()) {
    add("Louder sound", kSoundWords, [this] { SetVolume(settings_.Volume() + kLouder); });
    add("Quieter sound", kSoundWords, [this] { SetVolume(settings_.Volume() - kLouder); });
  }
  for (std::size_t i = 0; i < std::size(kDateForms); ++i)
    if (const auto form = static_cast<DateForm>(i); form != settings_.Dates())
      add(QString("Dates: ") + kDateForms[i].Words, "language of dates format",
          [this, form] { SetDates(form); });
  for (const int percent : kScales)
    if (percent != settings_.Scale())
      add(QString("Window scale: %1%").arg(percent), "zoom size larger smaller",
          [this, percent] { SetScale(percent); });
  add("Change keys", "shortcuts keyboard rebind hotkeys", [this] { OpenOptions(); });
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
  const bool followed = settings_.Colours() == Scheme::System;
  SetColours(IsDark(settings_.Colours()) ? Scheme::Light : Scheme::Dark);
  if (followed)
    Hint(*this, "Window Options (Ctrl ,) have the desktop's own colours again.", ui::Tone::Muted);
}

void Window::SetColours(Scheme scheme) {
  settings_.SetColours(scheme);
  Relook();
}

void Window::FollowDesktop(bool dark) {
  constexpr int kLater = 250;  // milliseconds
  if (acting_ > 0 || busy_ || box_) {
    QTimer::singleShot(kLater, this, [this, dark] { FollowDesktop(dark); });
    return;
  }
  if (HearDesktop(dark) && settings_.Colours() == Scheme::System) Relook();
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
  Act([this] {
    ShowOptions();
    return std::string();
  });
}

void Window::ShowOptions() {
  if (desk_.Top() && desk_.Top()->Name() == kWindowOptions) return;
  std::vector<KeyedCommand> commands;
  if (const ScreenView* hub = HubView())
    for (const auto& group : hub->Page().Side)
      for (const auto& command : group.Commands)
        commands.push_back({command.Press->Name(), command.Press->Text.Get(), command.Key});
  desk_.Open(NewWindowOptions(desk_, *this, std::move(commands)));
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
