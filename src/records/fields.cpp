#include "records/fields.h"

#include <cmath>

namespace grapplemont {

namespace {
// The years 100 to 9999, the range that the day count's calendar knows.
constexpr double kFirstDay = -657434, kLastDay = 2958465;
}  // namespace

FieldOverflow::FieldOverflow(const void* field, long long value, int bits)
    : std::range_error("The value " + std::to_string(value) + " does not fit a field of " +
                       std::to_string(bits) + " bits."),
      field_(field),
      value_(value) {}

Date::operator Day() const {
  const double days = std::floor(Raw());
  if (!(days >= kFirstDay && days <= kLastDay)) return kDayZero;
  return kDayZero + std::chrono::days{static_cast<int>(days)};
}

Date& Date::operator=(Day day) {
  SetRaw(static_cast<double>((day - kDayZero).count()));
  return *this;
}

double Date::Raw() const {
  std::uint64_t bits = 0;
  for (int i = 0; i < 8; ++i) bits |= std::uint64_t{bytes_[i]} << (8 * i);
  return std::bit_cast<double>(bits);
}

void Date::SetRaw(double days) {
  const auto bits = std::bit_cast<std::uint64_t>(days);
  for (int i = 0; i < 8; ++i) bytes_[i] = static_cast<std::uint8_t>(bits >> (8 * i));
}

namespace detail {
std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}
}  // namespace detail

}  // namespace grapplemont
