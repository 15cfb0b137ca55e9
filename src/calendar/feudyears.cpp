#include "calendar/feudyears.h"

#include <algorithm>

#include "records/modWresCheck.h"
#include "storylines/lineages.h"

namespace grapplemont {

namespace {

/// Pairs stand in a feud one after the other; a place is empty where its man has left the world.
bool IsBetweenPairs(const std::array<int, 4>& parties) {
  return parties[2] != 0 || parties[3] != 0;
}

bool HasTwoSides(const std::array<int, 4>& parties) {
  const bool first = parties[0] != 0, second = parties[1] != 0;
  return IsBetweenPairs(parties) ? first || second : first && second;
}

}  // namespace

std::vector<FeudYear> FeudYears(const World& world, Day from, Day until) {
  std::vector<FeudYear> feuds;
  for (const HeldMatch& bout : world.Bouts()) {
    const std::array<int, 4> parties = {bout.Feud[0], bout.Feud[1], bout.Feud[2], bout.Feud[3]};
    const Day on = bout.On;
    if (on < from || on >= until || !HasTwoSides(parties)) continue;
    auto feud = std::ranges::find_if(
        feuds, [&](const FeudYear& known) { return known.Parties == parties; });
    if (feud == feuds.end()) feud = feuds.insert(feuds.end(), {parties, {}, 0});
    feud->Ratings.push_back(bout.Rating);
  }
  for (FeudYear& feud : feuds) {
    std::sort(feud.Ratings.rbegin(), feud.Ratings.rend());
    for (std::size_t i = 0; i < feud.Ratings.size() && i < kFewestFeudMatches; ++i)
      feud.Best += feud.Ratings[i];
  }
  return feuds;
}

std::string FeudName(const World& world, const FeudYear& feud) {
  const std::array<int, 4>& parties = feud.Parties;
  if (!IsBetweenPairs(parties))
    return WorkerName(world, parties[0]) + " vs " + WorkerName(world, parties[1]);
  const auto pair = [&](int one, int two) {
    if (one == 0 || two == 0) return WorkerName(world, one == 0 ? two : one);
    const std::string team = TeamNameOf(world, one, two);
    return team != "None" ? team
                          : WorkerShortName(world, one) + " \\ " + WorkerShortName(world, two);
  };
  return pair(parties[0], parties[1]) + " vs " + pair(parties[2], parties[3]);
}

}  // namespace grapplemont
