#pragma once

#include <vector>

#include "records/world.h"
#include "rivals/payscale.h"
#include "rivals/rivals.h"

// How promotions look for people beyond the daily round of the market.

namespace grapplemont {

/// The promotion goes after the best who are free, or may be stolen and have a contract about to
/// end, as far as its wage budget bears them: this many talks at most, each of which succeeds in
/// one of two. Whoever comes gets the going rate where that is more than a signing brings them. A
/// draw of World::Life for each talk.
void GoAfterTalent(World& world, const Promotion& promotion, int talks, Rosters& rosters);

/// Who would pay whom: what a promotion other than their own offers a worker.
class Suitors {
 public:
  Suitors(const World& world, const Rosters& rosters);
  /// The best offer of a rival of no lower class, in thousands a month; 0 for none.
  int BestOfferFor(const Worker& worker, const Promotion& employer) const;

 private:
  struct Suitor {
    const Promotion* Rival;
    PayScale Scale;
  };
  std::vector<Suitor> suitors_;
};

}  // namespace grapplemont
