#include "rivals/ambition.h"

#include <algorithm>
#include <functional>
#include <vector>

#include "records/modVar.h"
#include "rivals/purse.h"
#include "rivals/tuning.h"

namespace grapplemont {

namespace {

/// Mean Over of the ten most popular, or of as many as there are; 0 for nobody.
int MeanOfBestTen(const World& world, int promotionUid, const Rosters& rosters) {
  std::vector<int> overs;
  for (const int number : rosters.NumbersOf(promotionUid))
    if (const Worker& worker = world.Workers()[number]; IsOnMainRoster(worker))
      overs.push_back(worker.Over);
  std::ranges::sort(overs, std::greater());
  const int count = std::min<int>(static_cast<int>(overs.size()), 10);
  int sum = 0;
  for (int i = 0; i < count; ++i) sum += overs[static_cast<std::size_t>(i)];
  return count == 0 ? 0 : sum / count;
}

/// The promotions of a class, the player's among them, but for one.
struct OthersOfClass {
  int Count = 0;
  int MeanOfBest = 0;
};
OthersOfClass OthersIn(const World& world, int size, int butUid, const Rosters& rosters) {
  OthersOfClass others;
  for (const Promotion& promotion : world.Promotions()) {
    if (!IsAlive(promotion) || promotion.Size != size || promotion.Uid == butUid) continue;
    ++others.Count;
    others.MeanOfBest += MeanOfBestTen(world, promotion.Uid, rosters);
  }
  if (others.Count > 0) others.MeanOfBest /= others.Count;
  return others;
}

}  // namespace

bool IsReadyToRise(const World& world, const Promotion& rival, const Rosters& rosters) {
  if (rival.Size == kGlobal) return true;
  const int above = rival.Size - 1;
  const OthersOfClass there = OthersIn(world, above, rival.Uid, rosters);
  if (there.Count == 0) return true;
  return there.Count < BySize(tuning::kRoomInClass, above) && rival.Money >= FairSum(above) &&
         MeanOfBestTen(world, rival.Uid, rosters) >= there.MeanOfBest - tuning::kMayBeWeaker;
}

bool IsAtHome(const World& world, const Promotion& rival, const Rosters& rosters) {
  const OthersOfClass others = OthersIn(world, rival.Size, rival.Uid, rosters);
  return others.Count == 0 || (others.Count < BySize(tuning::kRoomInClass, rival.Size) &&
                               MeanOfBestTen(world, rival.Uid, rosters) >=
                                   others.MeanOfBest - tuning::kMayBeWeakerAtHome);
}

SizeAim SizeAimOf(const World& world, const Promotion& rival, const Rosters& rosters) {
  if (rival.Image >= tuning::kNearARise && !IsReadyToRise(world, rival, rosters))
    return SizeAim::StayBelow;
  const bool isLow = rival.Image <= tuning::kNearAFall && rival.Size != kBackyard;
  return isLow && IsAtHome(world, rival, rosters) ? SizeAim::StayUp : SizeAim::None;
}

}  // namespace grapplemont
