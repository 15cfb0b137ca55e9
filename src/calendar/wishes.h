#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// What the owner of the player's promotion wishes of each year: three goals, by taste and standing.
// A promotion without an owner wishes for nothing. All chance is the world's own (World::Life).

namespace grapplemont {

/// "Put the women's Title Harbor Crown at stake at 6 Events".
std::string WishText(const OwnerWish& wish);
/// How much of it has come about; for one that has been judged, what it came to then.
long long CameOf(const World& world, const OwnerWish& wish);
/// Whether that is enough.
bool IsGranted(const World& world, const OwnerWish& wish);
/// "3 of 6", "$120,000 of $200,000", "54, at most 45".
std::string WishProgress(const World& world, const OwnerWish& wish);

/// "Ruth Vane trusts you: 65%." Who owns the promotion trusts the player as far as their loyalty
/// goes.
std::string TrustLine(const World& world);

/// The player's wishes that are open, in the order in which they were made.
std::vector<OwnerWish*> OpenWishes(World& world);
std::vector<const OwnerWish*> OpenWishes(const World& world);

/// What the owner of a job that has been left wished for is dropped.
void DropFormerWishes(World& world);
/// The last step of the day. Wishes of a job that was left are dropped; slips of the show that has
/// just been held are counted; on 31 December the year is judged by mail: each wish fulfilled lifts
/// reputation and the owner's loyalty, each missed costs some, and a year of three brings a job
/// offer in one of two. Whoever has no wish open tells three, with four months of the year left.
void OwnersWishes(World& world);

}  // namespace grapplemont
