#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// How many hands the posts of a promotion need.

namespace grapplemont {

/// To use angles, with this many television shows.
int WritersNeeded(int shows);
/// For everybody to recover at full speed, with this many workers.
int MedicsNeeded(int workers);
/// To keep so many wrestlers out of trouble.
int AgentsNeeded(int wrestlers);

/// How a post of the player's promotion is filled.
struct PostCount {
  int Post;  // a code of Staff.Position
  int Have = 0;
  int Need = 0;  // 0 also where nobody counts them
};
/// Every post but the Owner's, in the order of their codes.
std::vector<PostCount> PostCounts(const World& world);
/// "Announcers 1 (needs 1), Referees 2, ..." and what to do about posts that lack hands.
std::string PostLine(const std::vector<PostCount>& posts);
std::string PostAdvice(const std::vector<PostCount>& posts);

}  // namespace grapplemont
