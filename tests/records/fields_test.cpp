#include <gtest/gtest.h>
#include <cmath>
#include <ctime>
#include <limits>

#include "records/fields/fields.h"

namespace grapplemont {

namespace {

using namespace std::string_literals;

/// The bytes of a field, for all to see.
template <class T>
std::string BytesOf(const T& field) {
  return std::string(reinterpret_cast<const char*>(&field), sizeof field);
}

template <class T>
T FromBytes(const std::string& bytes) {
  T field;
  std::memcpy(static_cast<void*>(&field), bytes.data(), sizeof field);
  return field;
}

TEST(Word, StoresLittleEndianWithItsSign) {
  const struct {
    int Value;
    std::string Bytes;
  } rows[] = {{0, "\0\0"s},     {1, "\x01\0"s},    {-1, "\xFF\xFF"s},    {255, "\xFF\0"s},
              {256, "\0\x01"s}, {-256, "\0\xFF"s}, {32767, "\xFF\x7F"s}, {-32768, "\0\x80"s}};
  for (const auto& row : rows) {
    const Word word(row.Value);
    EXPECT_EQ(row.Bytes, BytesOf(word)) << row.Value;
    EXPECT_EQ(row.Value, FromBytes<Word>(row.Bytes));
  }
}

TEST(Word, RefusesWhatDoesNotFitAndKeepsItsValue) {
  for (const long long value : {32768LL, -32769LL, 65535LL, 1LL << 40}) {
    Word word(7);
    try {
      word = value;
      ADD_FAILURE() << value << " was taken";
    } catch (const FieldOverflow& fault) {
      EXPECT_EQ(value, fault.Value());
      EXPECT_EQ(&word, fault.Field());
      EXPECT_NE(std::string::npos, std::string(fault.what()).find(std::to_string(value)));
    }
    EXPECT_EQ(7, word);
  }
}

TEST(Word, StepsUpToItsLimitsAndNoFurther) {
  Word word(32766);
  ++word;
  EXPECT_EQ(32767, word);
  EXPECT_THROW(++word, FieldOverflow);
  EXPECT_THROW(word += 1, FieldOverflow);
  EXPECT_EQ(32767, word);
  word = -32767;
  --word;
  EXPECT_EQ(-32768, word);
  EXPECT_THROW(--word, FieldOverflow);
  EXPECT_THROW(word -= 1, FieldOverflow);
  EXPECT_EQ(-32768, word);
  word += 65535;
  EXPECT_EQ(32767, word);
}

TEST(Long, HoldsThirtyTwoBitsOfDollars) {
  EXPECT_EQ("\x80\x3D\xCD\xFF"s, BytesOf(Long(-3326592)));
  Long money(2147483647);
  EXPECT_EQ("\xFF\xFF\xFF\x7F"s, BytesOf(money));
  EXPECT_THROW(money += 1, FieldOverflow);
  EXPECT_THROW(money = 1LL << 60, FieldOverflow);
  EXPECT_EQ(2147483647, money);
  money = -2147483648LL;
  EXPECT_THROW(money -= 1, FieldOverflow);
  EXPECT_EQ("\0\0\0\x80"s, BytesOf(money));
}

TEST(Percent, SaturatesWhatIsStoredAndReadsWhatIsThere) {
  const struct {
    long long Stored;
    int Read;
  } rows[] = {{0, 0}, {100, 100}, {101, 100}, {-1, 0}, {1LL << 40, 100}, {-(1LL << 40), 0}};
  for (const auto& row : rows) {
    Percent percent;
    percent = row.Stored;
    EXPECT_EQ(row.Read, percent) << row.Stored;
  }
  Percent percent = FromBytes<Percent>("\x8C\0"s);
  EXPECT_EQ(140, percent);
  percent += 0;
  EXPECT_EQ(100, percent);
  percent -= 250;
  EXPECT_EQ(0, percent);
}

TEST(Ranged, SaturatesWhatIsStoredAndReadsWhatIsThere) {
  RangedWord<0, 120, true> months(119);
  months += 30;
  EXPECT_EQ(120, months);
  months = 0;
  --months;
  EXPECT_EQ(kNoEnd, months) << "which it may be as well";
  --months;
  EXPECT_EQ(0, months);
  EXPECT_EQ(-300, FromBytes<decltype(months)>("\xD4\xFE"s));
  Cash money(kMostDollars);
  money += 1LL << 40;
  EXPECT_EQ(kMostDollars, money);
  money -= 1LL << 50;
  EXPECT_EQ(-kMostDollars, money);
}

TEST(Flag, WritesMinusOneAndReadsAnyBit) {
  EXPECT_EQ("\xFF\xFF"s, BytesOf(Flag(true)));
  EXPECT_EQ("\0\0"s, BytesOf(Flag(false)));
  for (const std::string& bytes : {"\x01\0"s, "\0\x01"s, "\xFF\xFF"s, "\0\x80"s})
    EXPECT_TRUE(FromBytes<Flag>(bytes));
  Flag flag = FromBytes<Flag>("\x05\0"s);
  EXPECT_EQ(5, flag.Raw());
  flag = true;
  EXPECT_EQ(-1, flag.Raw());
}

TEST(Date, CountsDaysFromTheEndOf1899) {
  using namespace std::chrono;
  const struct {
    Day When;
    double Days;
  } rows[] = {{year{1899} / 12 / 30, 0},    {year{1899} / 12 / 29, -1},
              {year{1900} / 3 / 1, 61},     {year{1970} / 1 / 1, 25569},
              {year{2000} / 2 / 29, 36585}, {year{2026} / 3 / 1, 46082},
              {year{100} / 1 / 1, -657434}, {year{9999} / 12 / 31, 2958465}};
  for (const auto& row : rows) {
    Date date;
    date = row.When;
    EXPECT_EQ(row.Days, date.Raw()) << IsoDate(row.When);
    EXPECT_EQ(row.When, Day(date)) << row.Days;
  }
  EXPECT_EQ("\0\0\0\0\x40\x80\xE6\x40"s, BytesOf(Date(year{2026} / 3 / 1)));
}

TEST(Date, ReadsTheDayWhateverTheHourAndNoneFromNonsense) {
  const struct {
    double Days;
    Day Read;
  } rows[] = {
      {46082.999, std::chrono::year{2026} / 3 / 1},
      {2958465.9, std::chrono::year{9999} / 12 / 31},
      {2958466, kDayZero},
      {-657434.5, kDayZero},
      {1e300, kDayZero},
      {-1e300, kDayZero},
      {std::numeric_limits<double>::quiet_NaN(), kDayZero},
      {std::numeric_limits<double>::infinity(), kDayZero},
      {-std::numeric_limits<double>::infinity(), kDayZero},
      {std::numeric_limits<double>::denorm_min(), kDayZero},
  };
  for (const auto& row : rows) {
    Date date;
    date.SetRaw(row.Days);
    EXPECT_EQ(row.Read, Day(date)) << row.Days;
    EXPECT_EQ(row.Read == kDayZero, date.IsNone()) << row.Days;
  }
}

TEST(Text, PadsCutsAndTrims) {
  const struct {
    std::string Stored, Bytes, Read;
  } rows[] = {{"", "     ", ""},           {"CWA", "CWA  ", "CWA"},
              {"ABCDE", "ABCDE", "ABCDE"}, {"ABCDEFG", "ABCDE", "ABCDE"},
              {" AB", " AB  ", "AB"},      {"A B", "A B  ", "A B"},
              {"ABCD F", "ABCD ", "ABCD"}, {"     ", "     ", ""}};
  for (const auto& row : rows) {
    Text<5> text;
    text = row.Stored;
    EXPECT_EQ(row.Bytes, BytesOf(text)) << row.Stored;
    EXPECT_EQ(row.Read, text.Str()) << row.Stored;
  }
}

TEST(Text, HoldsANameAsWideAsItsField) {
  const std::string name = "Bartholomew Featherstone-";
  ASSERT_EQ(25u, name.size());
  Text<25> text(name);
  EXPECT_EQ(name, text.View());
  EXPECT_TRUE(text == name);
  EXPECT_FALSE(text == name.substr(0, 24));
  text = name + "haugh";
  EXPECT_EQ(name, text.View());
}

TEST(Text, ComparesTrimmedAndByCase) {
  const Text<10> text("Nor");
  EXPECT_TRUE(text == "Nor");
  EXPECT_TRUE(text == "  Nor ");
  EXPECT_FALSE(text == "nor");
  EXPECT_FALSE(text == "Norm");
  EXPECT_TRUE(text == Text<3>("Nor"));
  EXPECT_EQ("Nor!", text + "!");
  EXPECT_EQ("-Nor", "-" + text);
}

TEST(Text, TakesItsOwnTailAndEveryByte) {
  Text<6> text("abcdef");
  text = text.View().substr(2);
  EXPECT_EQ("cdef", text.View());
  text = std::string_view();
  EXPECT_EQ("", text.View());
  Text<4> odd("\xE9\0\xFF\n"s);
  EXPECT_EQ("\xE9\0\xFF\n"s, odd.View());
}

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
