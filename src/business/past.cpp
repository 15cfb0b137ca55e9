#include "business/past.h"

#include <algorithm>

#include "business/finance.h"
#include "records/fields/fields.h"
#include "records/store/table.h"

namespace grapplemont {

namespace {

constexpr int kDropped = 1000;

template <class Test>
std::vector<const HistoryEntry*> Entries(const World& world, int promotionUid, Test test) {
  std::vector<const HistoryEntry*> found;
  for (const HistoryEntry& entry : world.History())
    if (entry.Promotion == promotionUid && test(entry)) found.push_back(&entry);
  return found;
}

}  // namespace

bool IsShow(const HistoryEntry& entry) {
  return entry.Kind == kPastTv || entry.Kind == kPastEvent;
}

const HistoryEntry* LastShowOf(const World& world, int promotionUid, Day from, int kind) {
  for (int number = world.History().Count(); number >= 1; --number) {
    const HistoryEntry& entry = world.History()[number];
    if (Day(entry.On) < from) return nullptr;
    if (entry.Promotion == promotionUid && (kind == 0 ? IsShow(entry) : entry.Kind == kind))
      return &entry;
  }
  return nullptr;
}

std::vector<const HistoryEntry*> MonthsOf(const World& world, int promotionUid) {
  return Entries(world, promotionUid,
                 [](const HistoryEntry& entry) { return entry.Kind == kPastMonth; });
}

std::vector<const HistoryEntry*> PastShowsOf(const World& world, int promotionUid,
                                             std::string_view name) {
  return Entries(world, promotionUid, [&](const HistoryEntry& entry) {
    return name.empty() ? entry.Kind == kPastEvent : entry.Kind == kPastTv && entry.Name == name;
  });
}

long long AttendanceOf(const World& world, int promotionUid, Day from, Day until) {
  long long people = 0;
  for (int number = world.History().Count(); number >= 1; --number) {
    const HistoryEntry& entry = world.History()[number];
    if (Day(entry.On) < from) break;
    if (entry.Promotion == promotionUid && IsShow(entry) && Day(entry.On) < until)
      people += entry.Attendance;
  }
  return people;
}

HistoryEntry EntryOf(const World& world, const Promotion& promotion, HistoryKind kind) {
  HistoryEntry entry{};
  entry.On = world.Today();
  entry.Kind = kind;
  entry.Promotion = promotion.Uid;
  entry.Name = promotion.Name;
  entry.Money = promotion.Money;
  entry.Size = promotion.Size;
  entry.Image = promotion.Image;
  return entry;
}

void Remember(World& world, const HistoryEntry& entry) {
  AppendRolling(world.History(), entry, kDropped);
}

void RememberMonth(World& world, const Promotion& promotion) {
  HistoryEntry entry = EntryOf(world, promotion, kPastMonth);
  if (promotion.Uid == world.PlayerUid())
    entry.Attendance =
        AttendanceOf(world, promotion.Uid, MonthsBefore(world.Today(), 1), world.Today());
  entry.Income = TotalIn(promotion.LastMonth);
  entry.Costs = TotalOut(promotion.LastMonth);
  Remember(world, entry);
}

Day MonthsBefore(Day day, int months) {
  const std::chrono::year_month_day date(day);
  return Day(date.year() / date.month() / 1 - std::chrono::months{months});
}

std::string MonthClosedBefore(Day first) {
  const Day last = first - std::chrono::days{1};
  return std::string(MonthName(MonthOf(last)).substr(0, 3)) + " " + std::to_string(YearOf(last));
}

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

namespace {

struct EconomyWords {
  int From;
  const char* Words;
};
constexpr EconomyWords kEconomy[] = {{90, "Booming"},        {81, "Strong"},
                                     {30, "Steady"},         {20, "Slow"},
                                     {10, "In a recession"}, {-32768, "In a slump"}};

}  // namespace

PastStanding FromScore(Day on, int score) {
  const int size = std::clamp(kBackyard - score / 100, int(kGlobal), int(kBackyard));
  return {on, size, score - (kBackyard - size) * 100};
}

std::vector<PastStanding> StandingsOf(const World& world, const Promotion& promotion, int most) {
  const auto months = MonthsOf(world, promotion.Uid);
  std::vector<PastStanding> standings;
  for (std::size_t i = promotion.Rank.size(); i-- > months.size();)
    if (promotion.Rank[i] != kNoEnd)
      standings.push_back(
          FromScore(MonthsBefore(world.Today(), static_cast<int>(i)), promotion.Rank[i]));
  for (const HistoryEntry* month : months)
    standings.push_back({month->On, month->Size, month->Image});
  if (!standings.empty() && standings.back().On == world.Today()) standings.pop_back();
  standings.push_back({world.Today(), promotion.Size, promotion.Image});
  const auto surplus = static_cast<std::ptrdiff_t>(standings.size()) - std::max(most, 1);
  if (surplus > 0) standings.erase(standings.begin(), standings.begin() + surplus);
  return standings;
}

std::vector<std::string> CaptionsOf(const std::vector<PastStanding>& standings) {
  std::vector<std::string> captions;
  for (const PastStanding& standing : standings) captions.push_back(MonthClosedBefore(standing.On));
  if (!captions.empty()) captions.back() = "Today";
  return captions;
}

std::string_view EconomyText(int economy) {
  for (const EconomyWords& row : kEconomy)
    if (economy >= row.From) return row.Words;
  return kEconomy[std::size(kEconomy) - 1].Words;
}

}  // namespace grapplemont
