#include "business/moneyhistory.h"

#include <algorithm>

#include "business/past.h"
#include "records/dates.h"

namespace grapplemont {

namespace {

std::string MonthInShort(std::chrono::year_month month) {
  const int number = static_cast<int>(static_cast<unsigned>(month.month()));
  return std::string(MonthName(number).substr(0, 3)) + " " +
         std::to_string(static_cast<int>(month.year()));
}

std::chrono::year_month MonthBefore(Day day) {
  const std::chrono::year_month_day date{day};
  return date.year() / date.month() - std::chrono::months{1};
}

/// A month is closed on the first of the next.
std::vector<MoneyPoint> Remembered(const World& world, int promotionUid) {
  std::vector<MoneyPoint> points;
  for (const HistoryEntry* entry : MonthsOf(world, promotionUid))
    points.push_back({MonthInShort(MonthBefore(entry->On)), entry->Money});
  return points;
}

std::vector<MoneyPoint> OnRecord(const Promotion& promotion, Day today) {
  std::vector<MoneyPoint> points;
  auto month = MonthBefore(today);
  for (const Long& money : promotion.MoneyBefore) {
    if (money == kNoEnd) break;
    points.push_back({MonthInShort(month), money});
    month -= std::chrono::months{1};
  }
  std::reverse(points.begin(), points.end());
  return points;
}

}  // namespace

std::vector<MoneyPoint> MoneyOverTime(const World& world, const Promotion& promotion) {
  std::vector<MoneyPoint> points = Remembered(world, promotion.Uid);
  std::vector<MoneyPoint> record = OnRecord(promotion, world.Today());
  if (record.size() > points.size()) points = std::move(record);
  points.push_back({"Today", promotion.Money});
  return points;
}

}  // namespace grapplemont
