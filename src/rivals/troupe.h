#pragma once

#include <array>
#include <map>
#include <set>
#include <string_view>
#include <vector>

#include "records/world.h"

// The people of a rival as its stories see them, and the chance that moves these.

namespace grapplemont {

/// What lasts for the walk over one week's stories.
struct Troupe {
  std::vector<Worker*> Wrestlers;  // fit or not, the card from the top down
  std::vector<Worker*> Managers;
  std::set<int> Teamed;  // uids of who is in a team that stands
  int Teams = 0;         // that stand
};
/// Those of the rivals by the promotion's uid.
std::map<int, Troupe> TroupesOf(World& world);

/// Once in n times.
inline bool Happens(World& world, int n) {
  return world.Life().Draw(n) == 1;
}
/// One of these. Requires one.
template <class Some>
const auto& AnyOf(World& world, const Some& some) {
  return some[static_cast<std::size_t>(world.Life().Draw(static_cast<int>(some.size())) - 1)];
}

// What happens in a week, each by draws of its own; rivals/rivals.h has the day's step.

/// Teams split, and pairs that work apart are forgotten.
void PartTeams(World& world);
/// Two neighbours on the card become a team where the rival wants one.
void FormTeam(World& world, const Promotion& rival, Troupe& troupe);
/// Stables end, take somebody in, begin; their leaders fall out.
void MoveStables(World& world, const Promotion& rival, const Troupe& troupe);

}  // namespace grapplemont
