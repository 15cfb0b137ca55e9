#include "business/months.h"

#include "records/fields/fields.h"

namespace grapplemont {

Day MonthsBefore(Day day, int months) {
  const std::chrono::year_month_day date(day);
  return Day(date.year() / date.month() / 1 - std::chrono::months{months});
}

std::string MonthClosedBefore(Day first) {
  const Day last = first - std::chrono::days{1};
  return std::string(MonthName(MonthOf(last)).substr(0, 3)) + " " + std::to_string(YearOf(last));
}

}  // namespace grapplemont
