#include "records/fields/fields.h"

#include <array>
#include <charconv>

namespace grapplemont {

FieldOverflow::FieldOverflow(const void* field, long long value, int bits)
    : std::range_error("The value " + std::to_string(value) + " does not fit a field of " +
                       std::to_string(bits) + " bits."),
      field_(field),
      value_(value) {}

Date& Date::operator=(Day day) {
  SetRaw(static_cast<double>((day - kDayZero).count()));
  return *this;
}

void Date::SetRaw(double days) {
  const auto bits = std::bit_cast<std::uint64_t>(days);
  for (int i = 0; i < 8; ++i) bytes_[i] = static_cast<std::uint8_t>(bits >> (8 * i));
}

namespace {

using namespace std::chrono;

constexpr std::array<std::string_view, 7> kDays = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                                   "Friday", "Saturday", "Sunday"};
constexpr std::array<std::string_view, 12> kMonths = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

std::string Digits(int number, int width) {
  std::string digits = std::to_string(number);
  if (static_cast<int>(digits.size()) < width)
    digits.insert(0, static_cast<std::size_t>(width) - digits.size(), '0');
  return digits;
}

std::optional<int> ParseNumber(std::string_view text) {
  int number = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (fault != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

}  // namespace

std::string_view DayName(Day day) {
  return kDays[weekday{day}.iso_encoding() - 1];
}

std::string_view MonthName(int month) {
  return month < 1 || month > 12 ? std::string_view()
                                 : kMonths[static_cast<std::size_t>(month - 1)];
}

int YearOf(Day day) {
  return int(year_month_day{day}.year());
}
int MonthOf(Day day) {
  return static_cast<int>(unsigned(year_month_day{day}.month()));
}
int DayOfMonth(Day day) {
  return static_cast<int>(unsigned(year_month_day{day}.day()));
}

int DayNumber(std::string_view dayName) {
  for (std::size_t i = 0; i < kDays.size(); ++i)
    if (kDays[i] == dayName) return static_cast<int>(i) + 1;
  return 0;
}

std::string LongDate(Day day) {
  return std::string(DayName(day)) + ", " + PlainDate(day);
}
std::string PlainDate(Day day) {
  return Digits(DayOfMonth(day), 2) + " " + MonthYear(day);
}
std::string MonthYear(Day day) {
  return std::string(MonthName(MonthOf(day))) + " " + Digits(YearOf(day), 4);
}
std::string ShortDate(Day day) {
  return Digits(DayOfMonth(day), 2) + "/" + Digits(MonthOf(day), 2) + "/" +
         Digits(YearOf(day) % 100, 2);
}
std::string IsoDate(Day day) {
  return Digits(YearOf(day), 4) + "-" + Digits(MonthOf(day), 2) + "-" + Digits(DayOfMonth(day), 2);
}

std::optional<Day> ParseIsoDate(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto years = ParseNumber(text.substr(0, 4));
  const auto months = ParseNumber(text.substr(5, 2));
  const auto days = ParseNumber(text.substr(8, 2));
  if (!years || !months || !days || *years < 100 || *months < 1 || *days < 1) return std::nullopt;
  const year_month_day date{year{*years}, month{static_cast<unsigned>(*months)},
                            day{static_cast<unsigned>(*days)}};
  if (!date.ok()) return std::nullopt;
  return Day{date};
}

bool IsMonday(Day day) {
  return weekday{day} == Monday;
}
bool IsFirstOfMonth(Day day) {
  return DayOfMonth(day) == 1;
}
bool IsEventDay(Day day) {
  return weekday{day} == Sunday && MonthOf(day + days{7}) != MonthOf(day);
}
Day NextFirst(Day day) {
  while (!IsFirstOfMonth(day)) day += days{1};
  return day;
}

}  // namespace grapplemont
