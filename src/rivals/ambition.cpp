#include "rivals/ambition.h"

#include <algorithm>
#include <functional>
#include <vector>

#include "rivals/ownership.h"
#include "rivals/purse.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"
#include "roster/postings.h"

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

/// Where somebody would stand on the card there.
int PlaceAt(const Worker& worker, const Promotion& rival) {
  return PlacementPosition(worker, rival.Size);
}

/// The lowest place that counts when a show is judged: on television one more than at an Event.
int LastPlaceThatCounts(const World& world, const Promotion& rival) {
  const bool onAir =
      std::ranges::any_of(world.Shows(), [&](const Show& show) { return show.Owner == rival.Uid; });
  return onAir ? kLowerMidcard : kMidcard;
}

/// The least popular free worker whom the rival may sign for little, and who would count.
Worker* FindForCard(World& world, const Promotion& rival, int last) {
  Worker* found = nullptr;
  for (Worker& worker : world.Workers())
    if (worker.Employer == 0 && !worker.RetiringSoon && worker.Position <= kJobber &&
        worker.Wage <= BySize(tuning::kTopWage, rival.Size) / 2 && PlaceAt(worker, rival) <= last &&
        MayHave(world, rival, worker) && (!found || worker.Over < found->Over))
      found = &worker;
  return found;
}

/// Whoever would be the first to go, if they stand below the card; nullptr otherwise.
Worker* FindBelow(World& world, const Promotion& rival, int last, const Rosters& rosters) {
  const auto weakest = FindWeakest(world, rosters, rival.Uid, TasteOf(world, rival.Uid), 1);
  if (weakest.empty() || weakest.front()->Unsackable) return nullptr;
  const int place = PlaceAt(*weakest.front(), rival);
  return place > last && place <= kJobber ? weakest.front() : nullptr;
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

Aim AimOf(const World& world, const Promotion& rival, const Rosters& rosters) {
  if (rival.Image >= tuning::kNearARise && !IsReadyToRise(world, rival, rosters))
    return Aim::StayBelow;
  const bool isLow = rival.Image <= tuning::kNearAFall && rival.Size != kBackyard;
  return isLow && IsAtHome(world, rival, rosters) ? Aim::StayUp : Aim::None;
}

bool IsInTheWay(const World& world, const Promotion& rival, Aim aim, const Worker& worker) {
  if (aim == Aim::None || !IsOnRoster(worker)) return false;
  const int place = PlaceAt(worker, rival);
  return aim == Aim::StayBelow ? rival.Size <= kCult && place <= kUpperMidcard
                               : place == LastPlaceThatCounts(world, rival);
}

void MindTheCard(World& world, const Promotion& rival, Rosters& rosters) {
  if (AimOf(world, rival, rosters) != Aim::StayBelow) return;
  const int last = LastPlaceThatCounts(world, rival);
  for (int n = 0; n < tuning::kSwapsAWeek; ++n) {
    Worker *out = FindBelow(world, rival, last, rosters), *in = FindForCard(world, rival, last);
    if (!out || !in) return;
    rosters.Move(*out, rival.Uid, 0);
    FireFrom(world, rival, {out});
    SignFor(world, rival, *in);
    rosters.Move(*in, 0, rival.Uid);
  }
}

}  // namespace grapplemont
