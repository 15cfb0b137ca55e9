#include "rivals/talenthunt.h"

#include <algorithm>
#include <set>

#include "rivals/ownership.h"
#include "rivals/purse.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"

namespace grapplemont {

namespace {

bool IsWithinReach(const World& world, const Worker& worker, int size) {
  return worker.Employer == 0 ||
         (worker.ContractMonths <= tuning::kMonthsBeforeTheEnd && IsOpenTo(world, worker, size));
}

/// What they cost: the going rate, or their last wage where that is a little more.
int PriceOf(const Worker& worker, const PayScale& scale) {
  return std::max(scale.For(worker.Over), int(worker.Wage));
}

bool IsWorthIt(const Worker& worker, const PayScale& scale) {
  const int price = PriceOf(worker, scale);
  const int most = scale.For(worker.Over) * tuning::kMostOfRate / 100;
  return price <= scale.Room() && price <= std::max(most, tuning::kLeastAsked);
}

/// The score that somebody new has to beat: that of the weakest where the roster is full.
int ScoreToBeat(World& world, const Promotion& promotion, Taste taste, const Rosters& rosters) {
  if (rosters.Of(promotion.Uid) < BySize(tuning::kRosters, promotion.Size).Most) return -1;
  const auto weakest = FindWeakest(world, promotion.Uid, taste, 1);
  return weakest.empty() ? -1 : RosterScore(*weakest.front(), taste);
}

void BringOver(World& world, const Promotion& promotion, Worker& worker, Rosters& rosters) {
  rosters.Move(worker, worker.Employer, 0);
  SignFor(world, promotion, worker);
  rosters.Move(worker, 0, promotion.Uid);
}

}  // namespace

void GoAfterTalent(World& world, const Promotion& promotion, int talks, Rosters& rosters) {
  PayScale scale(world, promotion);
  const Taste taste = TasteOf(world, promotion.Uid);
  const int toBeat = ScoreToBeat(world, promotion, taste, rosters);
  std::vector<std::pair<int, Worker*>> wanted;
  for (Worker& worker : world.Workers())
    if (worker.Employer != promotion.Uid && IsPopularEnough(worker, promotion.Size) &&
        !worker.RetiringSoon && IsWithinReach(world, worker, promotion.Size) &&
        WorkerScore(worker, taste) > toBeat)
      wanted.emplace_back(-WorkerScore(worker, taste), &worker);
  std::sort(wanted.begin(), wanted.end());
  for (auto& [score, worker] : wanted) {
    if (!IsWorthIt(*worker, scale)) continue;
    if (talks-- == 0) return;
    if (world.Life().Draw(tuning::kTalksFor1) != 1) continue;
    const int price = PriceOf(*worker, scale);
    BringOver(world, promotion, *worker, rosters);
    worker->Wage = price;
    scale.Spend(price);
  }
}

void SignProspects(World& world, const Promotion& rival, int most, Rosters& rosters) {
  const Taste taste = TasteOf(world, rival.Uid);
  const int least = BySize(tuning::kRosters, rival.Size).Least;
  for (int n = 0; n < most && rosters.Of(rival.Uid) < least; ++n) {
    Worker* best = nullptr;
    for (Worker& worker : world.Workers())
      if (worker.Employer == 0 && !worker.RetiringSoon && IsProspect(worker, rival.Size) &&
          (!best || WorkerScore(worker, taste) > WorkerScore(*best, taste)))
        best = &worker;
    if (!best) return;
    BringOver(world, rival, *best, rosters);
  }
}

Suitors::Suitors(const World& world) {
  for (const Promotion& rival : world.Promotions())
    if (IsRival(world, rival) && PurseOf(rival) != Purse::Saving)
      suitors_.push_back({&rival, PayScale(world, rival)});
}

int Suitors::BestOfferFor(const Worker& worker, const Promotion& employer) const {
  int best = 0;
  for (const auto& [rival, scale] : suitors_) {
    const int offer = scale.For(worker.Over);
    if (rival->Uid != employer.Uid && rival->Size <= employer.Size &&
        IsPopularEnough(worker, rival->Size) && offer <= scale.Room())
      best = std::max(best, offer);
  }
  return best;
}

}  // namespace grapplemont
