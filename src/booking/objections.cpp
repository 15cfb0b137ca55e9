#include "booking/objections.h"

#include <algorithm>

#include "booking/matchsteps.h"

namespace grapplemont {

namespace {

constexpr int kCleanLossGap = 30;
constexpr int kRunInGap = 20;

}  // namespace

bool Standing::HasWoman() const {
  return std::any_of(People.begin(), People.end(), [](auto* worker) { return !worker->Gender; });
}

bool Standing::AllMen() const {
  return !People.empty() && !HasWoman();
}

bool Standing::HasCreativeControl() const {
  return std::any_of(People.begin(), People.end(),
                     [](auto* worker) { return bool(worker->CreativeControl); });
}

Standing StandingOf(const World& world, const std::vector<int>& uids) {
  Standing standing;
  for (const int uid : uids) {
    const Worker* worker = world.FindWorker(uid);
    if (!worker) continue;
    standing.People.push_back(worker);
    standing.Over += worker->Over;
    standing.Attitude += worker->Attitude;
  }
  return standing;
}

bool IsHurtByCleanLoss(const Standing& loser, const Standing& winner, int attitudeUnder) {
  return loser.Attitude < attitudeUnder && winner.Over - kCleanLossGap < loser.Over;
}

bool IsHurtByRunIn(const Standing& loser, const Standing& runIn, int attitudeUnder) {
  return loser.Attitude < attitudeUnder && runIn.Over - kRunInGap < loser.Over;
}

bool IsAbove(const Standing& who, const Standing& other, const Gap& gap) {
  return who.Over - gap.By > other.Over && who.Attitude < gap.AttitudeUnder;
}

bool IsManAgainstWoman(const Standing& who, const Standing& other) {
  return who.AllMen() && other.HasWoman();
}

Gaps TagGaps(const Segment& match) {
  return SideOf(match, match.Winner) == 2 ? Gaps(kTagGapsSecondWins) : Gaps(kTagGapsFirstWins);
}

std::vector<int> Objectors(const Segment& match) {
  std::vector<int> all;
  if (match.Winner == 0) return all;
  if (match.Style == kSpecial) {
    all = PeopleOf(match);
    std::erase(all, int(match.Winner));
  } else if (match.Style == kFourOnFour && match.MatchType == kSurvivor) {
    const auto sides = SidesOf(match);
    if (const int won = SideOf(match, match.Winner)) all = sides[won == 1 ? 1 : 0];
  } else {
    all = LosersInOrder(match);
  }
  return all;
}

}  // namespace grapplemont
