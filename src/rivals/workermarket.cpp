#include "rivals/workermarket.h"

#include <map>
#include <vector>

#include "business/finance.h"
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

/// The well-behaved leave only for a promotion so many classes bigger than their own and one more.
int LoyaltyInClasses(int behaviour) {
  return behaviour > 90 ? 2 : behaviour >= 60 ? 1 : 0;
}

void TellOfFiring(World& world, const Promotion& rival, const Worker& worker) {
  NoteDeed(world, kDeedFired, &rival, worker.Name);
  if (IsShortlisted(world, worker.Uid) ||
      ShouldTell(world, world.Game().MailWorkerFire, rival.Size))
    AddNews(world, rival.Initials + " News",
            rival.Initials + (worker.ContractType == "Wri" ? " have fired " : " have released ") +
                worker.Name.Str() + "!");
}

/// Finds a candidate and signs him; false for none.
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
  const MarketLimits& limits = BySize(kLimits, size);
  return worker.Wage <= limits.WageAtMost && worker.Over <= limits.OverAtMost &&
         worker.Over > limits.OverAbove;
}

bool IsOpenTo(const World& world, const Worker& worker, int size) {
  if (worker.Employer == 0) return true;
  if (worker.ContractType == "Wri" || worker.Unsackable) return false;
  const Promotion* employer = world.FindPromotion(worker.Employer);
  return !employer || employer->Size - LoyaltyInClasses(worker.Behaviour) > size;
}

Worker* FindCandidate(World& world, const Promotion& rival, Taste taste) {
  Worker* best = nullptr;
  int bestScore = 0;
  for (Worker& worker : world.Workers()) {
    if (worker.Employer == rival.Uid || world.RandomDraw(10) != 1 ||
        !IsWithinLimits(worker, rival.Size) || !IsOpenTo(world, worker, rival.Size))
      continue;
    const int score = WorkerScore(worker, taste);
    if (best && score <= bestScore) continue;
    best = &worker;
    bestScore = score;
  }
  return best;
}

void SignFor(World& world, const Promotion& rival, Worker& worker) {
  const bool isFree = worker.Employer == 0;
  NoteDeed(world, isFree ? kDeedSigned : kDeedStolen, &rival, worker.Name,
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
  worker.Wage = std::min(worker.Wage + BySize(kWageRise, rival.Size), kHighestWage);
}

std::vector<Worker*> FindWeakest(World& world, int promotionUid, Taste taste, int most) {
  // Nobody's going changes the score of another, so one look at all ranks them. Pairs compare
  // places in the file where scores are equal.
  std::vector<std::pair<int, Worker*>> ranked;
  for (Worker& worker : world.Workers()) {
    if (worker.Employer != promotionUid || !IsOnMainRoster(worker)) continue;
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
  if (count >= band.Least && count <= band.Most) return;
  const Taste taste = TasteOf(world, rival.Uid);
  const int signings = std::min(band.Least - count, kSigningsInARow);
  for (int n = 0; n < signings; ++n)
    if (!SignOne(world, rival, taste, rosters)) break;
  if (count <= band.Most) return;
  const auto weakest = FindWeakest(world, rival.Uid, taste, count - band.Most);
  for (const Worker* worker : weakest) rosters.Move(*worker, rival.Uid, 0);
  FireFrom(world, rival, weakest);
}

namespace {

constexpr int kLastMonth = 1;

/// Thousands of dollars a month that a promotion of this size thinks fair for this Over.
int GoingRate(int size, int over) {
  return std::max(1, BySize(tuning::kTopWage, size) * over * over / 10000);
}

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
  return std::ranges::any_of(world.Titles(),
                             [&](auto& title) { return title.Owner == promotionUid; });
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

void DiscoverFreeAgents(World& world) {
  for (Worker& worker : world.Workers())
    if (worker.Employer == 0 && worker.Wage > tuning::kLeastAsked)
      worker.Wage =
          std::max<int>(worker.Wage - std::max(1, worker.Wage * tuning::kWaitingDiscount / 100),
                        tuning::kLeastAsked);
  FindNewTalent(world);
}

}  // namespace grapplemont
