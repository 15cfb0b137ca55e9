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
int MeanOfBestTen(const World& world, int promotionUid) {
  std::vector<int> overs;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == promotionUid && IsOnMainRoster(worker)) overs.push_back(worker.Over);
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
OthersOfClass OthersIn(const World& world, int size, int butUid) {
  OthersOfClass others;
  for (const Promotion& promotion : world.Promotions()) {
    if (!IsAlive(promotion) || promotion.Size != size || promotion.Uid == butUid) continue;
    ++others.Count;
    others.MeanOfBest += MeanOfBestTen(world, promotion.Uid);
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

using Places = std::function<bool(int place)>;

/// The least popular of the roster in such places who may be let go.
Worker* FindToReplace(World& world, const Promotion& rival, const Places& places) {
  Worker* found = nullptr;
  for (Worker& worker : world.Workers())
    if (worker.Employer == rival.Uid && IsOnRoster(worker) && !worker.Unsackable &&
        places(PlaceAt(worker, rival)) && (!found || worker.Over < found->Over))
      found = &worker;
  return found;
}

/// The least popular free worker for such places.
Worker* FindForPlace(World& world, const Promotion& rival, const Places& places) {
  Worker* found = nullptr;
  for (Worker& worker : world.Workers())
    if (worker.Employer == 0 && !worker.RetiringSoon && worker.Position <= kJobber &&
        worker.Wage <= BySize(tuning::kTopWage, rival.Size) / 2 && places(PlaceAt(worker, rival)) &&
        (!found || worker.Over < found->Over))
      found = &worker;
  return found;
}

Worker* FindStar(World& world, const Promotion& rival) {
  Worker* found = nullptr;
  for (Worker& worker : world.Workers())
    if (worker.Employer == rival.Uid && IsOnRoster(worker) && !worker.Unsackable &&
        (!found || worker.Over > found->Over))
      found = &worker;
  return found;
}

int CountIn(const World& world, const Promotion& rival, const Places& places) {
  return static_cast<int>(std::ranges::count_if(world.Workers(), [&](const Worker& worker) {
    return worker.Employer == rival.Uid && IsOnRoster(worker) && places(PlaceAt(worker, rival));
  }));
}

/// Somebody goes, somebody comes; false, and nobody does, where one of them is missing.
bool Replace(World& world, const Promotion& rival, Worker* out, Worker* in, Rosters& rosters) {
  if (!in || !out) return false;
  rosters.Move(*out, rival.Uid, 0);
  FireFrom(world, rival, {out});
  SignFor(world, rival, *in);
  rosters.Move(*in, 0, rival.Uid);
  return true;
}

/// From places below the card to the lowest on it; where nobody is left for that, the most popular
/// of the classes that live by television go instead.
void LowerTheCard(World& world, const Promotion& rival, const Places& last, const Places& below,
                  Rosters& rosters) {
  for (int n = 0; n < tuning::kSwapsAWeek; ++n) {
    Worker* in = FindForPlace(world, rival, last);
    if (Replace(world, rival, FindToReplace(world, rival, below), in, rosters)) continue;
    const int stars = rival.Size <= kCult ? tuning::kStarsAWeek : 0;
    for (int star = 0; star < stars; ++star)
      Replace(world, rival, FindStar(world, rival),
              in ? FindForPlace(world, rival, last) : FindForPlace(world, rival, below), rosters);
    return;
  }
}

}  // namespace

bool IsReadyToRise(const World& world, const Promotion& rival) {
  if (rival.Size == kGlobal) return true;
  const int above = rival.Size - 1;
  const OthersOfClass there = OthersIn(world, above, rival.Uid);
  if (there.Count == 0) return true;
  return there.Count < BySize(tuning::kRoomInClass, above) && rival.Money >= FairSum(above) &&
         MeanOfBestTen(world, rival.Uid) >= there.MeanOfBest - tuning::kMayBeWeaker;
}

bool IsAtHome(const World& world, const Promotion& rival) {
  const OthersOfClass others = OthersIn(world, rival.Size, rival.Uid);
  return others.Count == 0 ||
         (others.Count < BySize(tuning::kRoomInClass, rival.Size) &&
          MeanOfBestTen(world, rival.Uid) >= others.MeanOfBest - tuning::kMayBeWeakerAtHome);
}

void MindTheCard(World& world, const Promotion& rival, Rosters& rosters) {
  const int last = LastPlaceThatCounts(world, rival);
  const Places atTheEnd = [=](int place) { return place == last; };
  const Places below = [=](int place) { return place > last && place <= kJobber; };
  if (rival.Image >= tuning::kNearARise && !IsReadyToRise(world, rival))
    return LowerTheCard(world, rival, atTheEnd, below, rosters);
  if (rival.Image > tuning::kNearAFall || rival.Size == kBackyard || !IsAtHome(world, rival))
    return;
  const int counting = CountIn(world, rival, [=](int place) { return place <= last; });
  for (int n = 0; n < std::min(tuning::kSwapsAWeek, counting - tuning::kLeastCard); ++n)
    Replace(world, rival, FindToReplace(world, rival, atTheEnd), FindForPlace(world, rival, below),
            rosters);
}

}  // namespace grapplemont
