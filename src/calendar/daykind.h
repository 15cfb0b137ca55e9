#pragma once

#include <functional>

#include "records/world.h"

namespace grapplemont {

/// What pressing "Next Day" does.
enum class DayKind { Plain = 1, Television = 2, Event = 3, Stay = 4 };

/// True when the promotion has a television show on this day of the week.
bool HasTvToday(const World& world, int promotionUid);
bool HasTvOn(const World& world, int promotionUid, Day day);

/// An Event day goes before a television day. On an Event day without an Event `holdNone` is asked
/// whether the month shall pass without one: true makes the day plain, false stays on it.
DayKind DayKindToday(World& world, const std::function<bool()>& holdNone);

}  // namespace grapplemont
