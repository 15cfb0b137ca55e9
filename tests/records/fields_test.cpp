#include <gtest/gtest.h>

#include <array>
#include <ctime>
#include <limits>
#include <random>

#include "records/arithmetic.h"
#include "records/fields/outside.h"

namespace grapplemont {

namespace {

using namespace std::string_literals;
using std::chrono::days;
using std::chrono::year;

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
  } rows[] = {{1, "\x01\0"s},    {-1, "\xFF\xFF"s},    {256, "\0\x01"s},
              {-256, "\0\xFF"s}, {32767, "\xFF\x7F"s}, {-32768, "\0\x80"s}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.Bytes, BytesOf(Word(row.Value))) << row.Value;
    EXPECT_EQ(row.Value, FromBytes<Word>(row.Bytes));
  }
  EXPECT_EQ("\x80\x3D\xCD\xFF"s, BytesOf(Long(-3326592)));
}

TEST(Word, RefusesWhatDoesNotFitAndKeepsItsValue) {
  Word word(7);
  for (const long long value : {32768LL, -32769LL, 65535LL, 1LL << 40}) {
    try {
      word = value;
      ADD_FAILURE() << value << " was taken";
    } catch (const FieldOverflow& fault) {
      EXPECT_EQ(value, fault.Value());
      EXPECT_EQ(&word, fault.Field());
    }
    EXPECT_EQ(7, word);
  }
  word = 32766;
  ++word;
  EXPECT_THROW(++word, FieldOverflow);
  EXPECT_THROW(word += 1, FieldOverflow);
  EXPECT_EQ(32767, word);
  word -= 65535;
  EXPECT_THROW(--word, FieldOverflow);
  EXPECT_THROW(word -= 1, FieldOverflow);
  EXPECT_EQ(-32768, word);
  Long money(2147483647);
  EXPECT_THROW(money += 1, FieldOverflow);
  EXPECT_EQ(2147483647, money);
}

TEST(Percent, SaturatesWhatIsStoredAndReadsWhatIsThere) {
  const struct {
    long long Stored;
    int Read;
  } rows[] = {{0, 0}, {100, 100}, {101, 100}, {-1, 0}, {1LL << 40, 100}, {-(1LL << 40), 0}};
  Percent percent;
  for (const auto& row : rows) {
    percent = row.Stored;
    EXPECT_EQ(row.Read, percent) << row.Stored;
  }
  percent = FromBytes<Percent>("\x8C\0"s);
  EXPECT_EQ(140, percent);
  percent += 0;
  EXPECT_EQ(100, percent);
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
  money -= 1LL << 50;
  EXPECT_EQ(-kMostDollars, money);
}

TEST(Flag, WritesMinusOneAndReadsAnyBit) {
  EXPECT_EQ("\xFF\xFF"s, BytesOf(Flag(true)));
  EXPECT_EQ("\0\0"s, BytesOf(Flag(false)));
  for (const std::string& bytes : {"\x01\0"s, "\0\x01"s, "\0\x80"s})
    EXPECT_TRUE(FromBytes<Flag>(bytes));
  EXPECT_EQ(5, FromBytes<Flag>("\x05\0"s).Raw());
}

TEST(Date, CountsDaysFromTheEndOf1899) {
  const struct {
    double Days;
    Day Read;
  } rows[] = {{0, year{1899} / 12 / 30},
              {-1, year{1899} / 12 / 29},
              {61, year{1900} / 3 / 1},
              {46082, year{2026} / 3 / 1},
              {46082.999, year{2026} / 3 / 1},
              {-657434, year{100} / 1 / 1},
              {2958465.9, year{9999} / 12 / 31},
              {2958466, kDayZero},
              {-657434.5, kDayZero},
              {1e300, kDayZero},
              {std::numeric_limits<double>::quiet_NaN(), kDayZero},
              {-std::numeric_limits<double>::infinity(), kDayZero},
              {std::numeric_limits<double>::denorm_min(), kDayZero}};
  for (const auto& row : rows) {
    Date date;
    date.SetRaw(row.Days);
    EXPECT_EQ(row.Read, Day(date)) << row.Days;
    EXPECT_EQ(row.Read == kDayZero, date.IsNone()) << row.Days;
  }
  EXPECT_EQ("\0\0\0\0\x40\x80\xE6\x40"s, BytesOf(Date(year{2026} / 3 / 1)));
}

TEST(Text, PadsCutsTrimsAndCompares) {
  const struct {
    std::string Stored, Bytes, Read;
  } rows[] = {{"", "     ", ""},
              {"CWA", "CWA  ", "CWA"},
              {"ABCDEFG", "ABCDE", "ABCDE"},
              {" AB", " AB  ", "AB"},
              {"ABCD F", "ABCD ", "ABCD"}};
  Text<5> text;
  for (const auto& row : rows) {
    text = row.Stored;
    EXPECT_EQ(row.Bytes, BytesOf(text)) << row.Stored;
    EXPECT_EQ(row.Read, text.Str()) << row.Stored;
  }
  text = "Nor";
  EXPECT_TRUE(text == "  Nor ");
  EXPECT_FALSE(text == "nor");
  EXPECT_FALSE(text == "Norm");
  EXPECT_TRUE(text == Text<3>("Nor"));
  EXPECT_EQ("-Nor!", "-" + text + "!");
  text = text.View().substr(1);
  EXPECT_EQ("or", text.View()) << "a piece of its own";
  EXPECT_EQ("\xE9\0\xFF\n"s, Text<4>("\xE9\0\xFF\n"s).View());
}

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

/// A hundred years and more, with the year 2000 that is a leap year and 2100 that is not.
TEST(Dates, AgreeWithAnotherCalendarAndReadAsTheScreensShowThem) {
  for (Day day = year{1995} / 1 / 1; day < Day{year{2105} / 1 / 1}; day += days{1}) {
    const std::tm parts = ByTheLibrary(day);
    ASSERT_EQ(Format("%A, %d %B %Y", parts), LongDate(day));
    ASSERT_EQ(Format("%d %B %Y", parts), PlainDate(day));
    ASSERT_EQ(Format("%d/%m/%y", parts), ShortDate(day));
    ASSERT_EQ(Format("%Y-%m-%d", parts), IsoDate(day));
    ASSERT_EQ(day, ParseIsoDate(IsoDate(day)));
    ASSERT_EQ(parts.tm_wday == 0 ? 7 : parts.tm_wday, DayNumber(DayName(day)));
    ASSERT_EQ(parts.tm_wday == 1, IsMonday(day));
    ASSERT_EQ(parts.tm_mday == 1, IsFirstOfMonth(day));
    const bool isLastWeek = ByTheLibrary(day + days{7}).tm_mon != parts.tm_mon;
    ASSERT_EQ(parts.tm_wday == 0 && isLastWeek, IsEventDay(day));
  }
}

TEST(Dates, NextFirstStaysOnAFirstAndElseMovesOn) {
  EXPECT_EQ(Day(year{2026} / 3 / 1), NextFirst(year{2026} / 3 / 1));
  EXPECT_EQ(Day(year{2027} / 1 / 1), NextFirst(year{2026} / 12 / 2));
  EXPECT_EQ(Day(year{2100} / 3 / 1), NextFirst(year{2100} / 2 / 28));
}

TEST(Dates, RefuseWhatIsOutsideTheCalendar) {
  for (const int month : {0, 13, -1, 32767}) EXPECT_EQ("", MonthName(month));
  for (const char* name : {"", "monday", "Sunday "}) EXPECT_EQ(0, DayNumber(name));
  for (const char* text : {"", "2026-3-1", "2026-02-29", "2100-02-29", "2026-13-01", "2026-00-10",
                           "2026-01-00", "2026/01/01", "20260101--", "2026-01-1x", "-026-01-01",
                           "2026-01-01 ", "2026-+1-01", "0099-01-01"})
    EXPECT_FALSE(ParseIsoDate(text)) << text;
  EXPECT_EQ(Day(year{2024} / 2 / 29), ParseIsoDate("2024-02-29"));
}

TEST(SeededDraws, AreTheSameOnEveryMachineAndSpendADrawWhereThereIsNoChoice) {
  SeededDraws draws(1), odd(1);
  for (const int n : {1, 0, -1, -32768}) EXPECT_EQ(1, odd.Draw(n));
  for (const int expected : {14, 14, 46, 3}) EXPECT_EQ(expected, draws.Draw(100));
  EXPECT_EQ(1, draws.Draw(1));
  for (const int expected : {92, 48, 8, 57, 64}) EXPECT_EQ(expected, draws.Draw(100));
  EXPECT_NE(MachineSeed(), MachineSeed());
}

TEST(SeededDraws, AreThoseOfTheMersenneTwisterAlsoInACopy) {
  for (const std::uint64_t seed : {0ull, 1ull, 0x123456789ABCDEFull, ~0ull}) {
    std::mt19937_64 engine(seed);
    SeededDraws draws(seed);
    constexpr int kMost = 2147483647;
    for (int i = 0; i < 1300; ++i) {  // four rounds of its 312 words
      const double uniform = static_cast<double>(engine() >> 11) * 0x1.0p-53;
      if (i % 97 == 0) draws = SeededDraws(draws);
      ASSERT_EQ(draws.Draw(kMost), static_cast<int>(uniform * kMost) + 1) << seed << ", " << i;
    }
  }
}

TEST(Arithmetic, TakesTheNearestSizeAndCutsSharesTowardsZero) {
  constexpr std::array<int, 6> kRows = {10, 20, 30, 40, 50, 60};
  EXPECT_EQ(BySize(kRows, kCult), 30);
  EXPECT_EQ(BySize(kRows, -32768), 10);
  EXPECT_EQ(BySize(kRows, 7), 60);
  EXPECT_EQ(PercentOf(19, 20), 3);
  EXPECT_EQ(PercentOf(-19, 20), -3);
  EXPECT_EQ(PercentOf(90000000, 120), 108000000);
}

}  // namespace

}  // namespace grapplemont
