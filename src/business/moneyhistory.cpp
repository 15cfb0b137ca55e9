#include "business/moneyhistory.h"

#include <algorithm>

#include "business/months.h"
#include "business/past.h"

namespace grapplemont {

namespace {

/// So many month ends a chart can show and still be read.
constexpr std::size_t kMonthsShown = 60;

std::vector<MoneyPoint> Remembered(const World& world, int promotionUid) {
  std::vector<MoneyPoint> points;
  for (const HistoryEntry* entry : MonthsOf(world, promotionUid))
    points.push_back({MonthClosedBefore(entry->On), entry->Money});
  if (points.size() > kMonthsShown)
    points.erase(points.begin(), points.end() - static_cast<std::ptrdiff_t>(kMonthsShown));
  return points;
}

std::vector<MoneyPoint> OnRecord(const Promotion& promotion, Day today) {
  std::vector<MoneyPoint> points;
  int months = 0;
  for (const Cash& money : promotion.MoneyBefore) {
    if (money == kNoEnd) break;
    points.push_back({MonthClosedBefore(MonthsBefore(today, months++)), money});
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
