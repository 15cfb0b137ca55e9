#pragma once

#include <optional>
#include <string>

#include "records/world.h"

// The promotion's weekly staff meeting.

namespace grapplemont {

bool IsMeetingDay(const World& world);
/// The day of the next meeting, today or later; nothing for a promotion that has named no day.
std::optional<Day> NextMeeting(const World& world);
/// Why there is no meeting today, with the day of the next; empty on the day.
std::string WhyNoMeeting(const World& world);

}  // namespace grapplemont
