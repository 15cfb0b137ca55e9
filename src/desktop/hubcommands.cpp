#include <QKeySequence>
#include <algorithm>

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
  if (const ui::Screen* page = Above(hub)) commandOf_[page->Name()] = command.Name();
  Sync();
}

/// The screen that lies on the hub; nullptr for none.
const ui::Screen* Window::Above(const ui::Screen& hub) const {
  const auto& screens = desk_.Screens();
  const auto found =
      std::ranges::find_if(screens, [&](const auto& screen) { return screen.get() == &hub; });
  return found == screens.end() || found + 1 == screens.end() ? nullptr : (found + 1)->get();
}

/// The command whose page is open: the one that has opened such a page before, else the one of the
/// same name.
const ui::Button* Window::PresentCommand() const {
  const ScreenView* hub = HubView();
  const ui::Screen* page = hub ? Above(hub->Shows()) : nullptr;
  if (!page) return nullptr;
  const auto remembered = commandOf_.find(page->Name());
  for (const auto& group : hub->Page().Side)
    for (const auto& command : group.Commands) {
      const ui::Button* button = command.Press;
      if (remembered != commandOf_.end() ? button->Name() == remembered->second
                                         : button->Text.Get() == page->Title.Get())
        return button;
    }
  return nullptr;
}

bool Window::HubInReach() const {
  const ui::Screen* const top = desk_.Top();
  return HubView() && top && (top->Is() == ui::Role::Hub || top->Is() == ui::Role::Page);
}

bool Window::PressSideKey(const QKeyEvent& event) {
  // Letters are typed; only with Ctrl or Alt do they mean anything else.
  const bool bare = !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  if (!HubInReach() || event.isAutoRepeat() || (bare && event.key() < Qt::Key_F1)) return false;
  const QKeyCombination pressed(event.modifiers() & ~Qt::KeypadModifier,
                                static_cast<Qt::Key>(event.key()));
  for (const auto& group : HubView()->Page().Side)
    for (const auto& command : group.Commands) {
      const QKeySequence keys(settings_.Key(command.Press->Name(), command.Key));
      if (keys.isEmpty() || keys[0] != pressed) continue;
      if (CanPress(command.Press)) PressHub(*command.Press);
      return true;
    }
  return false;
}

std::vector<Finder::Entry> Window::FinderEntries() {
  std::vector<Finder::Entry> entries;
  const auto add = [&](ui::Button* button, const std::string& where, const std::string& key,
                       const std::function<void()>& run) {
    if (CanPress(button))
      entries.push_back(
          {Shown(button->Text.Get()), Shown(where), settings_.Key(button->Name(), key), run});
  };
  const auto addCommand = [&](ui::Button* command, const std::string& where,
                              const std::string& key) {
    add(command, where, key, [this, command] { PressHub(*command); });
  };
  if (ScreenView* const view = TopView(); view && desk_.Top())
    for (ui::Button* action : view->Page().Actions)
      add(action, desk_.Top()->Title.Get(), {}, [this, action] {
        Act([&] { return ui::Click(desk_, action->Parent(), action->Name()); });
      });
  if (HubInReach()) {
    const ui::Page& hub = HubView()->Page();
    for (ui::Button* action : hub.TopActions) addCommand(action, {}, {});
    for (const auto& group : hub.Side)
      for (const auto& command : group.Commands)
        addCommand(command.Press, group.Title, command.Key);
  }
  for (const OwnCommand& own : OwnCommands())
    if (!own.Words.isEmpty()) entries.push_back({own.Words, "Window", own.Key, own.Run});
  for (const OwnCommand& own : SharingCommands())
    entries.push_back({own.Words, "This page", own.Key, own.Run});
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
