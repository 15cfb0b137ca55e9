#include "ui/goingback.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <map>
#include <memory>
#include <utility>

#include "records/fields/companies.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/store/playedslot.h"
#include "records/world.h"

namespace grapplemont {

namespace {

constexpr const char* kMainScreen = "frmMainScreen";
constexpr char kPageAbove = '/';
/// What waits for the player comes up by itself where it still waits.
constexpr const char* kComeUpThemselves[] = {"frmMatchOutput", "frmPostShow", "frmPinky",
                                             "frmIncident",    "frmTheEnd",   "frmWait"};
constexpr const char* kChangedOutside =
    "The files of this game were changed from outside since then: that moment cannot be made of "
    "them any more.";
constexpr const char* kNoWayBack = "A rule of the house: this game never goes back.";

/// The world takes on what the way leads to. A game's name is not of its past.
void Take(Game& game, const WayBack& way, std::uint64_t digest, const PlayedStep& as) {
  World& world = game.World();
  const auto name = world.Game().SaveName;
  std::map<std::string, Bytes> files;
  std::vector<Table*> tables;
  for (Table* table : world.Tables()) {
    const std::string file(table->File());
    if (std::ranges::find(way, file, &FileBack::Name) == way.end()) continue;
    tables.push_back(table);
    const ByteSpan bytes = table->Contents();
    if (table->Exists()) files[file] = Bytes(bytes.begin(), bytes.end());
  }
  if (!game.OpenedSlot().Restore(way, digest, files)) throw WorldFault(kChangedOutside);
  for (Table* table : tables) {
    const auto file = files.find(std::string(table->File()));
    if (file == files.end())
      table->Remove();
    else
      table->Load(file->second);
  }
  if (world.Game().SaveName != name) world.Game().SaveName = name;
  // What was chosen on a sheet is not of the world: it comes up again with it.
  const SessionWords chosen = std::exchange(world.Session, {});
  world.Session.StartSize = world.Player().Size;
  world.Session.EventAnnouncer = chosen.EventAnnouncer;
  world.Session.EventColour = chosen.EventColour;
  world.Session.EventColourIsWorker = chosen.EventColourIsWorker;
  world.Session.EventExtra = chosen.EventExtra;
  game.CommitAs(as);
}

/// The main screen shows the world as it is now.
void ShowMainScreen(ui::Desk& desk) {
  desk.CloseAll();
  desk.Open(kMainScreen);
}

/// The main screen and the page that lay on it show the world that `take` makes. A page that does
/// not come up without doing something to the world stays away.
void ComeUpAgain(Game& game, const std::string& page, const ui::Handler& take) {
  ui::Desk& desk = game.Desk();
  take();
  ShowMainScreen(desk);
  const std::string first = page.substr(0, page.find(kPageAbove));
  if (!desk.Knows(first) || !desk.Top() || desk.Top()->Name() != kMainScreen) return;
  const auto digest = [&game] { return game.OpenedSlot().DigestAfter(game.World().Changes()); };
  const std::uint64_t wanted = digest();
  {
    game.ComesUpAgain = true;
    const std::unique_ptr<bool, void (*)(bool*)> until(&game.ComesUpAgain,
                                                       [](bool* again) { *again = false; });
    desk.Open(first);
    if (first != page && desk.Top()->Name() == first) desk.Open(page.substr(first.size() + 1));
  }
  if (digest() == wanted) return;
  game.World().Rollback();
  take();
  ShowMainScreen(desk);
}

void UndoClick(Game& game) {
  PlayedSlot& slot = game.OpenedSlot();
  const auto click = slot.ClickToUndo();
  const auto way = click ? slot.Moments().WayTo(*click) : std::nullopt;
  if (!way) throw WorldFault(kChangedOutside);
  const Moment moment = slot.Moments()[*click];
  const std::string now = PageOnHub(game.Desk());
  ComeUpAgain(game, moment.Page,
              [&] { Take(game, *way, moment.Digest, {.Is = PlayedStep::Undo, .Page = now}); });
}

void RedoClick(Game& game) {
  const PlayedSlot& slot = game.OpenedSlot();
  const std::string now = PageOnHub(game.Desk());
  ComeUpAgain(game, slot.PageToRedo(), [&] {
    Take(game, slot.WayToRedo(), slot.DigestToRedo(), {.Is = PlayedStep::Redo, .Page = now});
  });
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
  moment.Size = own->Size;
  moment.Money = own->Money;
  moment.Promotion = own->Name.Str();
}

/// Which moments the present does not come from. Whoever goes back goes on from where they went
/// back to, and what lies between is another road.
std::vector<bool> OtherRoads(const Mornings& moments) {
  std::vector<bool> others(moments.Count());
  Day turned = Day::max();  // of a road whose goal is not kept: days behind it are another's
  for (std::size_t i = moments.Count(); i-- > 0;) {
    others[i] = moments[i].Is == MomentKind::Left || moments[i].On > turned;
    if (moments[i].Is != MomentKind::Left) continue;
    std::size_t goal = i;
    while (goal-- > 0 && moments[goal].Digest != moments[i].TargetDigest) {
    }
    if (goal >= i) {
      turned = std::min(turned, moments[i].Target);
      continue;
    }
    for (; i > goal + 1; --i) others[i - 1] = true;
    i = goal;
    others[i] = moments[i].Is == MomentKind::Left;  // it was gone on from, whatever it came from
  }
  return others;
}

}  // namespace

bool IsOnMainScreen(const ui::Desk& desk) {
  return !desk.Screens().empty() && desk.Screens().front()->Name() == kMainScreen;
}

std::string PageOnHub(const ui::Desk& desk) {
  const auto& screens = desk.Screens();
  if (screens.size() < 2 || !IsOnMainScreen(desk)) return {};
  const std::string& page = screens[1]->Name();
  const bool comesUp = std::ranges::find(kComeUpThemselves, page) != std::end(kComeUpThemselves);
  if (comesUp || !desk.Knows(page)) return {};
  const std::string above =
      screens.size() > 2 ? screens[2]->Name() + " " + screens[2]->Title.Get() : std::string();
  return desk.Knows(above) ? page + kPageAbove + above : page;
}

std::vector<PastMoment> PastMoments(Game& game) {
  const World& world = game.World();
  const Mornings& moments = game.OpenedSlot().Moments();
  const std::vector<bool> others = OtherRoads(moments);
  auto games = BytesOf<GameInfo>(world), promotions = BytesOf<Promotion>(world);
  std::vector<PastMoment> found;
  for (std::size_t i = moments.Count(); i-- > 0;) {
    const auto step = moments.Step(i);
    if (!step) break;
    StepBack(*step, LayoutOf<GameInfo>().File, games);
    StepBack(*step, LayoutOf<Promotion>().File, promotions);
    if (moments[i].Is == MomentKind::Click) continue;
    PastMoment past{i, moments[i], others[i]};
    Describe(past, games, promotions);
    found.push_back(std::move(past));
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

namespace {

/// "3 shows since, the best 76%": the player's.
std::string ShowsSince(const World& world, Day day) {
  int shows = 0, best = 0;
  for (const HistoryEntry& held : world.History()) {
    const bool isOwn = held.Promotion == world.PlayerUid() && !held.CalledOff &&
                       (held.Kind == kPastTv || held.Kind == kPastEvent);
    if (!isOwn || Day(held.On) < day) continue;
    ++shows;
    best = std::max(best, int(held.Rating));
  }
  if (shows == 0) return "no show since";
  return Counted(shows, "show") + " since, the best " + std::to_string(best) + "%";
}

/// How far another road went, by the day that the game is at now.
std::string LeftWhen(Day on, Day today) {
  const auto days = (on - today).count();
  if (days == 0) return "left on this day";
  return "left " + Counted(std::abs(days), "day") +
         (days > 0 ? " ahead of today" : " before today");
}

}  // namespace

std::string SinceText(Game& game, const PastMoment& moment) {
  const World& world = game.World();
  const Promotion& now = world.Player();
  std::string text;
  if (moment.Promotion != now.Name.Str())
    text = "You ran " + moment.Promotion + ". ";
  else if (moment.Size != now.Size)
    text =
        std::string(SizeText(moment.Size)) + " then, " + std::string(SizeText(now.Size)) + " now. ";
  std::vector<std::string> moved;
  if (moment.OnOtherRoad)
    moved.push_back(LeftWhen(moment.Of.On, world.Today()));
  else if (moment.Of.On <= world.Today())
    moved.push_back(ShowsSince(world, moment.Of.On));
  if (moment.Image != now.Image)
    moved.push_back("image " + std::to_string(moment.Image) + "%, now " +
                    std::to_string(now.Image) + "%");
  if (moment.Money != now.Money)
    moved.push_back("money " + Dollars(moment.Money) + ", now " + Dollars(now.Money));
  if (moved.empty()) moved.push_back("the same image and money");
  moved.front().front() =
      static_cast<char>(std::toupper(static_cast<unsigned char>(moved.front().front())));
  return text + Joined(moved, "; ");
}

std::string WhyNoWayBack(Game& game) {
  return game.OpenedSlot().Moments().Keeps() ? std::string() : kNoWayBack;
}

void GoBackTo(Game& game, std::size_t moment) {
  const Mornings& moments = game.OpenedSlot().Moments();
  if (moment >= moments.Count()) throw WorldFault("That moment is not kept any more.");
  const auto way = moments.WayTo(moment);
  if (!way) throw WorldFault(kChangedOutside);
  const std::uint64_t digest = moments[moment].Digest;
  Take(game, *way, digest, {.Is = PlayedStep::Left, .Target = digest});
  ShowMainScreen(game.Desk());
}

bool AskAndGoBack(Game& game, const PastMoment& moment) {
  if (game.Desk().Objects(WhyNoWayBack(game))) return false;
  const Mornings& moments = game.OpenedSlot().Moments();
  std::string kept = "What you leave is kept, and you can return to it.";
  if (const auto goes = moments.WouldGo(MomentKind::Left))
    kept += " " + std::to_string(Mornings::kLeft) + " roads are kept: \"" +
            MomentText(moments[*goes]) + "\" is forgotten for it.";
  if (!game.Desk().Ask("Go Back", MomentText(moment.Of) + ": go back there?\n" +
                                      SinceText(game, moment) + ".\n" + kept))
    return false;
  GoBackTo(game, moment.Number);
  return true;
}

void OpenMornings(Game& game) {
  ui::Desk& desk = game.Desk();
  desk.Note({"mornings"});
  if (desk.Top() && desk.Top()->Name() == "frmTheEnd") desk.Close(*desk.Top());
  desk.Open("frmMornings");
}

void ConnectGoingBack(Game& game) {
  ui::Desk& desk = game.Desk();
  const auto isPlayed = [&game] { return game.HasWorld() && IsOnMainScreen(game.Desk()); };
  desk.Undo = {
      [&game, isPlayed] { return isPlayed() ? game.OpenedSlot().WhatToUndo() : std::string(); },
      [&game] { UndoClick(game); }};
  desk.Redo = {
      [&game, isPlayed] { return isPlayed() ? game.OpenedSlot().WhatToRedo() : std::string(); },
      [&game] { RedoClick(game); }};
}

}  // namespace grapplemont
