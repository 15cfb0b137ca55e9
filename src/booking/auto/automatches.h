#pragma once

#include <span>

#include "booking/auto/autooutcome.h"

// Who makes a good match with whom.

namespace grapplemont {

/// Team mates and those of one stable; a manager and his client.
bool InOneCorner(const World& world, const Worker& a, const Worker& b);
/// Face against Heel draws, two Heels do not.
int ContrastOf(const Worker& a, const Worker& b);
/// How good a match the two would make; far below 0 for what nobody wants to see. Draws once.
int PairScore(AutoPlan& plan, const Worker& a, const Worker& b);
/// A score below this is no match.
inline constexpr int kNoPair = -50;

/// The best opponents for `lead` among `from`, best first, four at most. Draws for each.
std::vector<const Worker*> OpponentsFor(AutoPlan& plan, const Worker& lead,
                                        const std::vector<const Worker*>& from);

/// The type of a match of styles 1 and 2: plain unless the occasion calls for more and the
/// promotion's risk and size allow it. `heat` is the feud's, 0 for none.
int TypeFor(AutoPlan& plan, int style, const std::vector<int>& people, int heat, bool endsFeud);

/// Decides and plans a match; with a plain type when nobody agrees to the one given.
bool BookMatch(AutoPlan& plan, Segment match, const Wish& wish);

/// The teams both of whose members may wrestle, the most popular first.
std::vector<const Team*> ReadyTeams(const AutoPlan& plan);
/// How good a match two teams would make; kNoPair and below for none. Draws once.
int TeamScore(AutoPlan& plan, const Team& a, const Team& b);

}  // namespace grapplemont
