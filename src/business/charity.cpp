#include "business/charity.h"

namespace grapplemont {

namespace {
constexpr int kThousand = 1000;
}  // namespace

bool CanDonate(const World& world, int thousands) {
  return thousands * kThousand <= world.Player().Money;
}

void Donate(World& world, int thousands) {
  world.Game().Reputation += thousands;
  world.Player().Money -= thousands * kThousand;
}

}  // namespace grapplemont
