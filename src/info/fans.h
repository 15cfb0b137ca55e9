#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// What the fans write about the last shows: the player's, and those of the biggest rivals.

namespace grapplemont {

/// A show as its crowd saw it.
struct ShowSeen {
  Day On;
  int Promotion = 0;  // uid
  std::string House, Show;
  bool IsPlayers = false, CalledOff = false, IsEvent = false;
  bool SameClass = true;  // its promotion has not risen or fallen since
  int Rating = 0;         // the player's rating; a rival's draw
  int Viewers = 0;        // hundredths
  int People = 0;
  /// The matches that are kept of a show of the player's.
  struct Row {
    std::string What;
    int Rating = 0;
  };
  std::vector<Row> Rows;
  std::string Star;  // the most popular of those who were there; empty where nobody is known
};
/// The player's last show and Event, then the last shows of the three biggest rivals that have held
/// one lately; each within the last two months.
std::vector<ShowSeen> ShowsSeen(const World& world);

struct FanPost {
  std::string Handle, Words;
};
/// A show and the posts about it, the general ones first.
struct FanThread {
  ShowSeen About;
  std::vector<FanPost> Posts;
};
/// About all shows seen. No handle and no line comes twice before all have had their turn, and the
/// same shows are always met with the same words.
std::vector<FanThread> FanPage(const World& world);

}  // namespace grapplemont
