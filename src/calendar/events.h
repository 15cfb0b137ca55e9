#pragma once

#include "records/world.h"

namespace grapplemont {

/// The Event.Type (1 pay-per-view to 4 small) of the promotion's Event this month, 0 for none. A
/// rival without one gets one first.
int EventThisMonth(World& world, const Promotion& promotion);
/// The promotion's Event of a month 1 to 12; nullptr for none.
const Event* EventOf(const World& world, int promotionUid, int month);
/// The player's Event of a month 1 to 12; nullptr for none.
const Event* PlayerEvent(const World& world, int month);
/// Gives the promotion an Event for each month that it has none for.
void EnsureEvents(World& world, const Promotion& promotion);
/// The type a new Event has by the promotion's size and image.
int NewEventType(const Promotion& promotion);

}  // namespace grapplemont
