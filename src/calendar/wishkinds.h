#pragma once

#include <span>

#include "records/world.h"
#include "rivals/ownership.h"

namespace grapplemont {

/// One kind of wish: who is likely to have it, when it can be wished, how much of it, and how far
/// it has come.
struct WishRule {
  WishKind Is;
  Taste Suits;  // an owner of this style wishes for it three times as readily; kAllRound nobody
  bool AtMost;  // it is granted while what has come about is no more than the target
  /// Sets target, base and what it is about, for this many months; false where it makes no sense.
  bool (*Plan)(World& world, OwnerWish& wish, int months);
  long long (*Came)(const World& world, const OwnerWish& wish);
};
const WishRule& WishRuleOf(int kind);
std::span<const WishRule> WishRules();

}  // namespace grapplemont
