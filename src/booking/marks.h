#pragma once

#include <map>
#include <string>
#include <vector>

#include "records/world.h"

// What a booker has to know of somebody beside their numbers.

namespace grapplemont {

/// So many matches won in a row are a streak.
inline constexpr int kStreak = 3;

/// The marks of everybody whom a Segment may be booked with: "Champion", "Feud 71", "Team",
/// "Row 8", "Hot", "Tired", "Debut", in this order. Holds on to the world.
class RosterMarks {
 public:
  /// `row` is the record that is being booked: who stands in it is not marked for it. 0 for none.
  RosterMarks(const World& world, int row);
  std::vector<std::string> Of(const Worker& worker) const;

 private:
  void CountStreaks();

  const World& world_;
  int row_;
  std::map<int, int> streaks_;  // by uid: matches won since the last that was not
};

}  // namespace grapplemont
