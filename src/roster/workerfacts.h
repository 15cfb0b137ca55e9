#pragma once

#include <string>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// Part of a worker's page.
struct FactGroup {
  std::string Heading;
  std::vector<std::string> Lines;
};

/// All that a player may know of somebody, in words; groups without a line are left out. How far
/// they can rise is known only of the player's people in the territory or the camp, by whoever
/// teaches them there.
std::vector<FactGroup> WorkerFacts(const World& world, const Worker& worker);

/// "From Halifax in Canada.": the same in every game, and kept in no file.
std::string HomeLine(const Worker& worker);

/// The feuds that they are in, whatever side, a sentence each.
std::vector<std::string> FeudsOf(const World& world, const Worker& worker);

// What is known of a member of staff, in words.

/// "Announcer" and so on; "Unknown" for a code without a text.
std::string_view PostText(int post);
/// The first group is the person, with the name for heading.
std::vector<FactGroup> StaffFacts(const World& world, const Staff& staff);

}  // namespace grapplemont
