#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <vector>

#include "records/arithmetic.h"
#include "records/world.h"

// What all that rivals do has in common.

namespace grapplemont {

/// A promotion that has not ceased to exist today.
bool IsAlive(const Promotion& promotion);
/// A living promotion that is not the player's.
bool IsRival(const World& world, const Promotion& promotion);

/// Someone whom a rival's roster counts: on the card, a manager or a non-wrestler, not in
/// development or at the camp.
bool IsOnMainRoster(const Worker& worker);

/// How many people are on the main roster of each promotion: counted once, kept up to date by
/// whoever moves them.
class Rosters {
 public:
  explicit Rosters(const World& world);
  int Of(int promotionUid) const;
  void Move(const Worker& worker, int fromUid, int toUid);

 private:
  std::map<int, int> counts_;
};

/// The workers leave their employers, and all that tied them there ends: Titles, feuds, corner,
/// office, the part of a divided roster. Whom they managed stays behind alone.
void PartWays(World& world, const std::vector<Worker*>& workers);

}  // namespace grapplemont
