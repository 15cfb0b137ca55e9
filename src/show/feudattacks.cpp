#include <algorithm>
#include <utility>

#include "records/segmentacts.h"
#include "show/consequences.h"
#include "show/feudtallies.h"

namespace grapplemont {

namespace {

using Pairs = std::vector<std::pair<int, int>>;

/// A pair attacks a pair man by man; one alone is attacked by both, or attacks both.
void AddPairs(Pairs& pairs, const std::vector<int>& by, const std::vector<int>& on) {
  if (by.empty() || on.empty()) return;
  for (std::size_t i = 0; i < std::max(by.size(), on.size()); ++i) {
    const std::pair pair{by[std::min(i, by.size() - 1)], on[std::min(i, on.size() - 1)]};
    // However often he hits the same one, it was one attack.
    if (std::find(pairs.begin(), pairs.end(), pair) == pairs.end()) pairs.push_back(pair);
  }
}

}  // namespace

void TallyAttacks(SegmentRun& run) {
  Pairs pairs;
  for (const Act& act : ActsOf(run.Segment))
    if (act.Is(kFeudAttack))
      AddPairs(pairs, PeopleOf(run.Segment, act.By), PeopleOf(run.Segment, act.On));
  for (const auto& [attacker, target] : pairs) TallyAttack(run, attacker, target);
}

}  // namespace grapplemont
