#include "roster/demands.h"

#include <algorithm>

#include "roster/talks.h"

namespace grapplemont {

namespace {

constexpr int kHighestOver = 100;

/// The lowest Over that claims the positions from Main Event 1 down to Jobber 6.
using Claims = std::array<int, 6>;
constexpr int kNotThere = kHighestOver + 1;
constexpr int kAnyOver = -32768;
// By size, Global to Backyard.
constexpr std::array<Claims, 6> kClaims = {{
    {91, 81, 71, 51, 31, kAnyOver},
    {86, 71, 61, 46, 21, kAnyOver},
    {66, 56, 41, 31, 11, kAnyOver},
    {56, 41, 31, 26, 11, kAnyOver},
    {36, 21, 11, 6, kAnyOver, kNotThere},
    {26, 11, kAnyOver, kNotThere, kNotThere, kNotThere},
}};

int PositionWanted(int size, const Worker& worker) {
  if (worker.Position == kNonWrestler || worker.Position == kManager) return worker.Position;
  if (worker.Over > kHighestOver) return worker.Behaviour < 40 ? kMainEvent : 0;
  const Claims& claims = BySize(kClaims, size);
  const auto claim =
      std::find_if(claims.begin(), claims.end(), [&](int over) { return worker.Over >= over; });
  return kMainEvent + static_cast<int>(claim - claims.begin());
}

/// From this age up a big promotion is asked for so many months.
struct AgeMonths {
  int From, Months;
};
constexpr std::array<AgeMonths, 6> kBigMonths = {
    {{40, 24}, {35, 36}, {30, 48}, {25, 36}, {17, 24}, {-32768, 12}}};
constexpr std::array<AgeMonths, 3> kMiddleMonths = {{{38, 12}, {25, 24}, {-32768, 12}}};

template <std::size_t N>
int MonthsAt(const std::array<AgeMonths, N>& rows, int age) {
  for (const AgeMonths& row : rows)
    if (age >= row.From) return row.Months;
  return rows.back().Months;
}

int MonthsWanted(int size, const Worker& worker) {
  if (size <= kNational) return MonthsAt(kBigMonths, worker.Age);
  if (size >= kSmall || worker.Over >= 61) return 6;
  return MonthsAt(kMiddleMonths, worker.Age);
}

int WageWanted(int size, const Worker& worker) {
  const int now = worker.Wage;
  int wage = now;
  if (size == kGlobal && worker.Age < 40) wage += PercentOf(now, 10);
  if (size == kNational && worker.Age < 40) wage += PercentOf(now, 5);
  if (size == kSmall && now >= 7) wage -= PercentOf(now, 5);
  if (size == kBackyard && now >= 3) wage -= PercentOf(now, 10);
  if (worker.Employer != 0) wage = PercentOf(wage, 120);
  return std::min(wage, kHighestWage);
}

bool WantsControl(const Worker& worker) {
  const bool isStar = worker.Attitude < 50 && worker.Age >= 31 && worker.Age <= 49 &&
                      worker.Over >= 91 && worker.Wage >= 250;
  return isStar || (worker.CreativeControl && worker.Age < 50);
}

}  // namespace

bool WantsWritten(int size, const Worker& worker) {
  return size < kCult || (size == kCult && worker.Over <= 50);
}

int RenewalWage(const Worker& worker) {
  const int position = worker.Position;
  const int percent = position < kMidcard ? 10 : position <= kLowerMidcard ? 5 : 1;
  return std::clamp(worker.Wage + PercentOf(worker.Wage, percent), 1, kHighestWage);
}

Demands ContractDemands(const World& world, const Worker& worker) {
  const int size = world.Player().Size;
  Demands demands;
  demands.Position = PositionWanted(size, worker);
  demands.Months = MonthsWanted(size, worker);
  demands.Written = WantsWritten(size, worker);
  demands.Wage = WageWanted(size, worker);
  demands.CreativeControl = WantsControl(worker);
  return demands;
}

}  // namespace grapplemont
