#include "calendar/ahead.h"

#include "calendar/daykind.h"
#include "calendar/events.h"
#include "records/fields/fields.h"

namespace grapplemont {

std::vector<Appointment> ComingShows(const World& world, int days) {
  std::vector<Appointment> coming;
  for (int i = 0; i < days; ++i) {
    const Day day = world.Today() + std::chrono::days{i};
    if (IsEventDay(day)) {
      const Event* event = PlayerEvent(world, MonthOf(day));
      coming.push_back(event ? Appointment{day, event->Name.Str(), "Event"}
                             : Appointment{day, "Nothing planned", "No Event"});
      continue;
    }
    for (const Show& show : world.Shows())
      if (show.Owner == world.PlayerUid() && show.Day == DayName(day))
        coming.push_back({day, show.Name.Str(), "Television"});
  }
  return coming;
}

bool NeedsThePlayer(const World& world) {
  return IsEventDay(world.Today()) || HasTvToday(world, world.PlayerUid());
}

}  // namespace grapplemont
