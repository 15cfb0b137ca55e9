#include "records/pastmatches.h"

#include <cstdint>

namespace grapplemont {

int TallyNumberOf(const World& world, int workerUid) {
  const auto keyOf = [](int promotion, int worker) {
    return (std::int64_t{promotion} << 32) + worker;
  };
  return world.TallyNumbers().Find(
      world.Tallies(), keyOf(world.PlayerUid(), workerUid),
      [&](const MatchTally& tally) { return keyOf(tally.Promotion, tally.Worker); });
}

const MatchTally* TallyOf(const World& world, int workerUid) {
  const int number = TallyNumberOf(world, workerUid);
  return number == 0 ? nullptr : &world.Tallies()[number];
}

const std::vector<int>& MatchesWith(const World& world, int workerUid) {
  return world.MatchNumbers().Find(world.Bouts(), workerUid, [](const HeldMatch& bout, auto add) {
    for (const Word& uid : bout.Worker)
      if (uid != 0) add(uid);
  });
}

}  // namespace grapplemont
