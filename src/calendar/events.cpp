#include "calendar/events.h"

#include <array>

#include "records/dates.h"

namespace grapplemont {

namespace {

struct EventTypes {
  int ImageAbove60;
  int Image60OrLess;
};
// By size, Global to Backyard: 1 pay-per-view, 2 large, 3 medium, 4 small.
constexpr std::array<EventTypes, 6> kNewEventTypes = {
    {{1, 1}, {1, 2}, {2, 3}, {3, 3}, {4, 4}, {4, 4}}};

void AddEvent(World& world, const Promotion& promotion, int month) {
  Event event;
  event.Owner = promotion.Uid;
  event.Month = month;
  event.Name = promotion.Initials + " in " + std::string(MonthName(month));
  event.Type = NewEventType(promotion);
  world.Events().Append(event);
}

}  // namespace

const Event* EventOf(const World& world, int promotionUid, int month) {
  for (const Event& event : world.Events())
    if (event.Owner == promotionUid && event.Month == month) return &event;
  return nullptr;
}

int NewEventType(const Promotion& promotion) {
  if (promotion.Size < kGlobal || promotion.Size > kBackyard)
    return kNewEventTypes.back().ImageAbove60;
  const EventTypes& types = kNewEventTypes[static_cast<std::size_t>(promotion.Size - 1)];
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

}  // namespace grapplemont
