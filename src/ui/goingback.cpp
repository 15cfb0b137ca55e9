#include "ui/goingback.h"

#include <algorithm>
#include <cstring>
#include <map>

#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/store/playedslot.h"
#include "records/world.h"

namespace grapplemont {

namespace {

constexpr const char* kMainScreen = "frmMainScreen";
/// What waits for the player comes up by itself where it still waits.
constexpr const char* kComeUpThemselves[] = {"frmMatchOutput", "frmPostShow", "frmPinky",
                                             "frmIncident",    "frmTheEnd",   "frmWait"};
constexpr const char* kChangedOutside =
    "The files of this game were changed from outside since then: that moment cannot be made of "
    "them any more.";
constexpr const char* kNoWayBack = "A rule of the house: this game never goes back.";

/// The world takes on what the way leads to.
void Take(Game& game, const WayBack& way, std::uint64_t digest, PlayedStep::Kind as) {
  World& world = game.World();
  std::map<std::string, Bytes> files;
  std::vector<Table*> tables;
  for (Table* table : world.Tables()) {
    const std::string name(table->File());
    if (std::ranges::find(way, name, &FileBack::Name) == way.end()) continue;
    tables.push_back(table);
    const ByteSpan bytes = table->Contents();
    if (table->Exists()) files[name] = Bytes(bytes.begin(), bytes.end());
  }
  if (!game.OpenedSlot().Restore(way, digest, files)) throw WorldFault(kChangedOutside);
  for (Table* table : tables) {
    const auto file = files.find(std::string(table->File()));
    if (file == files.end())
      table->Remove();
    else
      table->Load(file->second);
  }
  world.Session = {};
  world.Session.StartSize = world.Player().Size;
  game.CommitAs(as);
}

/// The main screen shows the world as it is now, and the page that lay on it lies there again.
void ComeUpAgain(Game& game, const std::string& page = {}) {
  ui::Desk& desk = game.Desk();
  desk.CloseAll();
  desk.Open(kMainScreen);
  if (!page.empty() && desk.Top() && desk.Top()->Name() == kMainScreen) desk.Open(page);
}

/// The page on the main screen, where it can be opened as it is; empty for none.
std::string PageOnHub(const ui::Desk& desk) {
  const auto& screens = desk.Screens();
  if (screens.size() < 2) return {};
  const std::string& page = screens[1]->Name();
  const bool comesUp = std::ranges::find(kComeUpThemselves, page) != std::end(kComeUpThemselves);
  return desk.Knows(page) && !comesUp ? page : std::string();
}

void UndoClick(Game& game) {
  PlayedSlot& slot = game.OpenedSlot();
  const std::string page = PageOnHub(game.Desk());
  const std::size_t last = slot.Moments().Count() - 1;
  const auto way = slot.Moments().WayTo(last);
  if (!way) throw WorldFault(kChangedOutside);
  Take(game, *way, slot.Moments()[last].Digest, PlayedStep::Undo);
  ComeUpAgain(game, page);
}

void RedoClick(Game& game) {
  const PlayedSlot& slot = game.OpenedSlot();
  const std::string page = PageOnHub(game.Desk());
  Take(game, slot.WayToRedo(), slot.DigestToRedo(), PlayedStep::Redo);
  ComeUpAgain(game, page);
}

/// The file as it was a step before; nothing where it was not there.
void StepBack(const WayBack& way, std::string_view name, std::optional<Bytes>& file) {
  const auto found = std::ranges::find(way, name, &FileBack::Name);
  if (found == way.end()) return;
  constexpr std::int64_t kMost = 1 << 24;
  file = found->Existed ? found->Contents.Of(file ? *file : Bytes(), kMost) : std::nullopt;
}

template <class T>
std::optional<Bytes> BytesOf(const World& world) {
  const ByteSpan bytes = world.Of<T>().Contents();
  return Bytes(bytes.begin(), bytes.end());
}

template <class T, class Fits>
std::optional<T> FirstIn(const std::optional<Bytes>& file, Fits fits) {
  T record;
  for (std::size_t at = 0; file && at + sizeof(T) <= file->size(); at += sizeof(T)) {
    std::memcpy(&record, file->data() + at, sizeof(T));
    if (fits(record)) return record;
  }
  return std::nullopt;
}

void Describe(PastMoment& moment, const std::optional<Bytes>& games,
              const std::optional<Bytes>& promotions) {
  const auto game = FirstIn<GameInfo>(games, [](const GameInfo&) { return true; });
  const int uid = game ? int(game->PlayerPromotion) : 0;
  const auto own =
      FirstIn<Promotion>(promotions, [uid](const Promotion& held) { return held.Uid == uid; });
  if (!own) return;
  moment.Image = own->Image;
  moment.Money = own->Money;
  moment.Promotion = own->Name.Str();
}

}  // namespace

std::vector<PastMoment> PastMoments(Game& game) {
  const World& world = game.World();
  const Mornings& moments = game.OpenedSlot().Moments();
  auto games = BytesOf<GameInfo>(world), promotions = BytesOf<Promotion>(world);
  std::vector<PastMoment> found;
  Day turned = Day::max();  // days behind it, of moments before, are of a road that was left
  for (std::size_t i = moments.Count(); i-- > 0;) {
    const auto step = moments.Step(i);
    if (!step) break;
    StepBack(*step, LayoutOf<GameInfo>().File, games);
    StepBack(*step, LayoutOf<Promotion>().File, promotions);
    const Moment& moment = moments[i];
    if (moment.Is == MomentKind::Click) continue;
    PastMoment past{i, moment, moment.On > turned, 0, 0, {}};
    Describe(past, games, promotions);
    found.push_back(std::move(past));
    if (moment.Is == MomentKind::Left) turned = std::min(turned, moment.Target);
  }
  return found;
}

std::string MomentText(const Moment& moment) {
  const std::string day = LongDate(moment.On);
  switch (moment.Is) {
    case MomentKind::Named:
      return moment.Name + " (" + day + ")";
    case MomentKind::Left:
      return "The road you left on " + day;
    default:
      return "The morning of " + day;
  }
}

std::string SinceText(Game& game, const PastMoment& moment) {
  const World& world = game.World();
  const Promotion& now = world.Player();
  std::string text;
  if (moment.Promotion != now.Name.Str()) text = "You ran " + moment.Promotion + ". ";
  text += "Image " + std::to_string(moment.Image) + "%, now " + std::to_string(now.Image) +
          "%; money " + Dollars(moment.Money) + ", now " + Dollars(now.Money);
  if (moment.OnOtherRoad || moment.Of.On > world.Today()) return text;
  int shows = 0, best = 0;
  for (const HistoryEntry& held : world.History()) {
    const bool isOwn = held.Promotion == now.Uid && !held.CalledOff &&
                       (held.Kind == kPastTv || held.Kind == kPastEvent);
    if (!isOwn || Day(held.On) < moment.Of.On) continue;
    ++shows;
    best = std::max(best, int(held.Rating));
  }
  if (shows == 0) return text + "; no show since";
  return text + "; " + std::to_string(shows) + (shows == 1 ? " show" : " shows") +
         " since, the best " + std::to_string(best) + "%";
}

std::string WhyNoWayBack(Game& game) {
  return game.OpenedSlot().Moments().Keeps() ? std::string() : kNoWayBack;
}

void GoBackTo(Game& game, std::size_t moment) {
  const Mornings& moments = game.OpenedSlot().Moments();
  if (moment >= moments.Count()) throw WorldFault("That moment is not kept any more.");
  const auto way = moments.WayTo(moment);
  if (!way) throw WorldFault(kChangedOutside);
  const auto name = game.World().Game().SaveName;
  Take(game, *way, moments[moment].Digest, PlayedStep::Left);
  game.World().Game().SaveName = name;
  ComeUpAgain(game);
}

bool AskAndGoBack(Game& game, const PastMoment& moment) {
  if (game.Desk().Objects(WhyNoWayBack(game))) return false;
  if (!game.Desk().Ask("Go Back", MomentText(moment.Of) + ": go back there?\n" +
                                      SinceText(game, moment) +
                                      ".\nWhat you leave is kept, and you can return to it."))
    return false;
  GoBackTo(game, moment.Number);
  return true;
}

void ConnectGoingBack(Game& game) {
  ui::Desk& desk = game.Desk();
  const auto isPlayed = [&game] {
    const auto& screens = game.Desk().Screens();
    return game.HasWorld() && !screens.empty() && screens.front()->Name() == kMainScreen;
  };
  desk.Undo = {
      [&game, isPlayed] { return isPlayed() ? game.OpenedSlot().WhatToUndo() : std::string(); },
      [&game] { UndoClick(game); }};
  desk.Redo = {
      [&game, isPlayed] { return isPlayed() ? game.OpenedSlot().WhatToRedo() : std::string(); },
      [&game] { RedoClick(game); }};
}

}  // namespace grapplemont
