#include "calendar/meetingday.h"

#include "records/fields/fields.h"

namespace grapplemont {

namespace {

constexpr int kDaysOfWeek = 7;

}  // namespace

std::optional<Day> NextMeeting(const World& world) {
  const int wanted = DayNumber(world.Player().MeetingDay.View());
  if (wanted == 0) return std::nullopt;
  const int present = DayNumber(DayName(world.Today()));
  return world.Today() + std::chrono::days{(wanted - present + kDaysOfWeek) % kDaysOfWeek};
}

bool IsMeetingDay(const World& world) {
  return NextMeeting(world) == world.Today();
}

std::string WhyNoMeeting(const World& world) {
  const std::optional<Day> next = NextMeeting(world);
  if (!next) return "No day is set for the meeting. The promotion's page has it.";
  if (*next == world.Today()) return {};
  return "The staff meet on " + std::string(DayName(*next)) + ", " + PlainDate(*next) + ".";
}

}  // namespace grapplemont
