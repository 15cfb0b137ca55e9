#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "records/arithmetic.h"
#include "records/fields/companies.h"
#include "records/score.h"
#include "records/world.h"

namespace grapplemont {

/// One of the nine books of a month.
struct Book {
  const char* Title;
  Cash MonthBooks::*Total;  // dollars
};

// In the order in which they are read.
inline constexpr std::array<Book, 4> kIncome = {{{"Ticket sales", &MonthBooks::TicketIncome},
                                                 {"Merchandise", &MonthBooks::MerchIncome},
                                                 {"Pay-per-view", &MonthBooks::PpvIncome},
                                                 {"Sponsors", &MonthBooks::SponsorIncome}}};
inline constexpr std::array<Book, 5> kOutgoings = {
    {{"Workers' wages", &MonthBooks::WrestlerWages},
     {"Staff wages", &MonthBooks::StaffWages},
     {"Production", &MonthBooks::ProductionCost},
     {"Advertising", &MonthBooks::AdvertisingCost},
     {"Cost of merchandise", &MonthBooks::MerchCost}}};

// Sums of a month in dollars.
long long TotalIn(const MonthBooks& books);
long long TotalOut(const MonthBooks& books);
/// In less out; below 0 for a loss.
long long Balance(const MonthBooks& books);

/// More than so many dollars, or a greater debt, no month end leaves to anybody.
inline constexpr int kMostMoney = 90000000;

// The economy can run past its ends: the outermost bands have none.
inline constexpr int kAnyLow = -32768;
inline constexpr int kAnyHigh = 32767;

/// What the world's economy makes of an amount in one of its bands.
struct EconomyFactor {
  int From;
  int To;
  int Percent;
};

/// The amount by the band that the economy stands in; as it is between the bands.
constexpr int ByEconomy(int amount, std::span<const EconomyFactor> factors, int economy) {
  for (const EconomyFactor& factor : factors)
    if (economy >= factor.From && economy <= factor.To) return PercentOf(amount, factor.Percent);
  return amount;
}

/// The number of a table by an image's bands of `width` points, the lowest first.
template <std::size_t N>
constexpr int ByImage(const std::array<int, N>& bands, int image, int width) {
  return bands[std::min(static_cast<std::size_t>(std::max(image, 0) / width), N - 1)];
}

/// The first row that reaches up to the value, else the last.
template <class Rows>
constexpr const auto& RowUpTo(const Rows& rows, int value) {
  for (const auto& row : rows)
    if (value <= row.UpTo) return row;
  return std::end(rows)[-1];
}

// What the first of a month brings in and costs, in dollars, and the spending that a promotion's
// standing asks for. Sizes outside the six count as the nearest.

/// What people think a ticket is worth at this size, and what it costs when a game begins.
int FairTicketPrice(int size);
/// The highest price that they still call fair.
int DearestFairPrice(int size);

/// A month's sales of merchandise before the cap.
int MerchBase(int size, int image);
/// The most that a level of merchandising can sell.
int MerchandiseCap(int level);
/// A month's sales, capped and by the economy; 0 for a promotion that has no merchandise.
Score MerchandiseSales(const Promotion& promotion, int economy);

int AdvertisingCost(int level);
int MerchandisingCost(int level);
int ProductionCost(int level);
/// The same, and how it comes about.
Score ProductionBill(int level);

/// The level of advertising of a rival.
int TargetAdvertising(int size, int image);

/// The levels a rival keeps whenever its image has been looked at.
struct RivalSpending {
  int Merchandising;
  int Production;
};
RivalSpending RivalSpendingFor(int size);

/// What people say of a ticket at this price, from a promotion of this size.
std::string_view TicketOpinion(int size, int price);

// Buying better production values, once and for all; what they cost each month is in
// monthlymoney.h.

/// The steps, in points, by which production can be raised.
inline constexpr std::array<int, 3> kProductionRaises = {1, 5, 10};
inline constexpr int kBestProduction = 100;

/// Dollars for a raise from this level: the price of the raise `number` from 1 to 3 of
/// kProductionRaises.
int ProductionRaiseCost(int production, int number);
/// Pays for the raise; what would pass 100 stops there. False, and nothing has changed, when the
/// money is short.
bool RaiseProduction(World& world, int number);

// What several screens of the office say alike.

/// "Current finance: $1284500".
std::string FinanceText(const Promotion& promotion);

/// "20% \ $200000 p.m" for a level and what a month of it costs, "0% \ $0 p.m" for none.
std::string SpendingText(int level, int dollarsAMonth);

/// "$8333.33" for an amount in cents, "$25000" for whole dollars.
std::string DollarsAndCents(long long cents);

/// Whether the player's promotion has the sum, in thousands of dollars.
bool CanDonate(const World& world, int thousands);
/// The sum goes, and the player's reputation rises by a point for each thousand, up to 100.
/// Requires CanDonate.
void Donate(World& world, int thousands);

// Bank loans: one at a time, in steps of 100000 dollars.

inline constexpr int kLoanStep = 100000;  // dollars
inline constexpr int kMostLoanSteps = 100;

/// Months that a loan of this many steps runs: 12, 24 or 36.
int LoanTerm(int steps);
/// What a loan costs each month, in cents: the equal part to the cent and, by the difficulty, a
/// share of the whole sum. Months below 1 count as 1.
Score LoanQuote(int dollars, int months, int difficulty);
/// What a bank takes each month, in whole dollars. 0 for no loan.
int MonthlyRepayment(const Promotion& promotion, int difficulty);

/// The bank wants a quarter of the sum in hand. `why` gets what it weighed.
bool BankAccepts(const Promotion& promotion, int steps, Decision* why = nullptr);
/// Pays out a loan of this many steps. Requires that there is none.
void TakeLoan(World& world, int steps);

/// What it costs to be rid of the loan at once: the rest and, by the difficulty, a share of it.
Score PayOffCost(const Promotion& promotion, int difficulty);
/// False, and nothing has changed, when the money is short.
bool PayOffLoan(World& world);

/// Clears the four fields of the loan.
void ForgetLoan(Promotion& promotion);

}  // namespace grapplemont
