#include <algorithm>
#include <map>
#include <vector>

#include "records/modWresCheck.h"
#include "rivals/ambition.h"
#include "rivals/founding.h"
#include "rivals/ownership.h"
#include "rivals/payscale.h"
#include "rivals/promotionfacts.h"
#include "rivals/purse.h"
#include "rivals/rivals.h"
#include "rivals/talenthunt.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"
#include "roster/postings.h"
#include "roster/talks.h"

// Who stays at the end of a contract, who is let go before it, and who is looked for.

namespace grapplemont {

namespace {

constexpr int kLastMonth = 1;

/// The score below which a roster's least wanted stand.
int ScoreToStay(const World& world, const std::vector<int>& numbers, Taste taste) {
  std::vector<int> scores;
  for (const int number : numbers)
    if (const Worker& worker = world.Workers()[number]; IsOnMainRoster(worker))
      scores.push_back(RosterScore(worker, taste));
  if (scores.empty()) return 0;
  const auto at = scores.size() * tuning::kNotRenewed / 100;
  std::nth_element(scores.begin(), scores.begin() + static_cast<std::ptrdiff_t>(at), scores.end());
  return scores[at];
}

/// What an employer goes by when contracts end.
struct Renewing {
  const Promotion& Employer;
  Taste Likes;
  int ScoreToStay;
  PayScale Scale;
  Purse How;
  int Spare;  // this many can go before the roster is below its band
};

/// Half of the way down from what they have to what they are worth there, or all of the way up;
/// who has to save pays nobody more than before or than that.
int NextWage(const Worker& worker, const Renewing& terms) {
  const int fair = terms.Scale.For(worker.Over);
  if (terms.How == Purse::Saving) return std::min<int>(worker.Wage, fair);
  return fair >= worker.Wage ? fair : (worker.Wage + fair + 1) / 2;
}

void Renew(Worker& worker, const Renewing& terms) {
  worker.Wage = NextWage(worker, terms);
  worker.ContractMonths = ContractMonthsAt(terms.Employer.Size) + kLastMonth;
  worker.ContractType = terms.Employer.Size < kRegional ? "Wri" : "Non";
}

/// Too popular for the class, or, where others are there to do it, not wanted enough.
bool IsLetGo(const Worker& worker, const Renewing& terms) {
  if (IsTooPopular(worker, terms.Employer.Size)) return true;
  return terms.Spare > 0 && (RosterScore(worker, terms.Likes) < terms.ScoreToStay ||
                             !IsPopularEnough(worker, terms.Employer.Size));
}

bool IsTempted(World& world, const Worker& worker, const Renewing& terms, const Suitors* suitors) {
  return suitors &&
         suitors->BestOfferFor(worker, terms.Employer) * 100 >=
             NextWage(worker, terms) * tuning::kTemptingOffer &&
         world.Life().Draw(tuning::kTemptedIn) == 1;
}

/// Whoever earns less than the going rate gets closer to it every month, from those who need not
/// save.
void RaiseWages(World& world, const Promotion& rival, const Rosters& rosters) {
  if (PurseOf(rival) == Purse::Saving) return;
  const PayScale scale(world, rival, rosters);
  for (const int number : rosters.NumbersOf(rival.Uid)) {
    Worker& worker = world.Workers()[number];
    if (!IsOnMainRoster(worker) || worker.ContractMonths == kLastMonth) continue;
    const int gap = scale.For(worker.Over) - worker.Wage;
    if (gap > 0) worker.Wage += (gap + tuning::kMonthsToRate - 1) / tuning::kMonthsToRate;
  }
}

void RenewWorkers(World& world, const Promotion& rival, const Rosters& rosters,
                  const Suitors* suitors) {
  const Taste taste = TasteOf(world, rival.Uid);
  const std::vector<int>& numbers = rosters.NumbersOf(rival.Uid);
  Renewing terms{rival,
                 taste,
                 ScoreToStay(world, numbers, taste),
                 PayScale(world, rival, rosters),
                 PurseOf(rival),
                 rosters.Of(rival.Uid) - LeastRoster(world, rival)};
  for (const int number : numbers) {
    Worker& worker = world.Workers()[number];
    if (worker.ContractMonths != kLastMonth || worker.RetiringSoon) continue;
    if (IsLetGo(worker, terms) || IsTempted(world, worker, terms, suitors))
      --terms.Spare;
    else
      Renew(worker, terms);
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

void Save(World& world, const Promotion& rival, Rosters& rosters) {
  if (rosters.Of(rival.Uid) <= LeastRoster(world, rival)) return;
  const auto weakest = FindWeakest(world, rosters, rival.Uid, TasteOf(world, rival.Uid), 1);
  if (weakest.empty() || weakest.front()->Unsackable) return;
  rosters.Move(*weakest.front(), rival.Uid, 0);
  FireFrom(world, rival, weakest);
}

bool HasTitles(const World& world, int promotionUid) {
  return std::ranges::any_of(world.Titles(),
                             [&](auto& title) { return title.Owner == promotionUid; });
}

/// Those who stand highest are asked first.
void GoAfterTheFree(World& world, Rosters& rosters) {
  for (const Promotion* promotion : PromotionsByStanding(world))
    if (IsRival(world, *promotion) && IsFreeToSpend(world, *promotion) &&
        SizeAimOf(world, *promotion, rosters) != SizeAim::StayBelow)
      GoAfterTalent(world, *promotion, tuning::kTalksAMonth, rosters);
}

}  // namespace

bool IsFreeToSpend(const World& world, const Promotion& promotion) {
  return PurseOf(promotion) != Purse::Saving || SpenderOf(world, promotion) == Spender::Reckless;
}

int LeastRoster(const World& world, const Promotion& promotion) {
  const int least = BySize(tuning::kRosters, promotion.Size).Least;
  return IsFreeToSpend(world, promotion) ? least : least * tuning::kLeastWhileSaving / 100;
}

void RenewContracts(World& world, const Promotion& promotion) {
  RenewWorkers(world, promotion, Rosters(world), nullptr);
  RenewStaff(world, promotion);
}

void RivalContractRenewals(World& world) {
  Rosters rosters(world);
  GoAfterTheFree(world, rosters);
  const Suitors suitors(world, rosters);
  for (const Promotion& promotion : world.Promotions()) {
    if (!IsRival(world, promotion)) continue;
    RenewWorkers(world, promotion, rosters, &suitors);
    RaiseWages(world, promotion, rosters);
    RenewStaff(world, promotion);
  }
}

void RosterSizeReview(World& world) {
  Rosters rosters(world);
  for (const Promotion& rival : world.Promotions()) {
    if (!IsRival(world, rival)) continue;
    const Purse purse = PurseOf(rival);
    if (!IsFreeToSpend(world, rival)) Save(world, rival, rosters);
    if (purse == Purse::Spending && SizeAimOf(world, rival, rosters) != SizeAim::StayBelow)
      GoAfterTalent(world, rival, 1, rosters);
    if (rosters.Of(rival.Uid) >= tuning::kTitleRoster && !HasTitles(world, rival.Uid))
      FoundTitles(world, rival);
  }
}

}  // namespace grapplemont
