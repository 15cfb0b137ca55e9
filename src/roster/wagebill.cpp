#include "roster/wagebill.h"

namespace grapplemont {

namespace {
constexpr int kThousand = 1000;
}

int MonthlyWage(const Worker& worker) {
  const bool paid =
      worker.Employer != 0 && worker.ContractMonths != kNoEnd && !(worker.Status == "Hom");
  return paid ? worker.Wage * kThousand : 0;
}

int MonthlyWage(const Staff& staff) {
  const bool paid =
      staff.Employer != 0 && staff.Position != kOwner && staff.ContractMonths != kNoEnd;
  return paid ? staff.Wage * kThousand : 0;
}

WageBill WagesOf(const World& world, int promotionUid) {
  WageBill bill;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == promotionUid) bill.Workers += MonthlyWage(worker);
  for (const Staff& staff : world.AllStaff())
    if (staff.Employer == promotionUid) bill.Staff += MonthlyWage(staff);
  return bill;
}

}  // namespace grapplemont
