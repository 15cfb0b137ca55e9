#include "roster/stafffiring.h"

#include "records/severing.h"
#include "roster/termination.h"

namespace grapplemont {

namespace {

Parting PartingOf(const Staff& staff) {
  if (staff.Morale < 20) return Parting::Gladly;
  return staff.ContractType == "Non" ? Parting::Verbal : Parting::BuyOut;
}

long long CostOf(const World& world, const Staff& staff) {
  return BuyOutCost(world.Game().Difficulty, staff.Wage, staff.ContractMonths);
}

}  // namespace

std::string FiringQuestion(const World& world, const Staff& staff) {
  switch (PartingOf(staff)) {
    case Parting::BuyOut:
      return "Buying out the contract of " + staff.Name.Str() + " will cost $" +
             std::to_string(CostOf(world, staff)) + ". Proceed?";
    case Parting::Verbal:
      return "Nothing is in writing, and " + staff.Name.Str() + " can be let go for free. Proceed?";
    case Parting::Gladly:
      break;
  }
  return staff.Name + " is glad to leave. Proceed?";
}

void FireStaff(World& world, Staff& staff) {
  const Parting parting = PartingOf(staff);
  if (parting == Parting::BuyOut) {
    world.Player().Money -= CostOf(world, staff);
    staff.Loyalty -= 30;
  }
  if (parting == Parting::Verbal) staff.Loyalty -= 20;
  DismissStaff(world, staff);
  staff.ContractType = "Non";
}

}  // namespace grapplemont
