#include "booking/writers.h"

#include <algorithm>
#include <array>

namespace grapplemont {

int WritersNeeded(int shows) {
  // By shows from none to more than three.
  constexpr std::array<int, 5> kNeeded = {1, 2, 4, 6, 10};
  return kNeeded[static_cast<std::size_t>(std::clamp(shows, 0, 4))];
}

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
