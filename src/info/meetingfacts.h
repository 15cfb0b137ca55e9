#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "info/infowords.h"
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

/// How often in a row the standing fell at the last month ends.
int FallsInARow(const Promotion& promotion);

}  // namespace grapplemont
