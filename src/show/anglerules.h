#pragma once

#include <array>

// What a show makes of an angle: whose talk counts, whose feud it touches, who turns. The rows
// stand in words/angles.txt, and the build makes words/anglerules.h of them.

namespace grapplemont {

/// Whom an angle's numbers stand for beside its places 1 to 4.
inline constexpr int kNobody = 0;
inline constexpr int kLeader = 9;  // of the stable in Segment.Text
inline constexpr int kGuest = 10;  // no Worker, and as good as they come

/// Which feud lifts the crowd, and whether its heat follows.
enum class AngleFeud {
  None,
  Pair,       // of the first two people, and the heat follows
  Teams,      // of the first two against the other two, and the heat follows
  TeamsLift,  // the same, and the heat stays
};

/// What else counts: the production; whoever is not a diva; that there was something to see.
enum class AngleExtra { None, Video, Divas, Spectacle };

/// Somebody who does something to another; kNobody behind the last one of a list.
struct AnglePair {
  int By = kNobody, On = kNobody;
  bool OnlyPending = false;  // of a turn: only when one is pending
};

struct AngleRules {
  std::array<int, 4> Talk;  // whose mean the crowd is
  AngleFeud Feud;
  std::array<AnglePair, 4> Scores;  // in their feud
  AngleExtra Extra;
  std::array<AnglePair, 2> Turns;
};
/// nullptr for a number that is not an angle.
const AngleRules* FindAngleRules(int number);

}  // namespace grapplemont
