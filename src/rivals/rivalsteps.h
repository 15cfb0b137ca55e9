#pragma once

#include "records/world.h"

// What rival promotions do by themselves: steps of the day. Not built yet: each leaves the world as
// it is.

namespace grapplemont {

// Daily.
void OwnerlessPromotions(World& world);
void RivalWorkerHiring(World& world);
void RivalStaffHiring(World& world);
void RivalSponsorSigning(World& world);
// Mondays.
void RivalPositions(World& world);
void RivalHouseShows(World& world);
void RivalAdvertising(World& world);
void RosterSizeReview(World& world);
// The first of a month.
void DiscoverFreeAgents(World& world);
void RivalContractRenewals(World& world);
void BankruptcyCheck(World& world);
void NewPromotionCheck(World& world);

}  // namespace grapplemont
