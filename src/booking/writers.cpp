#include "booking/writers.h"

#include <algorithm>

namespace grapplemont {

int PlayerWriters(const World& world) {
  const int player = world.PlayerUid();
  return static_cast<int>(std::count_if(
      world.AllStaff().begin(), world.AllStaff().end(),
      [&](const Staff& staff) { return staff.Employer == player && staff.Position == kWriter; }));
}

int PlayerShows(const World& world) {
  const int player = world.PlayerUid();
  return static_cast<int>(std::count_if(world.Shows().begin(), world.Shows().end(),
                                        [&](const Show& show) { return show.Owner == player; }));
}

bool EnoughWriters(const World& world, bool isEvent) {
  return PlayerWriters(world) >= WritersNeeded(isEvent ? 0 : PlayerShows(world));
}

}  // namespace grapplemont
