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
constexpr const char* kOptionsKeyId = "window.options";
constexpr const char* kOptionsKey = "Ctrl+,";
constexpr const char* kSoundWords = "sound volume music bell crowd mute louder quieter";

}  // namespace

/// Those with a key.
std::vector<Window::OwnCommand> Window::KeyedCommands() {
  const auto zoomBy = [this](int step) {
    return [this, step] { SetZoom(settings_.Zoom() + step); };
  };
  return {
      {"Search everything", [this] { OpenFinder(); }, {}, kSearchKeyId, kSearchKey, false},
      {"Filter the list",
       [this] {
         if (TopView()) TopView()->FocusSearch();
       },
       "search rows", "window.filter", "Ctrl+F"},
      {"Window options", [this] { OpenOptions(); },
       "settings preferences theme text size sound volume language dates animation scale keys",
       kOptionsKeyId, kOptionsKey},
      {"Undo the last click", [this] { TakeBack(desk_.Undo, "Taken back: "); }, "take back mistake",
       "window.undo", "Ctrl+Z"},
      {"Redo", [this] { TakeBack(desk_.Redo, "Done again: "); }, "do again undo", "window.redo",
       "Ctrl+Shift+Z"},
      {"Full screen", [this] { TurnFullScreen(); }, "window maximise", "window.full", "F11"},
      {"Dark or light colours", [this] { TurnColours(); }, {}, "window.colours", "Ctrl+L", false},
      {"Larger text", zoomBy(1), kTextWords, "window.larger", "Ctrl++"},
      {"Larger text", zoomBy(1), {}, {}, "Ctrl+=", false},  // the same key without Shift
      {"Smaller text", zoomBy(-1), kTextWords, "window.smaller", "Ctrl+-"},
      {"Text as the desktop has it", [this] { SetZoom(0); }, kTextWords, "window.usual", "Ctrl+0"},
      {"Help for this page", [this] { OpenHelp(); }, "keys manual how to", "window.help", "F1"},
      {"Glossary", [this] { OpenGlossary({}); }, "terms words meaning", "window.glossary"}};
}

/// What else the window options hold: every set of colours, and what is not as it is already.
std::vector<Window::OwnCommand> Window::SettingCommands() {
  constexpr int kLouder = 10;  // percent
  std::vector<OwnCommand> commands;
  const auto add = [&](const QString& words, const char* also, std::function<void()> run) {
    commands.push_back({words, std::move(run), also});
  };
  const auto addColours = [&](const char* words, Scheme scheme) {
    add(words, kThemeWords, [this, scheme] { SetColours(scheme); });
  };
  addColours("Dark colours", Scheme::Dark);
  addColours("Light colours", Scheme::Light);
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
  for (const int percent : kTextSizes)
    if (const int zoom = ZoomFor(percent); zoom != settings_.Zoom())
      add(QString("Text: %1%").arg(percent), kTextWords, [this, zoom] { SetZoom(zoom); });
  add("Change keys", "shortcuts keyboard rebind hotkeys", [this] { OpenOptions(); });
  return commands;
}

void Window::TakeBack(const ui::Desk::TakingBack& back, const char* told) {
  std::string what;
  Act([&] {
    what = desk_.Take(back);
    return std::string();
  });
  const bool isPlayed = std::ranges::any_of(
      desk_.Screens(), [](const auto& open) { return open->Is() == ui::Role::Hub; });
  const QString nothing = isPlayed ? "There is nothing of today to take back or do again. Back In "
                                     "Time has the mornings before."
                                   : "There is nothing to take back or do again.";
  Hint(*this, what.empty() ? nothing : told + Shown(what), ui::Tone::Muted);
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
    Hint(*this,
         "To follow the desktop's colours again, open Window Options (" + Shown(KeyOfOptions()) +
             ").",
         ui::Tone::Muted);
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
void Window::Hear(ui::Sound sound) {
  if (settings_.Sounds() && options_.Play && heard_.insert(sound).second)
    options_.Play(sound, settings_.Volume());
}

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
  desk_.Open(NewWindowOptions(desk_, *this, KeyCommands()));
}

std::string Window::KeyOfOptions() {
  return settings_.Key(kOptionsKeyId, kOptionsKey).toStdString();
}

// What keys do, as Window Options and F1 list it.

namespace {

/// Steps have keys by their numbers, which are no one command's.
bool IsNumbered(const ui::Button& button) {
  return button.Key.starts_with("Alt+");
}

}  // namespace

/// Of the pages that lie above the hub, each button once.
void Window::AddPageKeys(std::vector<KeyedCommand>& commands) {
  const auto add = [&](const ui::Button& button, const std::string& where) {
    const std::string id = Settings::KeyIdOf(button);
    if (IsNumbered(button) || std::ranges::find(commands, id, &KeyedCommand::Id) != commands.end())
      return;
    commands.push_back({id, button.Text.Get(), where, button.Key});
  };
  for (const auto& screen : desk_.Screens()) {
    const ScreenView* const view = ViewFor(screen.get());
    if (!view || screen->Is() == ui::Role::Hub) continue;
    for (const ui::Button* action : view->ActionsInOrder()) add(*action, screen->Title.Get());
    for (const ui::Control* control : screen->Controls())
      if (const auto* button = dynamic_cast<const ui::Button*>(control);
          button && !button->Key.empty())
        add(*button, screen->Title.Get());
  }
}

std::vector<KeyedCommand> Window::KeyCommands() {
  std::vector<KeyedCommand> commands;
  if (const ScreenView* hub = HubView())
    for (const auto& group : hub->Page().Side)
      for (const auto& command : group.Commands)
        commands.push_back(
            {command.Press->Name(), command.Press->Text.Get(), "Side bar", command.Key});
  for (const OwnCommand& own : KeyedCommands())
    if (!own.Id.empty()) commands.push_back({own.Id, own.Words.toStdString(), "Window", own.Usual});
  AddPageKeys(commands);
  for (KeyedCommand& set : settings_.KeysSet())
    if (std::ranges::find(commands, set.Id, &KeyedCommand::Id) == commands.end())
      commands.push_back(std::move(set));
  return commands;
}

std::vector<std::string> Window::KeyLines(ui::Screen& of) {
  std::vector<std::string> lines;
  const auto add = [&](const QString& key, const std::string& words) {
    if (!key.isEmpty()) lines.push_back(key.toStdString() + ": " + words);
  };
  bool steps = false;
  for (const ui::Control* control : of.Controls()) {
    const auto* button = dynamic_cast<const ui::Button*>(control);
    if (!button || !button->Visible || of.Is() == ui::Role::Hub) continue;
    if (!IsNumbered(*button)) add(settings_.KeyOn(*button), button->Text);
    steps = steps || IsNumbered(*button);
  }
  if (steps) lines.emplace_back("Alt+1, Alt+2 and on: back to that step");
  for (const auto& group : of.Layout().Side)
    for (const auto& command : group.Commands)
      add(settings_.Key(command.Press->Name(), command.Key), command.Press->Text);
  // The window's own are told once, by the main screen: a page tells of its own.
  for (const OwnCommand& own : KeyedCommands())
    if (!own.Id.empty() && of.Is() == ui::Role::Hub) add(KeyOf(own), own.Words.toStdString());
  return lines;
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

/// The application tells its windows of another font only later: what is built meanwhile would be
/// measured in the old one.
void Window::TakeLook() {
  ApplyLook(settings_.Colours(), DesktopText() + settings_.Zoom());
  setPalette(QApplication::palette());
  setFont(QApplication::font());
}

void Window::Relook() {
  const ui::Control* const keyboard = TopView() ? TopView()->KeyboardOn() : nullptr;
  RetireAll();
  TakeLook();
  // What is on is shown where it is chosen, whichever way it was changed.
  if (ui::Screen* const top = desk_.Top(); top && top->Name() == kWindowOptions) top->Return();
  Sync();
  if (keyboard && TopView()) TopView()->GiveKeyboard(*keyboard);
}

}  // namespace grapplemont::desktop
