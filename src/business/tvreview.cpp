#include "business/businesssteps.h"
#include "business/networks.h"
#include "business/tvshows.h"
#include "records/arithmetic.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

/// A rival's deal is talked about when these many weeks are left.
constexpr int kRenewalWeeks = 2;
constexpr int kLongRenewal = 25;
constexpr int kShortRenewal = 18;
/// Networks drop a show that stands at this number of strikes, and at no other.
constexpr int kDroppedAt = 3;

/// The weeks that a network adds to a rival's deal; 0 for none.
int RenewalOf(const Promotion& owner, const Show& show, const Network& network) {
  if (owner.Risk > SlotRisk(network, show.Slot)) return 0;
  const int audience = SlotAudience(network, show.Slot);
  if (show.Rating3 < PercentOf(audience, 70)) return 0;
  return show.Rating3 > PercentOf(audience, 80) ? kLongRenewal : kShortRenewal;
}

void Renew(World& world, const Promotion& owner, Show& show) {
  const Network* network = world.FindNetwork(show.Network);
  const int weeks = network ? RenewalOf(owner, show, *network) : 0;
  if (weeks == 0) return;
  show.ContractWeeks += weeks;
  NoteDeed(world, kDeedRenewed, &owner, show.Name, network->Name, weeks);
  TellOfDeal(world, owner,
             owner.Initials + "'s " + show.Name.Str() + " has been renewed for a further " +
                 std::to_string(weeks) + " weeks!");
}

void TakeOff(World& world, const Promotion& owner, Show& show, const char* what) {
  TellOfDeal(world, owner, show.Name + what + NetworkName(world, show.Network) + "!");
  NoteDeed(world, kDeedOffAir, &owner, show.Name, NetworkName(world, show.Network));
  show.Name = kToBeDeleted;
}

void Review(World& world, const Promotion& owner, Show& show) {
  show.ContractWeeks -= 1;
  if (show.ContractWeeks == kRenewalWeeks && owner.Uid != world.PlayerUid())
    Renew(world, owner, show);
  if (show.ContractWeeks == 0) TakeOff(world, owner, show, " has not been renewed by ");
  if (show.Rating4 == kDroppedAt && !(show.Name == kToBeDeleted))
    TakeOff(world, owner, show, " has been dropped by ");
}

}  // namespace

void TvContractReview(World& world) {
  for (Show& show : world.Shows())
    if (const Promotion* owner = world.FindPromotion(show.Owner)) Review(world, *owner, show);
}

}  // namespace grapplemont
