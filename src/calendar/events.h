#pragma once

#include <string>
#include <string_view>

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

// The player's own planning of the year, a month 1 to 12 at a time. Changes require that nothing
// stands against them.

/// The day of the next Event of the month: its last Sunday, today or later.
Day NextEventDay(const World& world, int month);
/// Why the promotion cannot hold Events of the type; empty when it can.
std::string WhyNotEventType(const Promotion& promotion, int type);
/// Why the player's Event of the month cannot have this name; empty when it can.
std::string WhyNotEventName(const World& world, int month, std::string_view name);
/// Why no Event of the name and type can be planned for the month; empty when one can.
std::string WhyNotPlan(const World& world, int month, std::string_view name, int type);
void PlanEvent(World& world, int month, std::string_view name, int type);
void RenameEvent(World& world, int month, std::string_view name);
/// Holds until the image moves next and sets the fitting type again.
void ChangeEventType(World& world, int month, int type);
/// Its record goes, those behind it move up.
void DropEvent(World& world, int month);

}  // namespace grapplemont
