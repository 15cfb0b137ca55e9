#include <optional>

#include "business/past.h"
#include "calendar/board.h"
#include "calendar/events.h"
#include "calendar/image.h"
#include "info/meeting.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/postings.h"
#include "show/attendance.h"
#include "storylines/feuds.h"
#include "storylines/titles.h"

// The meeting on what happens on the shows: image, feuds, Titles, Events.

namespace grapplemont {

namespace {

constexpr int kFalls = 2;
constexpr int kGreatShow = 90;
constexpr int kFewFeuds = 2;
constexpr int kColdHeat = 30, kHotHeat = 80, kFitForAnEvent = 60;
constexpr int kLongReign = 180;
/// A Title loses image when the match and its holder lie below it by more.
constexpr int kOutshines = 7;
constexpr int kLeavingMonths = 2;
constexpr int kDaysAhead = 35, kNear = 14;
constexpr std::chrono::days kOfLate{28};

std::string Signed(int step) {
  return step > 0 ? "+" + std::to_string(step) : std::to_string(step);
}

using WholeStep = int (*)(const GameInfo& game, int size, int rating);

/// The least rating that lifts the image of the player's promotion, if any does.
std::optional<int> RatingThatLifts(const World& world, WholeStep stepOf) {
  for (int rating = 0; rating <= 100; ++rating)
    if (stepOf(world.Game(), world.Player().Size, rating) > 0) return rating;
  return {};
}

/// "50% on television lifts our image."
std::string WhatLifts(const World& world) {
  const auto rating = RatingThatLifts(world, WholeTvStep);
  return rating ? Number(*rating) + "% on television lifts our image."
                : "Nothing on television lifts our image, but a good show costs it least.";
}

/// The promotion was of today's class before the show, has left it in that class, and still is.
bool WasOfOurClass(const World& world, const HistoryEntry& show) {
  const int size = world.Player().Size;
  if (show.Size != size) return false;
  for (int number = world.History().NumberOf(show) - 1; number >= 1; --number) {
    const HistoryEntry& before = world.History()[number];
    if (before.Promotion == show.Promotion) return before.Size == size;
  }
  return true;
}

void TalkOfLastShow(Meeting& meeting) {
  const World& world = meeting.Of();
  const HistoryEntry* show = LastShowOf(world, world.PlayerUid(), world.Today() - kOfLate);
  if (!show || show->CalledOff || !WasOfOurClass(world, *show)) return;
  const WholeStep stepOf = show->Kind == kPastEvent ? WholeEventStep : WholeTvStep;
  const int step = stepOf(world.Game(), world.Player().Size, show->Rating);
  if (step > 0) return;
  const auto needed = RatingThatLifts(world, stepOf);
  meeting.Say(Point::LastShow,
              {{"show", show->Name.Str()},
               {"rating", Number(int(show->Rating))},
               {"step", Signed(step)},
               {"needed", needed ? "From " + Number(*needed) + "% on it would have risen."
                                 : "No rating would have lifted it."}});
}

std::string FeudName(const World& world, const Feud& feud) {
  const FeudSides sides = SidesOf(feud);
  return SideName(world, sides.One) + " against " + SideName(world, sides.Two);
}

People PartiesOf(const World& world, const Feud& feud) {
  People people;
  for (const Word& uid : {feud.Worker1, feud.Worker2, feud.Worker3, feud.Worker4})
    if (const Worker* worker = world.FindWorker(uid)) people.push_back(worker);
  return people;
}

void TalkOfFeud(Meeting& meeting, const Feud& feud) {
  const World& world = meeting.Of();
  People away = PartiesOf(world, feud);
  std::erase_if(away, [](const Worker* w) { return w->Status == "Nor" && !IsSentAway(*w); });
  const FeudScore score = FeudWins(feud);
  const int wins = score.One + score.Two;
  const auto days = (world.Today() - Day(feud.Started)).count();
  const Meeting::Words words = {
      {"feud", FeudName(world, feud)},  {"who", SomeOf(away)},
      {"heat", Number(int(feud.Heat))}, {"wins", Number(wins)},
      {"days", Counted(days, "day")},   {"advice", AssessFeud(world, feud)}};
  if (!away.empty()) return meeting.Say(Point::FeudHurt, words);
  if (IsRipe(feud)) return meeting.Say(Point::FeudRipe, words);
  if (feud.Heat < kColdHeat) return meeting.Say(Point::FeudCold, words);
  if (feud.Heat >= kHotHeat) meeting.Say(Point::FeudHot, words);
}

/// The most popular Face and Heel without a feud who would both have it; empty for none.
std::string FeudIdea(const World& world) {
  const Worker *face = nullptr, *heel = nullptr;
  for (const Worker* worker : FeudRoster(world)) {
    if (IsInFeud(world, worker->Uid)) continue;
    if (!face && worker->Disposition == "F") face = worker;
    if (!heel && worker->Disposition == "H") heel = worker;
  }
  if (!face || !heel) return {};
  const FeudSides sides{{face->Uid, 0}, {heel->Uid, 0}};
  if (!WhyNoFeud(world, sides).empty() || RefusalOf(world, sides)) return {};
  return ": " + face->Name.Str() + " against " + heel->Name.Str() + " would begin at a heat of " +
         std::to_string(StartingHeatOf(world, sides).Heat);
}

std::string WhyAway(const Worker& worker) {
  if (!(worker.Status == "Nor")) return StatusLine(worker);
  return IsOnRoster(worker) ? "" : "off the card";
}

std::string WhyLeaving(const Worker& worker) {
  if (worker.RetiringSoon) return "the retirement is announced";
  if (worker.ContractMonths < 1 || worker.ContractMonths > kLeavingMonths) return {};
  return "the contract has " + Counted(worker.ContractMonths, "month") + " left";
}

People HoldersOf(const World& world, const Title& title) {
  People holders;
  for (const Word& uid : {title.Holder, title.Partner})
    if (const Worker* worker = world.FindWorker(uid)) holders.push_back(worker);
  return holders;
}

/// The first of the holders of whom there is something to say, and what.
bool TalkOfHolders(Meeting& meeting, const Title& title, Point point,
                   std::string (*why)(const Worker&)) {
  for (const Worker* holder : HoldersOf(meeting.Of(), title)) {
    const std::string reason = why(*holder);
    if (reason.empty()) continue;
    meeting.Say(point, {{"title", WithArticle(title.Name.View())},
                        {"who", holder->Name.Str()},
                        {"why", reason},
                        {"image", Number(int(title.Image))}});
    return true;
  }
  return false;
}

void TalkOfHeldTitle(Meeting& meeting, const Title& title) {
  if (TalkOfHolders(meeting, title, Point::TitleAway, WhyAway)) return;
  if (TalkOfHolders(meeting, title, Point::TitleLeaving, WhyLeaving)) return;
  const auto holders = HoldersOf(meeting.Of(), title);
  if (holders.empty()) return;
  int sum = 0;
  for (const Worker* holder : holders) sum += holder->Over;
  const int over = sum / static_cast<int>(holders.size());
  const auto days = (meeting.Of().Today() - Day(title.Reigns[0].Won)).count();
  const bool isDated = Day(title.Reigns[0].Won) != kNoTitleDate;
  const Meeting::Words words = {{"title", WithArticle(title.Name.View())},
                                {"who", ChampionText(meeting.Of(), title)},
                                {"themself", holders.size() > 1   ? "themselves"
                                             : holders[0]->Gender ? "himself"
                                                                  : "herself"},
                                {"image", Number(int(title.Image))},
                                {"over", Number(over)},
                                {"needed", Number(title.Image - kOutshines)},
                                {"days", Counted(days, "day")}};
  if (over + kOutshines < title.Image) return meeting.Say(Point::TitleOutshines, words);
  if (isDated && days > kLongReign) meeting.Say(Point::TitleLong, words);
}

}  // namespace

int FallsInARow(const Promotion& promotion) {
  int falls = 0;
  for (std::size_t i = 0; i + 1 < promotion.Rank.size(); ++i) {
    if (promotion.Rank[i + 1] == kNoEnd || promotion.Rank[i + 1] <= promotion.Rank[i]) break;
    ++falls;
  }
  return falls;
}

void TalkOfImage(Meeting& meeting) {
  const World& world = meeting.Of();
  const Promotion& player = meeting.Player();
  const int falls = FallsInARow(player);
  const Meeting::Words words = {
      {"n", Number(falls)},
      {"image", Number(int(player.Image))},
      {"left", Counted(100 - player.Image, "point")},
      {"lifts", WhatLifts(world)},
      {"above", std::string(SizeText(player.Size - 1))},
      {"below", std::string(SizeText(player.Size + 1))},
      {"step", Signed(WholeTvStep(world.Game(), player.Size, kGreatShow))}};
  if (falls > 0) meeting.Say(falls >= kFalls ? Point::ImageFalling : Point::ImageSlips, words);
  if (const int next = ClassInSight(player))
    meeting.Say(next > player.Size ? Point::ImageDanger : Point::ImageNext, words);
  TalkOfLastShow(meeting);
}

void TalkOfFeuds(Meeting& meeting) {
  const World& world = meeting.Of();
  int running = 0;
  for (const Feud& feud : world.Feuds()) {
    if (IsFreeSlot(feud)) continue;
    ++running;
    TalkOfFeud(meeting, feud);
  }
  if (running < kFewFeuds)
    meeting.Say(Point::FeudsFew, {{"n", running == 0 ? "no feuds" : Counted(running, "feud")},
                                  {"idea", FeudIdea(world)}});
}

void TalkOfTitles(Meeting& meeting) {
  const World& world = meeting.Of();
  int count = 0;
  for (const Title& title : world.Titles()) {
    if (!IsPlayers(world, title)) continue;
    ++count;
    if (title.Suspended) continue;
    if (title.Holder == 0)
      meeting.Say(Point::TitleVacant,
                  {{"title", WithArticle(title.Name.View())}, {"image", Number(int(title.Image))}});
    else
      TalkOfHeldTitle(meeting, title);
  }
  if (count == 0) meeting.Say(Point::TitlesNone);
}

void TalkOfEvents(Meeting& meeting) {
  const World& world = meeting.Of();
  Day day = world.Today();
  while (!IsEventDay(day)) day += std::chrono::days{1};
  const auto days = (day - world.Today()).count();
  if (days > kDaysAhead) return;
  const Event* event = PlayerEvent(world, MonthOf(day));
  if (!event)
    return meeting.Say(Point::EventNone, {{"day", LongDate(day)}},
                       days > kNear ? Urgency::Soon : Urgency::Now);
  const int cost = EventProductionCost(event->Type);
  if (meeting.Player().Money < cost)
    meeting.Say(Point::EventCost, {{"event", event->Name.Str()},
                                   {"cost", Dollars(cost)},
                                   {"money", Dollars(meeting.Player().Money)}});
  if (days > kNear) return;
  const auto fit = FitWrestlers(world).size();
  const auto hot = std::ranges::count_if(world.Feuds(), [](const Feud& feud) {
    return !IsFreeSlot(feud) && feud.Heat >= kFitForAnEvent;
  });
  meeting.Say(Point::EventNear, {{"event", event->Name.Str()},
                                 {"days", Counted(days, "day")},
                                 {"feuds", Number(hot)},
                                 {"fit", Counted(fit, "fit person", "fit people")},
                                 {"are", fit == 1 ? "is" : "are"}});
}

}  // namespace grapplemont
