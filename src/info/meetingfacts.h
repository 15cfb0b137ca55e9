#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "records/world.h"

// What the subjects of the meeting count with.

namespace grapplemont {

/// The player's of whom the test holds, the most popular first.
template <class Test>
std::vector<const Worker*> Ours(const World& world, Test test) {
  std::vector<const Worker*> people;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == world.PlayerUid() && test(worker)) people.push_back(&worker);
  std::stable_sort(people.begin(), people.end(),
                   [](auto* a, auto* b) { return a->Over > b->Over; });
  return people;
}

template <class Count>
std::string Number(Count count) {
  return std::to_string(count);
}

/// "1 month", "3 months".
inline std::string Counted(long long count, const std::string& what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

/// How often in a row the standing fell at the last month ends.
int FallsInARow(const Promotion& promotion);
/// The least rating of a television show that lifts the image of a promotion of this size.
int RatingThatLifts(int size);

}  // namespace grapplemont
