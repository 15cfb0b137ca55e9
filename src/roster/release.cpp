#include "roster/release.h"

#include <algorithm>
#include <array>

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

const Market& MarketOf(int size) {
  return kMarket[static_cast<std::size_t>(std::clamp<int>(size, kGlobal, kBackyard) - 1)];
}

void LeaveOffice(World& world, int uid) {
  for (Promotion& promotion : world.Promotions())
    if (promotion.Commissioner == uid) promotion.Commissioner = 0;
}

void EndContract(Worker& worker) {
  if (worker.Status == "Hom") {
    worker.Status = "Nor";
    worker.Morale = 80;
  }
  worker.Split = "None";
  worker.Stable = "None";
  worker.Employer = 0;
  worker.Unsackable = false;
  worker.ContractMonths = 0;
  worker.Manager = 0;
  worker.TurnPending = false;
  worker.ContractType = "Non";
  worker.Debuted = true;
}

/// A Title whose holder leaves loses a tenth of its image.
void LeaveTitles(World& world, int uid) {
  for (Title& title : world.Titles()) {
    if (title.Holder != uid && title.Partner != uid) continue;
    title.Holder = 0;
    title.Partner = 0;
    title.Image -= title.Image / 10;
    BeginReign(title, world.Today(), "Vacant");
  }
}

bool CanPay(const Promotion& promotion, const Worker& worker) {
  const Market& market = MarketOf(promotion.Size);
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
  worker.ContractMonths = rival.Size > kRegional ? 6 : rival.Size >= kCult ? 12 : 24;
  worker.ContractType = rival.Size > kCult ? "Non" : "Wri";
  worker.Morale += 20;
  worker.Wage = std::min<int>(worker.Wage, MarketOf(rival.Size).SignedWageCap);
}

}  // namespace

void PartWith(World& world, Worker& worker) {
  LeaveOffice(world, worker.Uid);
  EndPosting(worker);
  EndContract(worker);
  LeaveFeuds(world, worker.Uid);
  LeaveTitles(world, worker.Uid);
  LeaveCommentary(world, worker.Uid);
}

void ReleaseWorker(World& world, Worker& worker) {
  NoteDeed(world, kDeedLeft, world.FindPromotion(worker.Employer), worker.Name);
  PartWith(world, worker);
  if (world.RandomDraw(3) != 1) return;
  if (const Promotion* rival = BestBidder(world, worker)) SignWith(world, worker, *rival);
}

}  // namespace grapplemont
