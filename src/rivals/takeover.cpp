#include "rivals/takeover.h"

#include "records/severing.h"
#include "rivals/rivals.h"
#include "roster/placement.h"

namespace grapplemont {

namespace {

constexpr int kLeastMorale = 10;
constexpr int kLeastMonths = 3;

/// A quarter of the way to the line where the bank closes it.
constexpr std::array<int, 6> kForSaleAtMost = {-5000000, -3750000, -1250000,
                                               -625000,  -250000,  -125000};

void LeaveTitles(World& world, int uid) {
  for (Title& title : world.Titles())
    if (title.Holder == uid || title.Partner == uid) VacateTitle(world, title);
}

void ComeOver(World& world, Worker& worker) {
  const Promotion& player = world.Player();
  LeaveTitles(world, worker.Uid);
  if (worker.Status == "Hom") worker.Status = "Nor";
  worker.Unsackable = false;
  worker.Morale = std::max<int>(worker.Morale, kLeastMorale);
  if (worker.ContractMonths < 2) worker.ContractMonths = kLeastMonths;
  worker.Stable = "None";
  worker.Split = "None";
  worker.TurnPending = false;
  worker.Manager = 0;
  worker.Employer = player.Uid;
  worker.Position = PlacementPosition(worker, player.Size);
}

/// A promotion has one owner, and the player's keeps its own.
void ComeOver(World& world, Staff& staff) {
  SeverStaff(world, staff);
  staff.Unsackable = false;
  if (staff.Position == kOwner) return;
  staff.Employer = world.PlayerUid();
  staff.ContractMonths = kLeastMonths;
}

}  // namespace

int ForSaleAtMost(int size) {
  return BySize(kForSaleAtMost, size);
}

bool IsForSale(const Promotion& rival) {
  return rival.Money <= ForSaleAtMost(rival.Size);
}

long long TakeoverCost(const Promotion& rival, Takeover kind) {
  const long long wages =
      kind == Takeover::Destruction
          ? static_cast<long long>(rival.LastMonth.StaffWages) + rival.LastMonth.WrestlerWages
          : 0;
  return wages - rival.Money;
}

void TakeOverRival(World& world, Promotion& rival, Takeover kind) {
  world.Player().Money -= TakeoverCost(rival, kind);
  if (kind == Takeover::Destruction) {
    for (Worker& worker : world.Workers())
      if (worker.Employer == rival.Uid) PartWays(world, worker);
    for (Staff& staff : world.AllStaff())
      if (staff.Employer == rival.Uid) SeverStaff(world, staff);
  } else {
    for (Worker& worker : world.Workers())
      if (worker.Employer == rival.Uid) ComeOver(world, worker);
    for (Staff& staff : world.AllStaff())
      if (staff.Employer == rival.Uid) ComeOver(world, staff);
  }
  NoteDeed(world, kDeedBought, &rival, rival.Name, world.Player().Initials);
  rival.Name = kToBeDeleted;
}

}  // namespace grapplemont
