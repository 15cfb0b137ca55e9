#pragma once

#include "records/world.h"
#include "rivals/ownership.h"
#include "rivals/rivals.h"

// Whom a rival may sign, whom it would fire, and how either is done.

namespace grapplemont {

/// The limits of a rival's size: what they ask for, how popular they are. Nobody is signed outside
/// them, in whatever way.
bool IsWithinLimits(const Worker& worker, int size);
/// The same whatever they ask for.
bool IsPopularEnough(const Worker& worker, int size);
bool IsTooPopular(const Worker& worker, int size);
/// Whether they would leave their employer for a promotion of this size; somebody free always
/// would.
bool IsOpenTo(const World& world, const Worker& worker, int size);
/// Whether the promotion may sign them: within its limits, open to it, and, for the player's, not
/// against the rules of the house.
bool MayHave(const World& world, const Promotion& promotion, const Worker& worker);

/// A walk over everybody who is not with the rival, a draw of ten each: the best of those looked at
/// that may be had; nullptr for none.
Worker* FindCandidate(World& world, const Promotion& rival, Taste taste);
/// What they earn once they have been signed, in thousands a month.
int WageOnceSigned(const Worker& worker, int size);
/// They come to the rival, from the market or from whoever employs them, and the world hears of it.
void SignFor(World& world, const Promotion& rival, Worker& worker);

/// Those of the main roster who would go first, `most` at most, in the order in which they go.
std::vector<Worker*> FindWeakest(World& world, const Rosters& rosters, int promotionUid,
                                 Taste taste, int most);
/// They go to the market, and the world hears of it.
void FireFrom(World& world, const Promotion& rival, const std::vector<Worker*>& workers);

/// Signs or fires until the main roster is within its band: at most ten signings, and none after
/// one that fails.
void FitRoster(World& world, const Promotion& rival, Rosters& rosters);

/// Whether it may go after people: it need not save, or its owner does not care.
bool IsFreeToSpend(const World& world, const Promotion& promotion);
/// How many it wants on its main roster at least: fewer while it has to save.
int LeastRoster(const World& world, const Promotion& promotion);

/// Contracts of the promotion's that have one month left are renewed at the going rate or left to
/// run out.
void RenewContracts(World& world, const Promotion& promotion);

}  // namespace grapplemont
