#include "rivals/takeover.h"

#include "records/modVar.h"
#include "records/severing.h"
#include "rivals/bankruptcy.h"
#include "rivals/rivals.h"
#include "roster/placement.h"

namespace grapplemont {

namespace {

constexpr int kLeastMorale = 10;
constexpr int kLeastMonths = 3;

constexpr int kShortContract = 2;

/// What is the same for whoever comes over; contracts that end at once are made longer.
template <class Person>
void KeepOn(Person& person) {
  person.Unsackable = false;
  person.Morale = std::max<int>(person.Morale, kLeastMorale);
  if (person.ContractMonths < kShortContract) person.ContractMonths = kLeastMonths;
}

void ComeOver(World& world, Worker& worker) {
  const Promotion& player = world.Player();
  VacateTitlesOf(world, worker.Uid);
  if (worker.Status == "Hom") worker.Status = "Nor";
  KeepOn(worker);
  worker.Stable = "None";
  worker.Split = "None";
  worker.TurnPending = false;
  worker.Manager = 0;
  worker.Employer = player.Uid;
  worker.Position = PlacementPosition(worker, player.Size);
}

/// A promotion has one owner, and the player's keeps its own.
void ComeOver(World& world, Staff& staff) {
  const int months = staff.ContractMonths;
  DismissStaff(world, staff);
  staff.Unsackable = false;
  if (staff.Position == kOwner) return;
  staff.Employer = world.PlayerUid();
  staff.ContractMonths = months;
  KeepOn(staff);
}

}  // namespace

int ForSaleAtMost(int size) {
  return BankruptcyLineOf(size).BankruptBelow / 4;
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
    std::vector<Worker*> roster;
    for (Worker& worker : world.Workers())
      if (worker.Employer == rival.Uid) roster.push_back(&worker);
    PartWays(world, roster);
    for (Staff& staff : world.AllStaff())
      if (staff.Employer == rival.Uid) DismissStaff(world, staff);
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
