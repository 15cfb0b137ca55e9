#pragma once

#include <array>
#include <map>

#include "records/world.h"

// Whom rivals put in their posts.

namespace grapplemont {

/// How many each promotion has in each post.
class Posts {
 public:
  explicit Posts(const World& world);
  int Of(int promotionUid, int position) const;

 private:
  std::map<int, std::array<int, kTrainer + 1>> counts_;
};

/// Fills every post that lacks people until a try fails, and fires one for each that it has too
/// many. Draws of five for everybody on the market in the post, again at each try.
void FitPosts(World& world, const Promotion& rival, const Posts& posts);

/// The free one with the highest talent among those looked at whom a promotion of this size takes.
Staff* FindStaffFor(World& world, int position, int size);
void SignStaff(World& world, const Promotion& rival, Staff& staff);
/// The least talented in the post; nobody goes before the unsackable.
Staff* FindWeakestStaff(World& world, int promotionUid, int position);
void FireStaff(World& world, const Promotion& rival, Staff& staff);

}  // namespace grapplemont
