#include <algorithm>

#include "calendar/daysteps.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/severing.h"
#include "rivals/rivals.h"
#include "roster/release.h"
#include "roster/wagebill.h"

namespace grapplemont {

namespace {

constexpr const char* kPersonnel = "Human Resources";

bool IsShortlisted(const World& world, int uid) {
  const auto& list = world.Game().Shortlist;
  return std::any_of(list.begin(), list.end(), [&](const Word& entry) { return entry == uid; });
}

/// "3 months left on his contract." at three months and at one; empty at any other.
std::string MonthsLeft(int months, bool isMan) {
  if (months != 3 && months != 1) return {};
  return std::string(months == 3 ? " has 3 months left on " : " has 1 month left on ") +
         (isMan ? "his" : "her") + " contract.";
}

void PayWage(World& world, const Worker& worker) {
  Promotion* employer = world.FindPromotion(worker.Employer);
  if (!employer) return;
  employer->Money -= MonthlyWage(worker);
  employer->ThisMonth.WrestlerWages += MonthlyWage(worker);
}

void TellOfPlayers(World& world, Worker& worker) {
  if (const std::string left = MonthsLeft(worker.ContractMonths, worker.Gender); !left.empty())
    AddNews(world, kPersonnel, worker.Name + left);
  if (worker.ContractMonths != 0) return;
  AddNews(world, kPersonnel, worker.Name + " has now left the promotion.");
  ReleaseWorker(world, worker);
}

void LeaveRival(World& world, Worker& worker) {
  const Promotion* rival = world.FindPromotion(worker.Employer);
  NoteDeed(world, kDeedLeft, rival, worker.Name);
  if (rival && (IsShortlisted(world, worker.Uid) ||
                ShouldTell(world, world.Game().MailWorkerFire, rival->Size)))
    AddNews(world, rival->Initials + " News",
            worker.Name + " has left " + rival->Initials.Str() + ".");
  PartWays(world, {&worker});
}

void PayStaffWage(World& world, const Staff& staff) {
  Promotion* employer = world.FindPromotion(staff.Employer);
  if (!employer) return;
  employer->Money -= MonthlyWage(staff);
  employer->ThisMonth.StaffWages += MonthlyWage(staff);
}

void TellOfPlayersStaff(World& world, Staff& staff) {
  const std::string who = "Staff member " + staff.Name.Str();
  if (const std::string left = MonthsLeft(staff.ContractMonths, staff.Gender); !left.empty())
    AddNews(world, kPersonnel, who + left);
  if (staff.ContractMonths != 0) return;
  AddNews(world, kPersonnel, who + " is now no longer under contract with us.");
  DismissStaff(world, staff);
}

void LeaveRivalsStaff(World& world, Staff& staff) {
  const Promotion* rival = world.FindPromotion(staff.Employer);
  if (rival && ShouldTell(world, world.Game().MailStaffFire, rival->Size))
    AddNews(world, rival->Initials + " News",
            staff.Name + " has left the staff of " + rival->Initials.Str() + ".");
  DismissStaff(world, staff);
}

void PayWorkers(World& world) {
  for (Worker& worker : world.Workers()) {
    if (worker.Employer == 0 || worker.ContractMonths == kNoEnd) continue;
    PayWage(world, worker);
    worker.ContractMonths -= 1;
    if (WorksForPlayer(world, worker))
      TellOfPlayers(world, worker);
    else if (worker.ContractMonths == 0)
      LeaveRival(world, worker);
  }
}

void PayStaff(World& world) {
  for (Staff& staff : world.AllStaff()) {
    if (staff.Employer == 0 || staff.Position == kOwner || staff.ContractMonths == kNoEnd) continue;
    PayStaffWage(world, staff);
    staff.ContractMonths -= 1;
    if (WorksForPlayer(world, staff))
      TellOfPlayersStaff(world, staff);
    else if (staff.ContractMonths == 0)
      LeaveRivalsStaff(world, staff);
  }
}

}  // namespace

void PayWagesAndContracts(World& world) {
  PayWorkers(world);
  PayStaff(world);
}

}  // namespace grapplemont
