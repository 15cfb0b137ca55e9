#include "rivals/workermarket.h"

#include <vector>

#include "business/finance.h"
#include "records/houserules.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/founding.h"
#include "rivals/newtalent.h"
#include "rivals/purse.h"
#include "rivals/rivals.h"
#include "rivals/tuning.h"
#include "roster/market.h"
#include "roster/postings.h"
#include "roster/talks.h"

namespace grapplemont {

namespace {

struct MarketLimits {
  int WageAtMost;  // thousands of dollars a month
  int OverAtMost;
  int OverAbove;
};
// By size, Global to Backyard.
constexpr std::array<MarketLimits, 6> kLimits = {
    {{300, 100, 50}, {100, 100, 50}, {80, 80, 40}, {60, 60, 20}, {30, 40, 5}, {20, 20, 0}}};
constexpr std::array<int, 6> kWageRise = {10, 8, 6, 4, 0, 0};

constexpr int kMoodSwing = 20;
constexpr int kSigningsInARow = 10;
constexpr int kAboveAllScores = 102;

/// The well-behaved leave only for a promotion this many classes bigger than their own and one
/// more.
int LoyaltyInClasses(int behaviour) {
  return behaviour > 90 ? 2 : behaviour >= 60 ? 1 : 0;
}

void TellOfFiring(World& world, const Promotion& rival, const Worker& worker) {
  NoteDeed(world, kDeedFired, &rival, worker);
  if (IsShortlisted(world, worker.Uid) ||
      ShouldTell(world, world.Game().MailWorkerFire, rival.Size))
    AddNews(world, rival.Initials + " News",
            rival.Initials + (worker.ContractType == "Wri" ? " have fired " : " have released ") +
                worker.Name.Str() + "!");
}

/// Finds a candidate and signs them; false for none.
bool SignOne(World& world, const Promotion& rival, Taste taste, Rosters& rosters) {
  Worker* candidate = FindCandidate(world, rival, taste);
  if (!candidate) return false;
  rosters.Move(*candidate, candidate->Employer, 0);
  SignFor(world, rival, *candidate);
  rosters.Move(*candidate, 0, rival.Uid);
  return true;
}

}  // namespace

bool IsWithinLimits(const Worker& worker, int size) {
  return worker.Wage <= BySize(kLimits, size).WageAtMost && IsPopularEnough(worker, size);
}

bool IsPopularEnough(const Worker& worker, int size) {
  const MarketLimits& limits = BySize(kLimits, size);
  return worker.Over <= limits.OverAtMost && worker.Over > limits.OverAbove;
}

bool IsTooPopular(const Worker& worker, int size) {
  return worker.Over > BySize(kLimits, size).OverAtMost;
}

bool IsOpenTo(const World& world, const Worker& worker, int size) {
  if (worker.Employer == 0) return true;
  if (worker.ContractType == "Wri" || worker.Unsackable) return false;
  const Promotion* employer = world.FindPromotion(worker.Employer);
  return !employer || employer->Size - LoyaltyInClasses(worker.Behaviour) > size;
}

bool MayHave(const World& world, const Promotion& promotion, const Worker& worker) {
  return IsWithinLimits(worker, promotion.Size) && IsOpenTo(world, worker, promotion.Size) &&
         (!IsPlayers(world, promotion) || WhyNotInThisHouse(world, worker).empty());
}

Worker* FindCandidate(World& world, const Promotion& rival, Taste taste) {
  Worker* best = nullptr;
  int bestScore = 0;
  for (Worker& worker : world.Workers()) {
    if (worker.Employer == rival.Uid || world.RandomDraw(10) != 1 || !MayHave(world, rival, worker))
      continue;
    const int score = WorkerScore(worker, taste);
    if (best && score <= bestScore) continue;
    best = &worker;
    bestScore = score;
  }
  return best;
}

int WageOnceSigned(const Worker& worker, int size) {
  return std::min(worker.Wage + BySize(kWageRise, size), kHighestWage);
}

void SignFor(World& world, const Promotion& rival, Worker& worker) {
  const bool isFree = worker.Employer == 0;
  NoteDeed(world, isFree ? kDeedSigned : kDeedStolen, &rival, worker,
           isFree ? "" : PromotionInitials(world, worker.Employer));
  TellOf(world, world.Game().MailWorkerHire, rival,
         rival.Initials + (isFree ? " have signed " : " have stolen ") + worker.Name.Str() +
             (isFree ? "" : " from " + PromotionInitials(world, worker.Employer)) + "!");
  PartWays(world, {&worker});
  worker.Employer = rival.Uid;
  worker.Position = PlacementPosition(worker, rival.Size);
  worker.Debuted = true;
  worker.ContractMonths = ContractMonthsAt(rival.Size);
  worker.ContractType = rival.Size < kRegional ? "Wri" : "Non";
  worker.Morale += kMoodSwing;
  worker.Wage = WageOnceSigned(worker, rival.Size);
}

std::vector<Worker*> FindWeakest(World& world, const Rosters& rosters, int promotionUid,
                                 Taste taste, int most) {
  // Nobody's going changes the score of another, so one look at all ranks them. Pairs compare
  // places in the file where scores are equal.
  std::vector<std::pair<int, Worker*>> ranked;
  for (const int number : rosters.NumbersOf(promotionUid)) {
    Worker& worker = world.Workers()[number];
    if (!IsOnMainRoster(worker)) continue;
    const int score = RosterScore(worker, taste);
    if (score < kAboveAllScores) ranked.emplace_back(score, &worker);
  }
  std::sort(ranked.begin(), ranked.end());
  std::vector<Worker*> weakest;
  for (const auto& [score, worker] : ranked)
    if (std::ssize(weakest) < most) weakest.push_back(worker);
  return weakest;
}

void FireFrom(World& world, const Promotion& rival, const std::vector<Worker*>& workers) {
  for (const Worker* worker : workers) TellOfFiring(world, rival, *worker);
  PartWays(world, workers);
  for (Worker* worker : workers) {
    worker->Debuted = true;
    worker->Morale -= kMoodSwing;
  }
}

void FitRoster(World& world, const Promotion& rival, Rosters& rosters) {
  const tuning::RosterBand& band = BySize(tuning::kRosters, rival.Size);
  const int count = rosters.Of(rival.Uid);
  const int least = LeastRoster(world, rival);
  if (count >= least && count <= band.Most) return;
  const Taste taste = TasteOf(world, rival.Uid);
  const int signings = std::min(least - count, kSigningsInARow);
  for (int n = 0; n < signings; ++n)
    if (!SignOne(world, rival, taste, rosters)) break;
  if (count <= band.Most) return;
  const auto weakest = FindWeakest(world, rosters, rival.Uid, taste, count - band.Most);
  for (const Worker* worker : weakest) rosters.Move(*worker, rival.Uid, 0);
  FireFrom(world, rival, weakest);
}

void RivalWorkerHiring(World& world) {
  Rosters rosters(world);
  for (const Promotion& promotion : world.Promotions())
    if (IsRival(world, promotion)) FitRoster(world, promotion, rosters);
}

void RivalPositions(World& world) {
  for (Worker& worker : world.Workers()) {
    const Promotion* employer = world.FindPromotion(worker.Employer);
    if (employer && IsRival(world, *employer))
      worker.Position = PlacementPosition(worker, employer->Size);
  }
}

void RivalAdvertising(World& world) {
  for (Promotion& rival : world.Promotions()) {
    if (!IsRival(world, rival)) continue;
    rival.Advertising = rival.Money < 0 ? 0 : TargetAdvertising(rival.Size, rival.Image);
    const long long kept = 1LL * tuning::kFairSumsKept * FairSum(rival.Size);
    if (rival.Money <= kept) continue;
    const int campaign = static_cast<int>((rival.Money - kept) / tuning::kWeeksOfCampaigns);
    rival.Money -= campaign;
    rival.ThisMonth.AdvertisingCost += campaign;
  }
}

void DiscoverFreeAgents(World& world) {
  for (Worker& worker : world.Workers())
    if (worker.Employer == 0 && worker.Wage > tuning::kLeastAsked)
      worker.Wage =
          std::max<int>(worker.Wage - std::max(1, worker.Wage * tuning::kWaitingDiscount / 100),
                        tuning::kLeastAsked);
  FindNewTalent(world);
}

}  // namespace grapplemont
