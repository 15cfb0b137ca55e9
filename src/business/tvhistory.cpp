#include "business/tvhistory.h"

#include "business/past.h"
#include "records/fields/fields.h"

namespace grapplemont {

namespace {
constexpr std::size_t kWeeksShown = 52;
constexpr std::size_t kDayAndMonth = 5;  // letters of a short date

template <class T>
void KeepLast(std::vector<T>& all) {
  if (all.size() > kWeeksShown)
    all.erase(all.begin(), all.end() - static_cast<std::ptrdiff_t>(kWeeksShown));
}
}  // namespace

TvPast TvPastOf(const World& world, std::string_view show) {
  TvPast past;
  for (const HistoryEntry* entry : PastShowsOf(world, world.PlayerUid(), show)) {
    if (entry->CalledOff) continue;
    past.Days.push_back(ShortDate(entry->On).substr(0, kDayAndMonth));
    past.Ratings.push_back(entry->Viewers / 100.0);
    past.Attendance.push_back(entry->Attendance);
  }
  KeepLast(past.Days);
  KeepLast(past.Ratings);
  KeepLast(past.Attendance);
  return past;
}

}  // namespace grapplemont
