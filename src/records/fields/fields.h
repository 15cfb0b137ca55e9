#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

// Field types whose bytes are the file's bytes: alignment 1, little-endian, no padding. A record
// struct made of them is its own layout table.

namespace grapplemont {

/// A month count or index that says "no end", "nobody" or "no data".
inline constexpr int kNoEnd = -1;

/// A value that its field cannot hold; the field keeps what it held. `World::Explain` names record
/// and field.
class FieldOverflow : public std::range_error {
 public:
  FieldOverflow(const void* field, long long value, int bits);
  const void* Field() const { return field_; }
  long long Value() const { return value_; }

 private:
  const void* field_;
  long long value_;
};

namespace detail {

/// A signed little-endian whole number of `Bytes` bytes.
template <int Bytes>
class Integer {
 public:
  constexpr Integer() = default;
  constexpr operator int() const {
    std::uint32_t bits = 0;
    for (int i = 0; i < Bytes; ++i) bits |= std::uint32_t{bytes_[i]} << (8 * i);
    if constexpr (Bytes == 2) return static_cast<std::int16_t>(bits);
    return static_cast<std::int32_t>(bits);
  }

 protected:
  constexpr void Store(long long value) {
    constexpr long long kMost = (1LL << (8 * Bytes - 1)) - 1;
    if (value > kMost || value < -kMost - 1) throw FieldOverflow(this, value, 8 * Bytes);
    for (int i = 0; i < Bytes; ++i) bytes_[i] = static_cast<std::uint8_t>(value >> (8 * i));
  }

 private:
  std::uint8_t bytes_[Bytes] = {};
};

/// What every number field shares: it reads as an int and takes assignments through `Derived::Set`.
template <class Derived, int Bytes>
class Number : public Integer<Bytes> {
 public:
  constexpr Derived& operator=(long long value) { return Put(value); }
  constexpr Derived& operator+=(long long change) { return Put(int(*this) + change); }
  constexpr Derived& operator-=(long long change) { return Put(int(*this) - change); }
  constexpr Derived& operator++() { return Put(int(*this) + 1LL); }
  constexpr Derived& operator--() { return Put(int(*this) - 1LL); }

 private:
  constexpr Derived& Put(long long value) {
    auto& self = static_cast<Derived&>(*this);
    self.Set(value);
    return self;
  }
};

}  // namespace detail

/// 16 or 32 bits, signed. Storing a value outside them throws FieldOverflow.
template <int Bytes>
class Whole : public detail::Number<Whole<Bytes>, Bytes> {
 public:
  constexpr Whole() = default;
  constexpr explicit Whole(int value) { Set(value); }
  using detail::Number<Whole, Bytes>::operator=;
  constexpr void Set(long long value) { this->Store(value); }
};
using Word = Whole<2>;
using Long = Whole<4>;

/// 16 bits that hold a percentage: storing saturates to 0..100, reading gives what the file holds.
class Percent : public detail::Number<Percent, 2> {
 public:
  constexpr Percent() = default;
  constexpr explicit Percent(int value) { Set(value); }
  using Number::operator=;
  constexpr void Set(long long value) { Store(std::clamp(value, 0LL, 100LL)); }
};

/// A number that rules count with: storing saturates to Least..Most (with `OrNone` also kNoEnd),
/// reading gives what the file holds. The range is the field's in its record's list.
template <int Bytes, int Least, int Most, bool OrNone = false>
class Ranged : public detail::Number<Ranged<Bytes, Least, Most, OrNone>, Bytes> {
  using Base = detail::Number<Ranged, Bytes>;

 public:
  static constexpr int kLeast = Least, kMost = Most;
  static constexpr bool kOrNone = OrNone;

  constexpr Ranged() = default;
  constexpr explicit Ranged(int value) { Set(value); }
  using Base::operator=;
  constexpr void Set(long long value) {
    const bool isNone = OrNone && value == kNoEnd;
    this->Store(isNone ? value : std::clamp<long long>(value, Least, Most));
  }
};
template <int Least, int Most, bool OrNone = false>
using RangedWord = Ranged<2, Least, Most, OrNone>;
template <int Least, int Most>
using RangedLong = Ranged<4, Least, Most>;

/// Whole dollars, far beyond what a month of any game can move, and so far from the field's own end
/// that rules may add two of them.
inline constexpr int kMostDollars = 1000000000;
using Cash = RangedLong<-kMostDollars, kMostDollars>;
/// How often something has happened.
using Natural = RangedWord<0, 32767>;
/// A television rating, an audience or a buy rate: 10000 is everybody.
using Hundredths = RangedWord<0, 10000>;

/// 16 bits that hold a truth: -1 or 0 when written, any non-zero is true when read.
class Flag {
 public:
  constexpr Flag() = default;
  constexpr explicit Flag(bool value) { *this = value; }
  constexpr operator bool() const { return Raw() != 0; }
  constexpr Flag& operator=(bool value) {
    bytes_[0] = bytes_[1] = value ? 0xFF : 0;
    return *this;
  }
  constexpr int Raw() const { return static_cast<std::int16_t>(bytes_[0] | bytes_[1] << 8); }

 private:
  std::uint8_t bytes_[2] = {};
};

using Day = std::chrono::sys_days;

/// Day 0 of the file's calendar.
inline constexpr Day kDayZero{std::chrono::year{1899} / 12 / 30};

/// 8 bytes: days since 30 December 1899 as a floating-point number, its fraction the time of day.
class Date {
 public:
  Date() = default;
  explicit Date(Day day) { *this = day; }
  /// The calendar day; day zero for a number that is invalid or lies outside the years 100 to 9999.
  operator Day() const {
    constexpr double kFirst = -657434, kBehindLast = 2958466;
    const double raw = Raw();
    if (!(raw >= kFirst && raw < kBehindLast)) return kDayZero;
    const int cut = static_cast<int>(raw);
    return kDayZero + std::chrono::days{cut - (cut > raw)};
  }
  Date& operator=(Day day);
  double Raw() const {
    std::uint64_t bits = 0;
    for (int i = 0; i < 8; ++i) bits |= std::uint64_t{bytes_[i]} << (8 * i);
    return std::bit_cast<double>(bits);
  }
  void SetRaw(double days);
  bool IsNone() const { return Day(*this) == kDayZero; }

 private:
  std::uint8_t bytes_[8] = {};
};

namespace detail {
/// The text between the first and the last character that is not a blank.
inline std::string_view Trimmed(std::string_view text) {
  // Most of a padded field is blanks: eight of them at a time.
  constexpr char kBlanks[] = "        ";
  std::size_t from = 0, to = text.size();
  while (to >= 8 && std::memcmp(text.data() + to - 8, kBlanks, 8) == 0) to -= 8;
  while (to > 0 && text[to - 1] == ' ') --to;
  while (from < to && text[from] == ' ') ++from;
  return text.substr(from, to - from);
}
/// Whether two texts begin with different letters and are told apart by that alone, untrimmed.
inline bool BeginApart(char a, char b) {
  return a != b && a != ' ' && b != ' ';
}
}  // namespace detail

/// N bytes of Windows-1252 text, padded with blanks. Cuts what is longer; reads and compares
/// trimmed.
template <int N>
class Text {
 public:
  Text() { bytes_.fill(' '); }
  explicit Text(std::string_view text) { *this = text; }
  operator std::string_view() const { return View(); }
  std::string_view View() const { return detail::Trimmed({bytes_.data(), N}); }
  std::string Str() const { return std::string(View()); }
  Text& operator=(std::string_view text) {
    // The text may be a piece of this field's own: moved before the rest is blanked.
    const std::size_t length = std::min<std::size_t>(text.size(), N);
    if (length > 0) std::memmove(bytes_.data(), text.data(), length);
    std::fill(bytes_.begin() + static_cast<std::ptrdiff_t>(length), bytes_.end(), ' ');
    return *this;
  }
  friend bool operator==(const Text& a, std::string_view b) {
    if (!b.empty() && detail::BeginApart(a.First(), b.front())) return false;
    return a.View() == detail::Trimmed(b);
  }
  template <int M>
  friend bool operator==(const Text& a, const Text<M>& b) {
    if (detail::BeginApart(a.First(), b.First())) return false;
    return a.View() == b.View();
  }
  /// As the file has it, untrimmed.
  char First() const { return bytes_[0]; }
  static constexpr int kWidth = N;

 private:
  std::array<char, N> bytes_;
};

template <int N>
std::string operator+(const Text<N>& a, std::string_view b) {
  return a.Str().append(b);
}
template <int N>
std::string operator+(std::string_view a, const Text<N>& b) {
  return std::string(a).append(b.View());
}

// The calendar of the game. Day and month names are English whatever the machine speaks.

/// "Monday" to "Sunday".
std::string_view DayName(Day day);
/// "January" to "December", by number 1 to 12; empty for another number.
std::string_view MonthName(int month);
int YearOf(Day day);
int MonthOf(Day day);
int DayOfMonth(Day day);
/// 1 Monday to 7 Sunday; 0 for no day's name.
int DayNumber(std::string_view dayName);

std::string LongDate(Day day);   // "Monday, 09 March 2026"
std::string PlainDate(Day day);  // "09 March 2026"
std::string MonthYear(Day day);  // "March 2026"
std::string ShortDate(Day day);  // "09/03/26", the form of mails
std::string IsoDate(Day day);    // "2026-03-09"
std::optional<Day> ParseIsoDate(std::string_view text);

bool IsMonday(Day day);
bool IsFirstOfMonth(Day day);
/// The last Sunday of its month.
bool IsEventDay(Day day);
/// The day itself if it is the first of a month, else the first of the next.
Day NextFirst(Day day);

/// The marker for no date in a Title's history: 1 January 1980.
inline constexpr Day kNoTitleDate{std::chrono::year{1980} / 1 / 1};

}  // namespace grapplemont
