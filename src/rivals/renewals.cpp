#include "rivals/renewals.h"

#include <map>
#include <vector>

#include "records/modVar.h"
#include "rivals/purse.h"
#include "rivals/rivalsteps.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"
#include "roster/placement.h"
#include "roster/talks.h"

namespace grapplemont {

namespace {

constexpr int kLastMonth = 1;

/// The score below which a roster's least wanted stand.
int ScoreToStay(const World& world, const Promotion& rival, Taste taste) {
  std::vector<int> scores;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == rival.Uid && IsOnMainRoster(worker))
      scores.push_back(RosterScore(worker, taste));
  if (scores.empty()) return 0;
  const auto at = scores.size() * tuning::kNotRenewed / 100;
  std::nth_element(scores.begin(), scores.begin() + static_cast<std::ptrdiff_t>(at), scores.end());
  return scores[at];
}

/// Half of the way from what he has to what he is worth there; nobody who has to save pays more
/// than before.
int NextWage(const Worker& worker, const Promotion& rival) {
  const int fair = GoingRate(rival.Size, worker.Over);
  const int met = std::min((worker.Wage + fair + 1) / 2, kHighestWage);
  return PurseOf(rival) == Purse::Saving ? std::min<int>(met, worker.Wage) : met;
}

bool IsOutgrown(const Worker& worker, int size) {
  Worker asWanted = worker;
  asWanted.Wage = 0;
  return !IsWithinLimits(asWanted, size);
}

void Renew(Worker& worker, const Promotion& rival) {
  worker.Wage = NextWage(worker, rival);
  worker.ContractMonths = ContractMonthsAt(rival.Size) + kLastMonth;
  worker.ContractType = rival.Size < kRegional ? "Wri" : "Non";
}

void RenewWorkers(World& world, const Promotion& rival) {
  const Taste taste = TasteOf(world, rival.Uid);
  const int scoreToStay = ScoreToStay(world, rival, taste);
  for (Worker& worker : world.Workers()) {
    if (worker.Employer != rival.Uid || worker.ContractMonths != kLastMonth || worker.RetiringSoon)
      continue;
    if (RosterScore(worker, taste) >= scoreToStay && !IsOutgrown(worker, rival.Size))
      Renew(worker, rival);
  }
}

/// The highest talent in each post of the promotion.
std::map<int, int> BestInPosts(const World& world, int promotionUid) {
  std::map<int, int> best;
  for (const Staff& staff : world.AllStaff())
    if (staff.Employer == promotionUid)
      best[staff.Position] = std::max<int>(best[staff.Position], staff.Talent);
  return best;
}

void RenewStaff(World& world, const Promotion& rival) {
  std::map<int, int> best = BestInPosts(world, rival.Uid);
  for (Staff& staff : world.AllStaff()) {
    if (staff.Employer != rival.Uid || staff.ContractMonths != kLastMonth) continue;
    if (staff.Talent * 100 >= best[staff.Position] * tuning::kStaffNotRenewed)
      staff.ContractMonths = ContractMonthsAt(rival.Size) + kLastMonth;
  }
}

}  // namespace

void RenewContracts(World& world, const Promotion& promotion) {
  RenewWorkers(world, promotion);
  RenewStaff(world, promotion);
}

void RivalContractRenewals(World& world) {
  for (const Promotion& promotion : world.Promotions())
    if (IsRival(world, promotion)) RenewContracts(world, promotion);
}

}  // namespace grapplemont
