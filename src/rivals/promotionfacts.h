#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// What anybody may know of a promotion.

namespace grapplemont {

/// Every living promotion, the highest standing first.
std::vector<const Promotion*> PromotionsByStanding(const World& world);
/// Size, image, money in words, owner, taste, Commissioner and the like, a line each.
std::string AboutPromotion(const World& world, const Promotion& promotion);

/// The people of the main roster, the card from the top down and then the others.
std::vector<const Worker*> RosterOf(const World& world, int promotionUid);
/// The staff, post by post, the most talented first.
std::vector<const Staff*> StaffOf(const World& world, int promotionUid);

/// How a promotion stood at a month end.
struct MonthEnd {
  std::string When;
  int Size = 0;
  int Image = 0;
  long long Money = 0;
};
/// Its month ends, the latest first; a promotion remembers five of them by itself.
std::vector<MonthEnd> MonthEndsOf(const World& world, const Promotion& promotion);

}  // namespace grapplemont
