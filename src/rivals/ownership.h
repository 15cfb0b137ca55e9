#pragma once

#include <string>

#include "records/world.h"

// Who owns a promotion.

namespace grapplemont {

/// "XWF owner Ruth Vane", or "The XWF board" where nobody owns it.
std::string WhoDecides(const World& world, const Promotion& promotion);
/// A rival's product becomes as risky as its new owner's style has it; as it was under a style that
/// nobody knows.
void FollowOwner(Promotion& rival, const Staff& owner);

// What a promotion looks for in a worker: its owner's style.

enum Taste { kBrawlers = 1, kTechnicians, kAllRound, kHighFlyers, kWomen, kYouth };

/// The style of the promotion's owner; all-round for a promotion without one.
Taste TasteOf(const World& world, int promotionUid);
/// "Brawlers" and so on.
const char* TasteText(Taste taste);

/// What a worker is worth to a taste, the higher the better.
int WorkerScore(const Worker& worker, Taste taste);
/// The same for somebody who is on the roster already: managers by what managers do; nobody goes
/// before the unsackable.
int RosterScore(const Worker& worker, Taste taste);

}  // namespace grapplemont
