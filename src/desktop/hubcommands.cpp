#include <QKeyEvent>
#include <QKeySequence>
#include <algorithm>

#include "desktop/letters.h"
#include "desktop/window.h"
#include "ui/acts.h"

// The hub's commands: from the side bar, the top bar, by key and by search.

namespace grapplemont::desktop {

namespace {

/// More pages than ever lie above a hub.
constexpr int kMostPages = 64;

bool CanPress(const ui::Button* button) {
  return button && button->Enabled && button->Visible;
}

}  // namespace

bool Window::LeaveUpTo(const ui::Screen& hub) {
  if (box_) return false;
  for (int page = 0; page < kMostPages; ++page) {
    ui::Screen* const top = desk_.Top();
    if (!top || !desk_.Holds(hub)) return false;
    if (top == &hub) return true;
    ScreenView* const view = TopView();
    if (!view || &view->Shows() != top || !CanPress(view->Page().Cancel)) return false;
    view->HandleKey(Qt::Key_Escape);
    if (desk_.Top() == top) return false;  // it was asked whether to leave, and stays
  }
  return false;
}

void Window::PressHub(ui::Button& command) {
  const ui::Screen& hub = command.Parent();
  if (!LeaveUpTo(hub)) {
    if (const ScreenView* top = TopView(); top && !box_ && !top->Page().Cancel)
      Hint(*this, "This has to be seen through to its end first.");
    return;
  }
  Act([&] { return ui::Click(desk_, command.Parent(), command.Name()); });
  if (!desk_.Holds(hub)) return;
  RememberCommand(hub, command);
  Sync();
}

void Window::RememberCommand(const ui::Screen& hub, const ui::Button& command) {
  const auto& screens = desk_.Screens();
  const auto found = std::find_if(screens.begin(), screens.end(),
                                  [&](const auto& screen) { return screen.get() == &hub; });
  if (found != screens.end() && found + 1 != screens.end())
    commandOf_[(*(found + 1))->Name()] = command.Name();
}

ScreenView* Window::HubView() const {
  for (const Layer& layer : layers_)
    if (layer.View && frame_ && layer.Screen == framed_) return layer.View;
  return nullptr;
}

/// The command whose page is open: the one that has opened such a page before, else the one of the
/// same name.
const ui::Button* Window::CommandOf(const Scene& scene) const {
  const ScreenView* hub = HubView();
  const auto above = static_cast<std::size_t>(scene.Hub) + 1;
  if (!hub || above >= desk_.Screens().size()) return nullptr;
  const ui::Screen& page = *desk_.Screens()[above];
  const auto remembered = commandOf_.find(page.Name());
  for (const auto& group : hub->Page().Side)
    for (const auto& command : group.Commands) {
      const ui::Button* button = command.Press;
      if (remembered != commandOf_.end() ? button->Name() == remembered->second
                                         : button->Text.Get() == page.Title.Get())
        return button;
    }
  return nullptr;
}

bool Window::PressSideKey(const QKeyEvent& event) {
  ScreenView* const hub = HubView();
  const ui::Screen* const top = desk_.Top();
  const bool reachable = top && (top->Is() == ui::Role::Hub || top->Is() == ui::Role::Page);
  if (!hub || !reachable || event.isAutoRepeat() || event.key() < Qt::Key_F1) return false;
  for (const auto& group : hub->Page().Side)
    for (const auto& command : group.Commands) {
      if (command.Key.empty()) continue;
      const QKeySequence keys(Shown(command.Key));
      if (keys.isEmpty() || keys[0].key() != event.key()) continue;
      if (CanPress(command.Press)) PressHub(*command.Press);
      return true;
    }
  return false;
}

std::vector<Finder::Entry> Window::FinderEntries() {
  std::vector<Finder::Entry> entries;
  const ui::Screen* const top = desk_.Top();
  ScreenView* const view = TopView();
  if (view && top) {
    for (ui::Button* action : view->Page().Actions)
      if (CanPress(action))
        entries.push_back(
            {Shown(action->Text.Get()), Shown(top->Title.Get()), {}, [this, action] {
               Act([&] { return ui::Click(desk_, action->Parent(), action->Name()); });
             }});
  }
  const bool hubInReach = top && (top->Is() == ui::Role::Hub || top->Is() == ui::Role::Page);
  if (ScreenView* const hub = HubView(); hub && hubInReach) {
    const auto add = [&](ui::Button* command, const std::string& where, const std::string& key) {
      if (CanPress(command))
        entries.push_back({Shown(command->Text.Get()), Shown(where), Shown(key),
                           [this, command] { PressHub(*command); }});
    };
    for (ui::Button* action : hub->Page().TopActions) add(action, "", "");
    for (const auto& group : hub->Page().Side)
      for (const auto& command : group.Commands) add(command.Press, group.Title, command.Key);
  }
  const QString window = "Window";
  entries.push_back({IsDark(settings_.Colours()) ? "Light colours" : "Dark colours", window,
                     "Ctrl L", [this] { TurnColours(); }});
  entries.push_back({"Larger text", window, "Ctrl +", [this] { SetZoom(settings_.Zoom() + 1); }});
  entries.push_back({"Smaller text", window, "Ctrl -", [this] { SetZoom(settings_.Zoom() - 1); }});
  entries.push_back({"Text as the desktop has it", window, "Ctrl 0", [this] { SetZoom(0); }});
  return entries;
}

void Window::OpenFinder() {
  if (box_ || finder_ || acting_ > 0) return;
  if (ScreenView* top = TopView()) top->RememberKeyboard();
  finder_ = new Finder(ground_, FinderEntries());
  finder_->Done = [this](const Finder::Entry* chosen) {
    const std::function<void()> run = chosen ? chosen->Run : std::function<void()>();
    finder_ = nullptr;
    if (ScreenView* top = TopView()) top->TakeKeyboard();
    if (run) run();
  };
}

}  // namespace grapplemont::desktop
