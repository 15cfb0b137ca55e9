#include "records/fields/fields.h"

#include <gtest/gtest.h>

#include <ctime>

namespace grapplemont {
namespace {

using std::chrono::days;
using std::chrono::year;

// A hundred years and more, with the year 2000 that is a leap year and 2100 that is none.
const Day kFrom = year{1995} / 1 / 1;
const Day kTo = year{2105} / 1 / 1;

/// The same day by the C library's calendar.
std::tm ByTheLibrary(Day day) {
  const std::time_t seconds = static_cast<std::time_t>(day.time_since_epoch().count()) * 86400;
  std::tm parts{};
  gmtime_r(&seconds, &parts);
  return parts;
}

std::string Format(const char* format, const std::tm& parts) {
  char text[64];
  return {text, std::strftime(text, sizeof text, format, &parts)};
}

/// The last Sunday of a month, found by counting back from the month's last day.
int LastSunday(const std::tm& parts) {
  constexpr int kLengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const int number = parts.tm_year + 1900;
  const bool leap = (number % 4 == 0 && number % 100 != 0) || number % 400 == 0;
  const int last = kLengths[parts.tm_mon] + (leap && parts.tm_mon == 1 ? 1 : 0);
  const int weekdayOfLast = (parts.tm_wday + last - parts.tm_mday) % 7;
  return last - weekdayOfLast;
}

TEST(Dates, AgreeWithAnotherCalendarOverAHundredYears) {
  for (Day day = kFrom; day < kTo; day += days{1}) {
    const std::tm parts = ByTheLibrary(day);
    SCOPED_TRACE(Format("%Y-%m-%d", parts));
    ASSERT_EQ(parts.tm_year + 1900, YearOf(day));
    ASSERT_EQ(parts.tm_mon + 1, MonthOf(day));
    ASSERT_EQ(parts.tm_mday, DayOfMonth(day));
    ASSERT_EQ(Format("%A", parts), DayName(day));
    ASSERT_EQ(parts.tm_wday == 0 ? 7 : parts.tm_wday, DayNumber(DayName(day)));
    ASSERT_EQ(parts.tm_wday == 1, IsMonday(day));
    ASSERT_EQ(parts.tm_mday == 1, IsFirstOfMonth(day));
    ASSERT_EQ(parts.tm_wday == 0 && parts.tm_mday == LastSunday(parts), IsEventDay(day));
  }
}

TEST(Dates, ReadAsTheScreensShowThem) {
  for (Day day = kFrom; day < kTo; day += days{1}) {
    const std::tm parts = ByTheLibrary(day);
    ASSERT_EQ(Format("%A, %d %B %Y", parts), LongDate(day));
    ASSERT_EQ(Format("%d %B %Y", parts), PlainDate(day));
    ASSERT_EQ(Format("%B %Y", parts), MonthYear(day));
    ASSERT_EQ(Format("%d/%m/%y", parts), ShortDate(day));
    ASSERT_EQ(Format("%Y-%m-%d", parts), IsoDate(day));
    ASSERT_EQ(day, ParseIsoDate(IsoDate(day)));
  }
}

TEST(Dates, EveryMonthHasOneEventDay) {
  int inMonth = 0;
  for (Day day = kFrom; day < kTo; day += days{1}) {
    inMonth += IsEventDay(day) ? 1 : 0;
    if (!IsFirstOfMonth(day + days{1})) continue;
    ASSERT_EQ(1, inMonth) << MonthYear(day);
    inMonth = 0;
  }
  EXPECT_FALSE(IsEventDay(year{2026} / 3 / 22));  // the fourth of five Sundays
  EXPECT_TRUE(IsEventDay(year{2026} / 3 / 29));
}

TEST(Dates, NextFirstStaysOnAFirstAndElseMovesOn) {
  const struct {
    Day From, To;
  } rows[] = {{year{2026} / 3 / 1, year{2026} / 3 / 1},
              {year{2026} / 3 / 2, year{2026} / 4 / 1},
              {year{2026} / 12 / 31, year{2027} / 1 / 1},
              {year{2028} / 2 / 29, year{2028} / 3 / 1},
              {year{2100} / 2 / 28, year{2100} / 3 / 1}};
  for (const auto& row : rows) EXPECT_EQ(row.To, NextFirst(row.From)) << IsoDate(row.From);
}

TEST(Dates, NamesOutsideTheCalendarAreNone) {
  EXPECT_EQ("January", MonthName(1));
  EXPECT_EQ("December", MonthName(12));
  for (const int month : {0, 13, -1, 32767, -32768}) EXPECT_EQ("", MonthName(month));
  for (const char* name : {"", "monday", "Mon", "Sunday ", "Lundi"}) EXPECT_EQ(0, DayNumber(name));
}

TEST(Dates, ParseRefusesWhatIsNoDay) {
  for (const char* text : {"", "2026-3-1", "2026-02-29", "2100-02-29", "2026-13-01", "2026-00-10",
                           "2026-04-31", "2026-01-00", "2026/01/01", "20260101--", "2026-01-1x",
                           "-026-01-01", "2026-01-01 ", "2026--1-01", "2026-+1-01", "0099-01-01"})
    EXPECT_FALSE(ParseIsoDate(text)) << text;
  EXPECT_EQ(Day(year{2024} / 2 / 29), ParseIsoDate("2024-02-29"));
  EXPECT_EQ(Day(year{100} / 1 / 1), ParseIsoDate("0100-01-01"));
}

}  // namespace
}  // namespace grapplemont
