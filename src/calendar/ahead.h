#pragma once

#include <string>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// A show day of the player's that is still to come.
struct Appointment {
  Day On;
  std::string What;  // the name of the show or Event, or what is missing
  std::string Kind;  // "Television", "Event", "No Event"
};

/// The player's show days from today on, for so many days.
std::vector<Appointment> ComingShows(const World& world, int days);

/// Whether Today is a show day of the player's, or one that asks about a missing Event.
bool NeedsThePlayer(const World& world);

}  // namespace grapplemont
