#include "rivals/rivalsteps.h"

namespace grapplemont {

void OwnerlessPromotions(World&) {}
void RivalWorkerHiring(World&) {}
void RivalStaffHiring(World&) {}
void RivalSponsorSigning(World&) {}
void RivalPositions(World&) {}
void RivalHouseShows(World&) {}
void RivalAdvertising(World&) {}
void RosterSizeReview(World&) {}
void DiscoverFreeAgents(World&) {}
void RivalContractRenewals(World&) {}
void BankruptcyCheck(World&) {}
void NewPromotionCheck(World&) {}

}  // namespace grapplemont
