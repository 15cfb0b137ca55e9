#include "business/past.h"

#include <algorithm>
#include <ranges>

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

template <class T>
void KeepLast(std::vector<T>& all, int count) {
  if (std::ssize(all) > count) all.erase(all.begin(), all.end() - count);
}

/// The crowds, in people, of all shows of the month that has just ended.
long long LastMonthsCrowds(const World& world, int promotionUid) {
  long long people = 0;
  for (const HistoryEntry& entry : std::views::reverse(world.History())) {
    if (Day(entry.On) < MonthsBefore(world.Today(), 1)) break;
    if (entry.Promotion == promotionUid && IsShow(entry) && Day(entry.On) < world.Today())
      people += entry.Attendance;
  }
  return people;
}

/// "Mar 2026" for the month that ended before the day, a first of a month.
std::string MonthClosedBefore(Day first) {
  const Day last = first - std::chrono::days{1};
  return std::string(MonthName(MonthOf(last)).substr(0, 3)) + " " + std::to_string(YearOf(last));
}

// What a chart can show and still be read.
constexpr int kMonthsShown = 60, kWeeksShown = 52;

/// "09 Mar".
std::string DayAndMonth(Day on) {
  constexpr std::size_t kLetters = 6;
  return PlainDate(on).substr(0, kLetters);
}

std::vector<MoneyPoint> OnRecord(const Promotion& promotion, Day today) {
  std::vector<MoneyPoint> points;
  int months = 0;
  for (const Cash& money : promotion.MoneyBefore) {
    if (money == kNoEnd) break;
    const Day after = MonthsBefore(today, months++);
    points.push_back({MonthClosedBefore(after), money, after});
  }
  std::reverse(points.begin(), points.end());
  return points;
}

/// From which economy on.
constexpr std::pair<int, const char*> kEconomyWords[] = {
    {90, "Booming"}, {81, "Strong"}, {30, "Steady"}, {20, "Slow"}, {10, "In a recession"}};

}  // namespace

bool IsShow(const HistoryEntry& entry) {
  return entry.Kind == kPastTv || entry.Kind == kPastEvent;
}

const HistoryEntry* LastShowOf(const World& world, int promotionUid, Day from, int kind) {
  for (const HistoryEntry& entry : std::views::reverse(world.History())) {
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

std::vector<const HistoryEntry*> EventsOf(const World& world, int promotionUid, int month) {
  auto events = Entries(world, promotionUid, [&](const HistoryEntry& entry) {
    return entry.Kind == kPastEvent && (month == 0 || MonthOf(entry.On) == month);
  });
  std::ranges::reverse(events);
  return events;
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
  if (promotion.Uid == world.PlayerUid()) entry.Attendance = LastMonthsCrowds(world, promotion.Uid);
  entry.Income = TotalIn(promotion.LastMonth);
  entry.Costs = TotalOut(promotion.LastMonth);
  Remember(world, entry);
}

Day MonthsBefore(Day day, int months) {
  const std::chrono::year_month_day date(day);
  return Day(date.year() / date.month() / 1 - std::chrono::months{months});
}

std::vector<MoneyPoint> MoneyOverTime(const World& world, const Promotion& promotion) {
  std::vector<MoneyPoint> points;
  for (const HistoryEntry* entry : MonthsOf(world, promotion.Uid))
    points.push_back({MonthClosedBefore(entry->On), entry->Money, entry->On});
  KeepLast(points, kMonthsShown);
  std::vector<MoneyPoint> record = OnRecord(promotion, world.Today());
  if (record.size() > points.size()) points = std::move(record);
  const Day first = MonthsBefore(world.Today(), 0);
  for (const HistoryEntry* show : Entries(world, promotion.Uid, [&](const HistoryEntry& entry) {
         return IsShow(entry) && Day(entry.On) >= first;
       }))
    points.push_back({DayAndMonth(show->On), show->Money, show->On});
  points.push_back({"Today", promotion.Money, world.Today()});
  return points;
}

std::vector<MonthOfMoney> MoneyByMonth(const World& world, const Promotion& promotion) {
  std::vector<MonthOfMoney> months;
  const HistoryEntry* before = nullptr;
  for (const HistoryEntry* entry : MonthsOf(world, promotion.Uid)) {
    const long long money = entry->Money, in = entry->Income, out = entry->Costs;
    months.push_back({MonthClosedBefore(entry->On), money, in, out, {}});
    if (before) months.back().Beside = money - before->Money - (in - out);
    before = entry;
  }
  KeepLast(months, kMonthsShown);
  std::ranges::reverse(months);
  return months;
}

TvPast TvPastOf(const World& world, std::string_view show) {
  TvPast past;
  for (const HistoryEntry* entry : Entries(world, world.PlayerUid(), [&](const HistoryEntry& e) {
         return e.Kind == kPastTv && e.Name == show && !e.CalledOff;
       })) {
    past.Days.push_back(DayAndMonth(entry->On));
    past.Ratings.push_back(entry->Viewers / 100.0);
    past.Attendance.push_back(entry->Attendance);
  }
  KeepLast(past.Days, kWeeksShown);
  KeepLast(past.Ratings, kWeeksShown);
  KeepLast(past.Attendance, kWeeksShown);
  return past;
}

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
  KeepLast(standings, std::max(most, 1));
  return standings;
}

std::vector<std::string> CaptionsOf(const std::vector<PastStanding>& standings) {
  std::vector<std::string> captions;
  for (const PastStanding& standing : standings) captions.push_back(MonthClosedBefore(standing.On));
  if (!captions.empty()) captions.back() = "Today";
  return captions;
}

std::vector<double> PlacesOf(const std::vector<PastStanding>& standings) {
  std::vector<double> places;
  for (const PastStanding& standing : standings) places.push_back(PlaceOf(standing.On));
  return places;
}

double PlaceOf(Day on) {
  return static_cast<double>((on - kDayZero).count());
}

std::string_view EconomyText(int economy) {
  for (const auto& [from, words] : kEconomyWords)
    if (economy >= from) return words;
  return "In a slump";
}

}  // namespace grapplemont
