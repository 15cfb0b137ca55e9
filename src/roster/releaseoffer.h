#pragma once

#include <vector>

#include "roster/talks.h"

// Offering a worker to let him go: he takes it only where he has somewhere to go.

namespace grapplemont {

/// The smallest promotion, by its size, that this Over would still go to.
int SmallestFor(int over);
/// Whether any promotion there is, the player's included, is big enough for him.
bool HasMarket(const World& world, const Worker& worker);

struct ReleaseAnswer {
  std::vector<Remark> Remarks;
  bool Accepted = false;
};
/// Of a worker of the player's.
ReleaseAnswer AnswerToRelease(const World& world, const Worker& worker);

}  // namespace grapplemont
