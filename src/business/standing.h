#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// How a promotion has stood, and how the world around it does.

namespace grapplemont {

/// How a promotion stood on a day.
struct PastStanding {
  Day On;
  int Size;
  int Image;

  /// As StandingScore counts it: a size class is worth 100.
  int Score() const { return (kBackyard - Size) * 100 + Image; }
};

/// A standing score back in its size and image. The highest of all is a full image at the top.
PastStanding FromScore(Day on, int score);

/// The last month ends, oldest first, and how it stands today; at most `most` in all. Months from
/// before the past was kept are read from the five of the promotion's own record.
std::vector<PastStanding> StandingsOf(const World& world, const Promotion& promotion, int most);
/// Below a chart: "Mar 2026", the month that ended before the day, or "Today" for the last of them.
std::vector<std::string> CaptionsOf(const std::vector<PastStanding>& standings);

/// The world's economy in words: "Booming" to "In a slump", by the bands that crowds and sales
/// follow.
std::string_view EconomyText(int economy);

}  // namespace grapplemont
