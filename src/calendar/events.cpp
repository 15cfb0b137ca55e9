#include "calendar/events.h"

#include <algorithm>
#include <array>

#include "records/arithmetic.h"
#include "records/fields/fields.h"
#include "show/attendance.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

struct EventTypes {
  int ImageAbove60;
  int Image60OrLess;
};
// By size, Global to Backyard: 1 pay-per-view, 2 large, 3 medium, 4 small.
constexpr std::array<EventTypes, 6> kNewEventTypes = {
    {{1, 1}, {1, 2}, {2, 3}, {3, 3}, {4, 4}, {4, 4}}};

/// The number of the place for one more Event: that of one whose promotion is gone, else behind the
/// last; 0 for none.
int FreePlace(const World& world) {
  const Records<Event>& events = world.Events();
  for (const Event& event : events)
    if (event.Owner == 0) return events.NumberOf(event);
  return events.Full() ? 0 : events.Count() + 1;
}

/// Nothing once no place is left.
void Add(World& world, int owner, int month, std::string_view name, int type) {
  Event event;
  event.Owner = owner;
  event.Month = month;
  event.Name = name;
  event.Type = type;
  const int place = FreePlace(world);
  if (place > world.Events().Count())
    world.Events().Append(event);
  else if (place != 0)
    world.Events()[place] = event;
}

void AddEvent(World& world, const Promotion& promotion, int month) {
  Add(world, promotion.Uid, month, promotion.Initials + " in " + std::string(MonthName(month)),
      NewEventType(promotion));
}

Day LastSunday(int year, int month) {
  using namespace std::chrono;
  return sys_days{std::chrono::year{year} / month / Sunday[last]};
}

/// The player's Event of the month, to be changed; nullptr for none.
Event* Planned(World& world, int month) {
  const Event* event = PlayerEvent(world, month);
  return event ? &world.Events()[world.Events().NumberOf(*event)] : nullptr;
}

}  // namespace

const Event* EventOf(const World& world, int promotionUid, int month) {
  for (const Event& event : world.Events())
    if (event.Owner == promotionUid && event.Month == month) return &event;
  return nullptr;
}

int NewEventType(const Promotion& promotion) {
  const EventTypes& types = BySize(kNewEventTypes, promotion.Size);
  return promotion.Image >= 61 ? types.ImageAbove60 : types.Image60OrLess;
}

int EventThisMonth(World& world, const Promotion& promotion) {
  const int month = MonthOf(world.Today());
  const bool isPlayer = promotion.Uid == world.PlayerUid();
  if (!isPlayer && !EventOf(world, promotion.Uid, month)) AddEvent(world, promotion, month);
  const Event* event = EventOf(world, promotion.Uid, month);
  return event ? int(event->Type) : 0;
}

const Event* PlayerEvent(const World& world, int month) {
  return EventOf(world, world.PlayerUid(), month);
}

void EnsureEvents(World& world, const Promotion& promotion) {
  for (int month = 1; month <= 12; ++month)
    if (!EventOf(world, promotion.Uid, month)) AddEvent(world, promotion, month);
}

Day NextEventDay(const World& world, int month) {
  const int year = YearOf(world.Today());
  const Day day = LastSunday(year, month);
  return day >= world.Today() ? day : LastSunday(year + 1, month);
}

std::string WhyNotEventType(const Promotion& promotion, int type) {
  if (Says(kEventTypes, type).empty()) return "Choose a type first.";
  const BaseAndDraw crowd = EventCrowd(type, promotion.Size, promotion.Image);
  if (crowd.Base + crowd.Draw > 0) return {};
  return "Nobody would watch a " + std::string(Says(kEventTypes, type)) +
         " of a promotion that is " + std::string(Says(kSizes, promotion.Size)) + ".";
}

std::string WhyNotEventName(const World& world, int month, std::string_view name) {
  constexpr int kLetters = decltype(Event::Name)::kWidth;
  if (std::string why = WhyNoName(name, kLetters); !why.empty()) return why;
  name = TrimmedName(name);
  const bool taken = std::ranges::any_of(world.Events(), [&](const Event& event) {
    return event.Owner == world.PlayerUid() && event.Month != month && event.Name == name;
  });
  return taken ? "You have an Event called " + std::string(name) + " already." : "";
}

std::string WhyNotPlan(const World& world, int month, std::string_view name, int type) {
  if (PlayerEvent(world, month))
    return "There is an Event in " + std::string(MonthName(month)) + " already.";
  if (FreePlace(world) == 0) return "No more Events can be kept.";
  if (std::string why = WhyNotEventName(world, month, name); !why.empty()) return why;
  return WhyNotEventType(world.Player(), type);
}

void PlanEvent(World& world, int month, std::string_view name, int type) {
  Add(world, world.PlayerUid(), month, TrimmedName(name), type);
}

void RenameEvent(World& world, int month, std::string_view name) {
  if (Event* event = Planned(world, month)) event->Name = TrimmedName(name);
}

void ChangeEventType(World& world, int month, int type) {
  if (Event* event = Planned(world, month)) event->Type = type;
}

void DropEvent(World& world, int month) {
  if (const Event* event = Planned(world, month))
    world.Events().Erase(world.Events().NumberOf(*event));
}

}  // namespace grapplemont
