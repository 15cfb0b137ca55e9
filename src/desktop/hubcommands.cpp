#include <algorithm>
#include <ranges>

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

/// What stands beside a command that is found.
QString NotNow(const QString& where, const std::string& why) {
  return why.empty() ? where : "Not now: " + Shown(why);
}

/// What stands in the top bar moves time, or is about who one is.
ui::Reach ReachOf(const ui::Page& hub, const ui::Button& command) {
  for (const auto& group : hub.Side)
    for (const auto& side : group.Commands)
      if (side.Press == &command) return side.Into;
  return ui::Reach::Today;
}

/// The command whose room the screen is of, or that is called like it; nullptr for none.
const ui::Button* RoomOf(const ui::Page& hub, const ui::Screen& screen) {
  const std::string name = " " + screen.Name() + " ";
  for (const auto& group : hub.Side)
    for (const auto& command : group.Commands)
      if ((" " + command.Pages + " ").find(name) != std::string::npos ||
          command.Press->Text.Get() == screen.Title.Get())
        return command.Press;
  return nullptr;
}

}  // namespace

bool Window::LeaveUpTo(const ui::Screen& screen) {
  if (box_) return false;
  for (int page = 0; page < kMostPages; ++page) {
    ui::Screen* const top = desk_.Top();
    if (!top || !desk_.Holds(screen)) return false;
    if (top == &screen) return true;
    ScreenView* const view = TopView();
    if (!view || &view->Shows() != top || !CanPress(view->Page().Cancel)) return false;
    view->HandleKey(Qt::Key_Escape);
    if (desk_.Top() == top) return false;  // it was asked whether to leave, and stays
  }
  return false;
}

void Window::KeepCovered(const Scene& scene) {
  bool isAbove = false;
  for (const Held& screen : desk_.Screens()) {
    if (isAbove && screen->Is() == ui::Role::Page) LayerOf(screen, scene);
    isAbove = isAbove || screen == scene.Hub;
  }
}

ScreenView* Window::Staying() const {
  for (const auto& screen : desk_.Screens() | std::views::reverse) {
    if (screen.get() == framed_) break;
    ScreenView* const view = ViewFor(screen.get());
    if (view && !view->Page().Stays.empty()) return view;
  }
  return nullptr;
}

const ui::Screen& Window::Ground() const {
  const ScreenView* const stays = Staying();
  return stays ? stays->Shows() : *framed_;
}

std::string Window::WhyWaits(const ui::Button& command) const {
  const ScreenView *const stays = Staying(), *const hub = HubView();
  if (!stays || !hub) return {};
  const ui::Reach into = ReachOf(hub->Page(), command);
  const bool canGo =
      into == ui::Reach::Away ? CanPress(stays->Page().Cancel) : into <= stays->Page().Lets;
  return canGo ? std::string() : stays->Page().Stays;
}

/// A room opens above what stays and leads back to it. What leaves the game leaves all that.
void Window::PressHub(ui::Button& command) {
  if (const std::string why = WhyWaits(command); !why.empty()) return Hint(*this, Shown(why));
  const ui::Screen& hub = command.Parent();
  const bool away = ReachOf(HubView()->Page(), command) == ui::Reach::Away;
  const ui::Screen& ground = away ? hub : Ground();
  if (!LeaveUpTo(ground)) return;
  Act([&] { return ui::Click(desk_, command.Parent(), command.Name()); });
  if (desk_.Holds(ground)) Sync();
}

/// The command in whose room one is: that of the topmost page that is of a room.
const ui::Button* Window::PresentCommand() const {
  const ScreenView* const hub = HubView();
  if (!hub) return nullptr;
  const ui::Screen* const ground = &Ground();
  for (const auto& screen : desk_.Screens() | std::views::reverse) {
    if (screen.get() == ground) break;
    if (const ui::Button* room = RoomOf(hub->Page(), *screen)) return room;
  }
  return nullptr;
}

bool Window::HubInReach() const {
  const ui::Screen* const top = desk_.Top();
  return HubView() && top && (top->Is() == ui::Role::Hub || top->Is() == ui::Role::Page);
}

/// What cannot be done now is listed all the same, with the reason, which is said again when it is
/// chosen.
void Window::AddPageActs(std::vector<Finder::Entry>& entries) {
  const ScreenView* const view = TopView();
  if (!view || !desk_.Top()) return;
  const QString title = Shown(desk_.Top()->Title.Get());
  for (ui::Button* action : view->ActionsInOrder()) {
    if (!action->Visible) continue;
    const std::string why = WhyNotPress(*action);
    entries.push_back({"On this page", Shown(action->Text.Get()), NotNow(title, why),
                       settings_.KeyOn(*action), [this, action, why] {
                         if (!why.empty()) return HintAt(*action, Shown(why));
                         Act([&] { return ui::Click(desk_, action->Parent(), action->Name()); });
                       }});
    entries.back().IsOff = !why.empty();
  }
}

/// What can be done on the pages that lie below the present one, once that is left.
void Window::AddCoveredActs(std::vector<Finder::Entry>& entries) {
  const ui::Screen* const top = desk_.Top();
  for (const Held& covered : desk_.Screens()) {
    const ScreenView* const view = ViewFor(covered.get());
    if (covered.get() == top || !view || covered->Is() != ui::Role::Page) continue;
    const QString why = "Leave " + Shown(top->Title.Get()) + " first.";
    for (const ui::Button* action : view->ActionsInOrder()) {
      if (!action->Visible || action == view->Page().Cancel) continue;
      entries.push_back({"On " + Shown(covered->Title.Get()), Shown(action->Text.Get()),
                         "Not now: " + why, settings_.KeyOn(*action),
                         [this, why] { Hint(*this, why); }});
      entries.back().IsOff = true;
    }
  }
}

/// So are rooms, and one that waits says what for.
void Window::AddRooms(std::vector<Finder::Entry>& entries) {
  const auto add = [&](const char* heading, ui::Button& command, const std::string& where,
                       const std::string& key, const std::string& also) {
    if (!command.Visible) return;
    std::string why = WhyWaits(command);
    if (why.empty()) why = WhyNotPress(command);
    entries.push_back({heading, Shown(command.Text.Get()), NotNow(Shown(where), why),
                       settings_.Key(command.Name(), key), [this, &command, why] {
                         why.empty() ? PressHub(command) : Hint(*this, Shown(why));
                       }});
    entries.back().Also = Shown(also);
    entries.back().IsOff = !why.empty();
  };
  const ui::Page& hub = HubView()->Page();
  for (ui::Button* action : hub.TopActions)
    add("Commands", *action, action->Enabled ? action->Tip.Get() : std::string(), {}, {});
  for (const auto& group : hub.Side)
    for (const auto& command : group.Commands)
      add("Rooms", *command.Press, group.Title, command.Key, command.Also);
}

std::vector<Finder::Entry> Window::FinderEntries() {
  std::vector<Finder::Entry> entries;
  const auto add = [&](const char* heading, const std::vector<OwnCommand>& commands) {
    for (const OwnCommand& own : commands)
      if (own.IsFound)
        entries.push_back({heading, own.Words, {}, KeyOf(own), own.Run, {}, {}, own.Also});
  };
  AddPageActs(entries);
  AddCoveredActs(entries);
  if (HubInReach()) AddRooms(entries);
  add("Window", OwnCommands());
  add("Share this page", SharingCommands());
  return entries;
}

void Window::OpenFinder() {
  if (box_ || finder_ || acting_ > 0) return;
  if (ScreenView* top = TopView()) top->RememberKeyboard();
  finder_ = new Finder(ground_, {FinderEntries(), desk_.NewSearch(), recent_});
  finder_->Done = [this](const Finder::Entry* chosen) {
    const Finder::Entry taken = chosen ? *chosen : Finder::Entry();
    finder_ = nullptr;
    if (ScreenView* top = TopView()) top->TakeKeyboard();
    ShowEnter();
    if (!chosen) return;
    Remember(taken);
    if (taken.Open) {
      Act([&] {
        desk_.Visit({Keep(taken.Heading).Text, Keep(taken.Words).Text, {}, {}, taken.Open});
        return std::string();
      });
    } else if (taken.Run) {
      taken.Run();
    }
  };
  ShowEnter();
}

/// Commands are kept by their words alone: what they do is looked up when they are shown again.
void Window::Remember(const Finder::Entry& chosen) {
  constexpr std::size_t kRemembered = 8;
  std::erase_if(recent_, [&](const Finder::Entry& one) { return Same(one, chosen); });
  recent_.insert(recent_.begin(), chosen);
  recent_.front().Run = {};
  if (recent_.size() > kRemembered) recent_.pop_back();
}

}  // namespace grapplemont::desktop
