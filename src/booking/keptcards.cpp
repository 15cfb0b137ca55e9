#include "booking/keptcards.h"

#include <algorithm>

#include "records/segments.h"
#include "show/holdshow.h"

namespace grapplemont {

namespace {

/// So far ahead every show and Event has had its day.
constexpr int kDaysAhead = 370;
/// As long as the reports recall what was done on a card.
constexpr std::chrono::days kRecalled{35};

bool Belongs(const KeptRow& row, const CardOwner& owner) {
  return row.Show == std::string_view(owner.Show) && bool(row.IsEvent) == owner.IsEvent &&
         bool(row.IsDraft) == owner.IsDraft;
}

/// The player's last show in the history; nullptr for none.
const HistoryEntry* LastShow(const World& world) {
  for (int number = world.History().Count(); number >= 1; --number) {
    const HistoryEntry& entry = world.History()[number];
    const bool isShow = entry.Kind == kPastTv || entry.Kind == kPastEvent;
    if (isShow && entry.Promotion == world.PlayerUid()) return &entry;
  }
  return nullptr;
}

ComingShow Coming(const World& world, CardOwner owner, Day on) {
  const int booked = RowsBooked(FindCard(world, owner, on));
  return {std::move(owner), on, {}, booked};
}

}  // namespace

int RowsBooked(const KeptCard& card) {
  return static_cast<int>(std::ranges::count_if(
      card.Rows, [](const Segment& segment) { return segment.Kind != kEmptySegment; }));
}

KeptCard FindCard(const World& world, const CardOwner& owner) {
  Day last = {};
  for (const KeptRow& row : world.KeptRows())
    if (Belongs(row, owner)) last = std::max(last, Day(row.On));
  return FindCard(world, owner, last);
}

KeptCard FindCard(const World& world, const CardOwner& owner, Day on) {
  KeptCard kept{{}, on};
  for (const KeptRow& row : world.KeptRows()) {
    if (!Belongs(row, owner) || Day(row.On) != kept.On) continue;
    if (kept.Rows.empty())
      kept.Rows.assign(static_cast<std::size_t>(RowsOf(owner.IsEvent)), EmptySegment());
    if (row.Row >= 1 && row.Row <= static_cast<int>(kept.Rows.size()))
      kept.Rows[static_cast<std::size_t>(row.Row - 1)] = row.Booked;
  }
  return kept;
}

void KeepCard(World& world, const CardOwner& owner, const Card& card, Day on) {
  auto& rows = world.KeptRows();
  const auto stays = [&](const KeptRow& row) {
    if (owner.IsDraft) return Day(row.On) != on && Day(row.On) >= world.Today();
    return Day(row.On) < on && Day(row.On) >= on - kRecalled;
  };
  rows.Keep([&](const KeptRow& row) { return !Belongs(row, owner) || stays(row); });
  for (std::size_t at = 0; at < card.size() && !rows.Full(); ++at) {
    if (card[at].Kind == kEmptySegment) continue;
    KeptRow row{};
    row.Booked = card[at];
    row.Booked.Rating = 0;
    row.Show = owner.Show;
    row.IsEvent = owner.IsEvent;
    row.IsDraft = owner.IsDraft;
    row.Row = static_cast<int>(at) + 1;
    row.On = on;
    rows.Append(row);
  }
}

bool WasHeld(const World& world) {
  const auto& sheet = world.Segments();
  return std::any_of(sheet.begin(), sheet.end(), [](const Segment& segment) {
    return segment.Kind != kEmptySegment && segment.Rating != 0;
  });
}

void KeepLastCard(World& world) {
  const HistoryEntry* last = LastShow(world);
  if (!last || !WasHeld(world)) return;
  const bool isEvent = last->Kind == kPastEvent;
  KeepCard(world, {last->Name.Str(), isEvent, false}, CardOf(world), last->On);
}

std::vector<ComingShow> ComingShows(const World& world) {
  std::vector<ComingShow> coming;
  for (const Show& show : world.Shows()) {
    if (show.Owner != world.PlayerUid()) continue;
    Day on = world.Today() + std::chrono::days{1};
    for (int day = 1; day < kDaysAhead && show.Day != DayName(on); ++day)
      on += std::chrono::days{1};
    if (show.Day != DayName(on)) continue;
    for (int week = 0; week < kDraftsAhead; ++week) {
      coming.push_back(
          Coming(world, {show.Name.Str(), false, true}, on + std::chrono::weeks{week}));
      coming.back().Slot = show.Slot.Str();
    }
  }
  for (const Event& event : world.Events()) {
    if (event.Owner != world.PlayerUid()) continue;
    Day on = world.Today() + std::chrono::days{1};
    for (int day = 1; day < kDaysAhead && (!IsEventDay(on) || event.Month != MonthOf(on)); ++day)
      on += std::chrono::days{1};
    if (IsEventDay(on) && event.Month == MonthOf(on))
      coming.push_back(Coming(world, {event.Name.Str(), true, true}, on));
  }
  std::ranges::stable_sort(coming, {}, &ComingShow::On);
  return coming;
}

}  // namespace grapplemont
