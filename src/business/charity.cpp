#include "business/charity.h"

#include <algorithm>

namespace grapplemont {

namespace {
constexpr int kThousand = 1000;
constexpr int kBestReputation = 100;
}  // namespace

bool CanDonate(const World& world, int thousands) {
  return thousands * kThousand <= world.Player().Money;
}

void Donate(World& world, int thousands) {
  Word& reputation = world.Game().Reputation;
  reputation = std::min(reputation + thousands, kBestReputation);
  world.Player().Money -= thousands * kThousand;
}

}  // namespace grapplemont
