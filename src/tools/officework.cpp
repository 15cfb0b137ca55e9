#include "tools/officework.h"

#include <algorithm>

#include "business/monthlymoney.h"
#include "business/sponsorlimits.h"
#include "business/sponsors.h"
#include "records/fields/fields.h"
#include "rivals/purse.h"
#include "rivals/renewals.h"
#include "rivals/staffmarket.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"
#include "tools/televisionwork.h"

namespace grapplemont::tools {

namespace {

Sponsor* BestSponsor(World& world, const Promotion& player) {
  const int limit = SponsorPayLimit(player.Size, player.Image);
  Sponsor* best = nullptr;
  for (Sponsor& sponsor : world.Sponsors())
    if (sponsor.Promotion == 0 && BearsRisk(sponsor, player.Risk) && sponsor.Pay < limit &&
        (!best || sponsor.Pay > best->Pay))
      best = &sponsor;
  return best;
}

void FillSponsorPlaces(World& world) {
  Promotion& player = world.Player();
  while (const int place = FreeSponsorPlace(world, player)) {
    Sponsor* sponsor = BestSponsor(world, player);
    if (!sponsor) return;
    SignSponsor(world, player, *sponsor, place);
  }
}

/// As a rival spends, but no more merchandise than finds buyers.
void SpendByStanding(Promotion& player) {
  const RivalSpending spending = RivalSpendingFor(player.Size);
  const int sells = MerchBase(player.Size, player.Image) / MerchandiseCap(1);
  player.Merchandising = std::min(spending.Merchandising, sells);
  player.Production = spending.Production;
  player.TicketPrice = FairTicketPrice(player.Size);
  player.Advertising = player.Money < 0 ? 0 : TargetAdvertising(player.Size, player.Image) / 2;
}

/// Whoever has to save lets the roster shrink to half of what a rival would have.
bool MaySign(const World& world) {
  const Promotion& player = world.Player();
  return PurseOf(player) != Purse::Saving ||
         Rosters(world).Of(player.Uid) * 2 < BySize(tuning::kRosters, player.Size).Least;
}

}  // namespace

void WorkInTheOffice(World& world) {
  FillSponsorPlaces(world);
  WorkOnTelevision(world);
  if (IsFirstOfMonth(world.Today())) {
    RenewContracts(world, world.Player());
    SpendByStanding(world.Player());
  }
  if (!IsMonday(world.Today())) return;
  if (MaySign(world)) {
    Rosters rosters(world);
    FitRoster(world, world.Player(), rosters);
  }
  FitPosts(world, world.Player(), Posts(world));
}

}  // namespace grapplemont::tools
