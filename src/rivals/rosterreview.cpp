#include "business/monthlymoney.h"
#include "rivals/founding.h"
#include "rivals/purse.h"
#include "rivals/rivalsteps.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"

namespace grapplemont {

namespace {

/// How much more he costs than his popularity is worth there.
int Overpaid(const Worker& worker, int size) {
  return worker.Wage - GoingRate(size, worker.Over);
}

Worker* FindOverpaid(World& world, const Promotion& rival) {
  Worker* found = nullptr;
  for (Worker& worker : world.Workers()) {
    if (worker.Employer != rival.Uid || !IsOnMainRoster(worker) || worker.Unsackable) continue;
    if (!found || Overpaid(worker, rival.Size) > Overpaid(*found, rival.Size)) found = &worker;
  }
  return found;
}

void Save(World& world, const Promotion& rival, Rosters& rosters) {
  if (rosters.Of(rival.Uid) <= BySize(tuning::kRosters, rival.Size).Least) return;
  Worker* worker = FindOverpaid(world, rival);
  if (!worker) return;
  rosters.Move(*worker, rival.Uid, 0);
  FireFrom(world, rival, {worker});
}

void Spend(World& world, const Promotion& rival, Rosters& rosters) {
  if (rosters.Of(rival.Uid) < BySize(tuning::kRosters, rival.Size).Most)
    SignOne(world, rival, TasteOf(world, rival.Uid), rosters);
}

bool HasTitles(const World& world, int promotionUid) {
  return std::any_of(world.Titles().begin(), world.Titles().end(),
                     [&](auto& title) { return title.Owner == promotionUid; });
}

}  // namespace

void RosterSizeReview(World& world) {
  Rosters rosters(world);
  for (const Promotion& rival : world.Promotions()) {
    if (!IsRival(world, rival)) continue;
    const Purse purse = PurseOf(rival);
    if (purse == Purse::Saving) Save(world, rival, rosters);
    if (purse == Purse::Spending) Spend(world, rival, rosters);
    if (rosters.Of(rival.Uid) >= tuning::kTitleRoster && !HasTitles(world, rival.Uid))
      FoundTitles(world, rival);
  }
}

void RivalAdvertising(World& world) {
  for (Promotion& rival : world.Promotions()) {
    if (!IsRival(world, rival)) continue;
    const int target = TargetAdvertising(rival.Size, rival.Image);
    rival.Advertising = rival.Money < 0 ? target / 2 : target;
  }
}

}  // namespace grapplemont
