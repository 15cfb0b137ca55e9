#include "rivals/talenthunt.h"

#include <algorithm>

#include "rivals/ownership.h"
#include "rivals/purse.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"

namespace grapplemont {

namespace {

bool IsWithinReach(const World& world, const Promotion& promotion, const Worker& worker) {
  return (worker.Employer == 0 || worker.ContractMonths <= tuning::kMonthsBeforeTheEnd) &&
         !worker.RetiringSoon && MayHave(world, promotion, worker);
}

/// What they cost: the going rate, or what a signing makes of their last wage where that is more.
int PriceOf(const Worker& worker, const PayScale& scale, int size) {
  return std::max(scale.For(worker.Over), WageOnceSigned(worker, size));
}

bool IsWorthIt(const Worker& worker, const PayScale& scale, int size) {
  const int price = PriceOf(worker, scale, size);
  const int most = scale.For(worker.Over) * tuning::kMostOfRate / 100;
  return price <= scale.Room() && price <= std::max(most, tuning::kLeastAsked);
}

/// The score that somebody new has to beat: that of the weakest where the roster is full.
int ScoreToBeat(World& world, const Promotion& promotion, Taste taste, const Rosters& rosters) {
  if (rosters.Of(promotion.Uid) < BySize(tuning::kRosters, promotion.Size).Most) return -1;
  const auto weakest = FindWeakest(world, rosters, promotion.Uid, taste, 1);
  return weakest.empty() ? -1 : RosterScore(*weakest.front(), taste);
}

void BringOver(World& world, const Promotion& promotion, Worker& worker, Rosters& rosters) {
  rosters.Move(worker, worker.Employer, 0);
  SignFor(world, promotion, worker);
  rosters.Move(worker, 0, promotion.Uid);
}

}  // namespace

void GoAfterTalent(World& world, const Promotion& promotion, int talks, Rosters& rosters) {
  PayScale scale(world, promotion, rosters);
  const Taste taste = TasteOf(world, promotion.Uid);
  const int toBeat = ScoreToBeat(world, promotion, taste, rosters);
  std::vector<std::pair<int, Worker*>> wanted;
  for (Worker& worker : world.Workers())
    if (worker.Employer != promotion.Uid && IsWithinReach(world, promotion, worker) &&
        WorkerScore(worker, taste) > toBeat)
      wanted.emplace_back(-WorkerScore(worker, taste), &worker);
  std::sort(wanted.begin(), wanted.end());
  for (auto& [score, worker] : wanted) {
    if (!IsWorthIt(*worker, scale, promotion.Size)) continue;
    if (talks-- == 0) return;
    if (world.Life().Draw(tuning::kTalksFor1) != 1) continue;
    const int price = PriceOf(*worker, scale, promotion.Size);
    BringOver(world, promotion, *worker, rosters);
    worker->Wage = price;
    scale.Spend(price);
  }
}

Suitors::Suitors(const World& world, const Rosters& rosters) {
  for (const Promotion& rival : world.Promotions())
    if (IsRival(world, rival) && PurseOf(rival) != Purse::Saving)
      suitors_.push_back({&rival, PayScale(world, rival, rosters)});
}

int Suitors::BestOfferFor(const Worker& worker, const Promotion& employer) const {
  int best = 0;
  for (const auto& [rival, scale] : suitors_) {
    const int offer = scale.For(worker.Over);
    if (rival->Uid != employer.Uid && rival->Size <= employer.Size &&
        IsWithinLimits(worker, rival->Size) && offer <= scale.Room())
      best = std::max(best, offer);
  }
  return best;
}

}  // namespace grapplemont
