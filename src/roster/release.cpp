#include "roster/release.h"

#include <algorithm>
#include <array>

#include "records/arithmetic.h"
#include "records/modVar.h"
#include "records/severing.h"
#include "roster/placement.h"

namespace grapplemont {

namespace {

/// What a promotion of a size pays at most, and whom it pays for.
struct Market {
  int WageLimit;  // thousands of dollars a month
  int OverMustExceed;
  int SignedWageCap;  // a thousand times the limit: it never bites, and wages stay as they were
};
// By size, Global to Backyard.
constexpr std::array<Market, 6> kMarket = {{
    {150, 80, 150000},
    {100, 65, 100000},
    {70, 50, 70000},
    {40, 40, 40000},
    {20, 20, 20000},
    {10, 10, 10000},
}};

bool CanPay(const Promotion& promotion, const Worker& worker) {
  const Market& market = BySize(kMarket, promotion.Size);
  const int asking = static_cast<int>(worker.Wage * 8LL / 10);
  return asking <= market.WageLimit && worker.Over > market.OverMustExceed;
}

/// The best bidder so far is beaten by a score above its plain image, if the new one is no smaller.
Promotion* BestBidder(World& world, const Worker& worker) {
  const int smallest = worker.Over > 20 ? kSmall : kBackyard;
  Promotion* best = nullptr;
  for (Promotion& promotion : world.Promotions()) {
    if (promotion.Uid == world.PlayerUid() || promotion.Name == kToBeDeleted ||
        promotion.Size > smallest || !CanPay(promotion, worker))
      continue;
    const int score = promotion.Image + world.RandomDraw(80);
    if (score > (best ? int(best->Image) : 0) && promotion.Size <= (best ? int(best->Size) : 7))
      best = &promotion;
  }
  return best;
}

void SignWith(World& world, Worker& worker, const Promotion& rival) {
  if (ShouldTell(world, world.Game().MailWorkerHire, rival.Size))
    AddNews(world, rival.Initials + " News",
            worker.Name + " has signed for " + rival.Initials.Str() + "!");
  NoteDeed(world, kDeedSigned, &rival, worker.Name);
  worker.Over += world.RandomDraw(3);
  worker.Employer = rival.Uid;
  worker.Position = PlacementPosition(worker, rival.Size);
  worker.ContractMonths = ContractMonthsAt(rival.Size);
  worker.ContractType = rival.Size > kCult ? "Non" : "Wri";
  worker.Morale += 20;
  worker.Wage = std::min<int>(worker.Wage, BySize(kMarket, rival.Size).SignedWageCap);
}

}  // namespace

void PartWith(World& world, Worker& worker) {
  EndPosting(worker);
  EndContract(worker);
  worker.Split = "None";
  worker.Debuted = true;
  if (worker.Uid == 0) return;
  LeaveOffice(world, worker.Uid);
  LoseClients(world, {worker.Uid});
  LeaveFeuds(world, worker.Uid);
  VacateTitlesOf(world, worker.Uid, TitleLoss::ATenth);
  LeaveCommentary(world, worker.Uid);
}

void ReleaseWorker(World& world, Worker& worker) {
  NoteDeed(world, kDeedLeft, world.FindPromotion(worker.Employer), worker.Name);
  PartWith(world, worker);
  if (world.RandomDraw(3) != 1) return;
  if (const Promotion* rival = BestBidder(world, worker)) SignWith(world, worker, *rival);
}

}  // namespace grapplemont
