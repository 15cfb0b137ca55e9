#include "monkey/hand.h"

#include <algorithm>

#include "ui/actlines.h"

namespace grapplemont::test {

namespace {

constexpr int kAside = 4, kRooms = 8;     // percent
constexpr std::uint64_t kHomeOneIn = 25;  // steps on a screen
constexpr int kWayHome = 400;
constexpr std::string_view kHome[] = {"frmMainScreen", "frmGameMenu", "frmTitleScreen"};

bool IsHome(const ui::Desk& desk) {
  return std::ranges::find(kHome, desk.Top()->Name()) != std::end(kHome);
}

bool CanBePressed(const ui::Button* button) {
  return button && button->Visible && button->Enabled;
}

/// What Enter presses.
const ui::Button* Onwards(const ui::Page& page) {
  for (const ui::Button* button : {page.First, page.Main, page.Then})
    if (CanBePressed(button)) return button;
  return nullptr;
}

bool LeavesGame(const ui::Page& page, const ui::Control& control) {
  for (const ui::SideGroup& group : page.Side)
    for (const auto& command : group.Commands)
      if (command.Press == &control) return command.Into == ui::Reach::Away;
  return false;
}

}  // namespace

Hand::Hand(std::uint64_t seed)
    : chance_(seed),
      onwards_(static_cast<int>(10 + 10 * Pick(chance_, 6))),
      back_(static_cast<int>(2 + 4 * Pick(chance_, 4))),
      yes_(static_cast<int>(55 + 10 * Pick(chance_, 5))),
      leaves_(1 + 10 * Pick(chance_, 4)) {}

std::vector<Hand::Way> Hand::WaysOn(const ui::Screen& screen) {
  std::vector<Way> ways;
  for (const ui::Control* control : screen.Controls()) {
    if (!IsWorked(*control)) continue;
    const std::string name = screen.Name() + " " + control->Name();
    if (!control->Visible || !control->Enabled) {
      covered_.Miss(name, control->Visible ? Coverage::Missed::Disabled : Coverage::Missed::Hidden);
      continue;
    }
    const std::size_t before = ways.size();
    for (const Act& act : Acts()) {
      if (!act.Can(*control)) continue;
      Tally& count = covered_.Of(name + " " + act.Verb);
      ++count.Seen;
      ways.push_back({control, &act, &count});
    }
    if (ways.size() == before || ways[before].Does->Verb == std::string_view(kArranging))
      covered_.Miss(name, Coverage::Missed::Empty);
  }
  return ways;
}

/// What was done least is liked most.
std::string Hand::OneOf(const ui::Page& page, const std::vector<Way>& ways) {
  constexpr std::uint64_t kUnit = 1000;
  std::vector<std::uint64_t> sums;
  std::uint64_t sum = 0;
  for (const Way& way : ways) {
    const auto weight = static_cast<std::uint64_t>(way.Does->Weight) * kUnit;
    const std::uint64_t rare = LeavesGame(page, *way.On) ? leaves_ : 1;
    sums.push_back(sum += 1 + weight / rare / static_cast<std::uint64_t>(1 + way.Count->Done));
  }
  const auto at = std::ranges::upper_bound(sums, Pick(chance_, sum)) - sums.begin();
  const Way& way = ways[static_cast<std::size_t>(at)];
  ++way.Count->Done;
  const std::string words = way.Does->Words(chance_, *way.On);
  return std::string(way.Does->Verb) + " " + way.On->Name() + (words.empty() ? "" : " " + words);
}

std::string Hand::Press(const ui::Screen& screen, const ui::Button* button) {
  ++covered_.Of(screen.Name() + " " + button->Name() + " click").Done;
  return "click " + button->Name();
}

std::string Hand::Follow(ui::Desk& desk) {
  std::vector<std::string> texts;
  for (const ui::Control* control : desk.Top()->Controls()) {
    if (!control->Visible) continue;
    const bool says = control->Is() == ui::Kind::Label || control->Is() == ui::Kind::Report;
    if (says) texts.push_back(control->Text.Get());
    const auto* list = dynamic_cast<const ui::ListBox*>(control);
    if (!list || list->Count() == 0) continue;
    const auto row = Pick(chance_, list->Rows().size());
    for (const ui::Cell& cell : list->Rows()[row].Cells) texts.push_back(cell.Text);
  }
  std::vector<std::string> links;
  for (const std::string& text : texts)
    for (const ui::Link& link : desk.LinksIn(text))
      links.push_back(text.substr(link.From, link.Length));
  return links.empty() ? "explain" : "follow " + ui::OnOneLine(links[Pick(chance_, links.size())]);
}

std::string Hand::Visit(ui::Desk& desk) {
  std::string typed(1, static_cast<char>('a' + Pick(chance_, 26)));
  if (Pick(chance_, 2) == 0) typed += static_cast<char>('a' + Pick(chance_, 26));
  const auto found = desk.NewSearch()(typed, 6);
  if (found.empty()) return "explain";
  const ui::Finding& one = found[Pick(chance_, found.size())];
  return "visit " + one.Heading + ": " + one.Words;
}

/// What can be done on any screen.
std::string Hand::Aside(ui::Desk& desk) {
  constexpr const char* kForms[] = {"share markdown", "share html", "share bbcode"};
  constexpr int kRare = 12;  // percent
  if (Percent(kRare)) return Percent(50) ? "session" : "killed";
  switch (Pick(chance_, 6)) {
    case 0:
      return "undo";
    case 1:
      return "redo";
    case 2:
      return "explain";
    case 3:
      return Follow(desk);
    case 4:
      return Visit(desk);
    default:
      return kForms[Pick(chance_, std::size(kForms))];
  }
}

/// A room of the hub that opens above a page that stays; empty for none.
std::string Hand::Room(const ui::Desk& desk) {
  const ui::Page stays = desk.Top()->Layout();
  for (const auto& hub : desk.Screens()) {
    if (hub->Is() != ui::Role::Hub) continue;
    std::vector<const ui::Button*> rooms;
    const ui::Page page = hub->Layout();
    for (const ui::SideGroup& group : page.Side)
      for (const auto& command : group.Commands)
        if (command.Into <= stays.Lets && CanBePressed(command.Press))
          rooms.push_back(command.Press);
    if (rooms.empty()) break;
    return "on " + hub->Name() + " " + Press(*hub, rooms[Pick(chance_, rooms.size())]);
  }
  return {};
}

std::string Hand::Next(Sitting& sitting) {
  ui::Desk& desk = sitting.Desk();
  ui::Screen& top = *desk.Top();
  if (Percent(kAside)) return Aside(desk);
  const auto ways = WaysOn(top);
  const ui::Page page = top.Layout();
  if (!page.Stays.empty() && Percent(kRooms))
    if (std::string room = Room(desk); !room.empty()) return room;
  if (const ui::Button* on = Onwards(page); on && Percent(onwards_)) return Press(top, on);
  if (CanBePressed(page.Cancel) && Percent(back_)) return Press(top, page.Cancel);
  return ways.empty() ? Aside(desk) : OneOf(page, ways);
}

std::string Hand::AnswerTo(const Question& box) {
  constexpr const char* kNames[] = {"one", "two", "Save", "extra"};
  switch (box.Is) {
    case Question::Say:
      return "ok";
    case Question::Ask:
      return Percent(yes_) ? "yes" : "no";
    default:
      break;
  }
  std::string typed = box.Offered;
  if (Percent(15)) return "cancel";
  if (typed.empty() || Percent(40))
    typed =
        Percent(60) ? kNames[Pick(chance_, std::size(kNames))] : TypedText(chance_, box.Offered);
  return typed.empty() || typed.find('\n') != typed.npos ? "cancel" : "enter " + typed;
}

bool Hand::WantsHome(const ui::Desk& desk) {
  return !covered_.WentHomeFrom(desk.Top()->Name()) && Pick(chance_, kHomeOneIn) == 0;
}

void Hand::GoHome(Sitting& sitting) {
  ui::Desk& desk = sitting.Desk();
  const std::string from = desk.Top()->Name();
  covered_.GoHomeFrom(from);
  std::string path;
  for (int step = 0; step < kWayHome; ++step) {
    if (IsHome(desk)) return;
    ui::Screen& top = *desk.Top();
    const ui::Page page = top.Layout();
    const auto ways = WaysOn(top);
    // Back for a while; where that does not do, what leads on; then whatever there is.
    constexpr int kWhile = 10;
    const int turn = step / kWhile % 3;
    const ui::Button* back = CanBePressed(page.Cancel) ? page.Cancel : nullptr;
    const ui::Button* button = turn == 0 ? back : turn == 1 ? Onwards(page) : nullptr;
    if (step < 30) path += " " + top.Name();
    if (!button && ways.empty()) break;
    sitting.Do(button ? Press(top, button) : OneOf(page, ways));
  }
  if (!IsHome(desk))
    throw FoundFault("dead end from " + from, "From " + from +
                                                  " there is no way to the main screen "
                                                  "or to the menu:" +
                                                  path);
}

}  // namespace grapplemont::test
