#include "calendar/passing.h"

#include <algorithm>
#include <vector>

#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"

namespace grapplemont {

bool HasSmallMonth(const Promotion& promotion) {
  return promotion.Size >= kSmall;
}

const MonthPlan* PlanOfTheMonth(const World& world) {
  const auto& plans = world.MonthPlans();
  const Day first = world.Today() - std::chrono::days{DayOfMonth(world.Today()) - 1};
  return plans.Count() > 0 && Day(plans[1].Month) == first ? &plans[1] : nullptr;
}

int VenturesLeft(const World& world) {
  if (!HasSmallMonth(world.Player())) return 0;
  const MonthPlan* plan = PlanOfTheMonth(world);
  if (!plan) return kVentureKinds;
  return static_cast<int>(
      std::count(plan->Done.begin(), plan->Done.begin() + kVentureKinds, false));
}

std::string Passing::Text(const World& world) const {
  int meetings = 0, ventures = 0, open = open_;
  const std::string_view meets = world.Player().MeetingDay.View();
  for (Day day = from_ + std::chrono::days{1}; day <= world.Today(); day += std::chrono::days{1}) {
    if (day < world.Today() && DayName(day) == meets) ++meetings;
    if (!IsFirstOfMonth(day)) continue;
    ventures += open;
    open = open_ > 0 ? kVentureKinds : 0;
  }
  std::vector<std::string> passed;
  if (meetings > 0) passed.push_back(Counted(meetings, "staff meeting"));
  if (ventures > 0) passed.push_back(Counted(ventures, "venture") + " of the month");
  return passed.empty() ? std::string() : "Passed on the way: " + Joined(passed, " and ") + ".";
}

}  // namespace grapplemont
