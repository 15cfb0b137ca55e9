#include "calendar/daykind.h"

#include "calendar/events.h"
#include "records/fields/fields.h"

namespace grapplemont {

bool HasTvOn(const World& world, int promotionUid, Day day) {
  bool found = false;
  for (const Show& show : world.Shows())
    if (show.Owner == promotionUid && show.Day == DayName(day)) found = true;
  return found;
}

bool HasTvToday(const World& world, int promotionUid) {
  return HasTvOn(world, promotionUid, world.Today());
}

DayKind DayKindToday(World& world, const std::function<bool()>& holdNone) {
  if (IsEventDay(world.Today())) {
    if (EventThisMonth(world, world.Player()) != 0) return DayKind::Event;
    return holdNone() ? DayKind::Plain : DayKind::Stay;
  }
  return HasTvToday(world, world.PlayerUid()) ? DayKind::Television : DayKind::Plain;
}

}  // namespace grapplemont
