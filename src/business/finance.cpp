#include "business/finance.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>

#include "business/beside.h"
#include "records/arithmetic.h"
#include "records/fields/wording.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

long long Sum(const MonthBooks& books, std::span<const Book> of) {
  long long sum = 0;
  for (const Book& book : of) sum += books.*book.Total;
  return sum;
}

// All by size, Global to Backyard.
constexpr std::array<int, 6> kFairTicketPrice = {60, 40, 30, 20, 10, 5};
constexpr std::array<RivalSpending, 6> kRivalSpending = {
    {{100, 80}, {80, 60}, {60, 40}, {40, 20}, {20, 10}, {0, 5}}};

// By fifths of the image, from the lowest.
constexpr std::array<std::array<int, 5>, 6> kMerchBase = {{
    {3200000, 3400000, 3600000, 3800000, 4000000},
    {2200000, 2400000, 2600000, 2800000, 3000000},
    {1200000, 1400000, 1600000, 1800000, 2000000},
    {200000, 400000, 600000, 800000, 1000000},
    {10000, 25000, 50000, 75000, 100000},
    {0, 0, 0, 0, 0},
}};

// By quarters of the image, from the lowest.
constexpr std::array<std::array<int, 4>, 6> kTargetAdvertising = {{
    {85, 90, 95, 100},
    {65, 70, 75, 80},
    {45, 50, 55, 60},
    {25, 30, 35, 40},
    {5, 10, 15, 20},
    {0, 0, 0, 0},
}};

constexpr EconomyFactor kMerchandiseEconomy[] = {
    {90, kAnyHigh, 120}, {81, 89, 110}, {10, 19, 85}, {kAnyLow, 9, 75}};

constexpr int kDollarsPerAdvertising = 10000;
constexpr int kDollarsPerMerchandising = 20000;
constexpr int kSalesPerMerchandising = 24000;

// A better picture costs more for every point of it, not only for the points on top.
struct ProductionRate {
  int UpTo;
  int PerPoint;  // dollars
};
constexpr ProductionRate kProductionRates[] = {
    {20, 1000}, {40, 5000}, {60, 10000}, {80, 12000}, {100, 22000}};

struct Opinion {
  int UpTo;  // dollars off the fair price
  std::string_view Words;
};
constexpr std::string_view kScandal = "Hardly anybody would pay that.";
constexpr std::array<Opinion, 6> kOpinions = {
    {{-11, "They cannot believe how little we ask."},
     {-6, "They are glad of the low price."},
     {5, "They find it a fair price."},
     {15, "They find it dear, and some stay at home."},
     {30, "They find it far too dear, and many stay at home."},
     {std::numeric_limits<int>::max(), kScandal}}};

struct RaisePrices {
  int UpTo;                 // present production
  std::array<int, 3> Cost;  // dollars, as kProductionRaises
};
constexpr std::array<RaisePrices, 10> kPrices = {{{10, {140, 525, 1000}},
                                                  {20, {1000, 4000, 7500}},
                                                  {30, {1500, 7000, 12500}},
                                                  {40, {2800, 13000, 25000}},
                                                  {50, {8000, 40000, 75000}},
                                                  {60, {15000, 60000, 100000}},
                                                  {70, {28000, 130000, 250000}},
                                                  {80, {70000, 280000, 500000}},
                                                  {90, {90000, 400000, 750000}},
                                                  {100, {110000, 520000, 1000000}}}};

/// Whole dollars of interest on the whole sum.
int InterestOn(int sum, int difficulty) {
  // Percent, by difficulty from 1 to 4.
  constexpr std::array<int, 4> kRates = {0, 2, 5, 8};
  return PercentOf(
      sum, kRates[static_cast<std::size_t>(std::clamp<int>(difficulty, kEasy, kRockHard) - 1)]);
}

struct LoanSize {
  int UpTo;  // steps
  int Months;
};
constexpr std::array<LoanSize, 3> kSizesOfLoans = {{{10, 12}, {25, 24}, {kMostLoanSteps, 36}}};

}  // namespace

long long TotalIn(const MonthBooks& books) {
  return Sum(books, kIncome);
}

long long TotalOut(const MonthBooks& books) {
  return Sum(books, kOutgoings);
}

long long Balance(const MonthBooks& books) {
  return TotalIn(books) - TotalOut(books);
}

int FairTicketPrice(int size) {
  return BySize(kFairTicketPrice, size);
}

int MerchBase(int size, int image) {
  return ByImage(BySize(kMerchBase, size), image, 20);
}

int MerchandiseCap(int level) {
  return level * kSalesPerMerchandising;
}

Score MerchandiseSales(const Promotion& promotion, int economy) {
  Score sales;
  if (promotion.Merchandising <= 0) return sales;
  sales.Add(MerchBase(promotion.Size, promotion.Image), "size and image");
  sales.Become(
      std::min<int>(sales, MerchandiseCap(promotion.Merchandising)),
      "merchandising of " + std::to_string(promotion.Merchandising) + "% can sell no more");
  sales.Become(ByEconomy(sales, kMerchandiseEconomy, economy),
               "economy " + std::to_string(economy));
  return sales;
}

int AdvertisingCost(int level) {
  return level * kDollarsPerAdvertising;
}

int MerchandisingCost(int level) {
  return level * kDollarsPerMerchandising;
}

int ProductionCost(int level) {
  return ProductionBill(level);
}

Score ProductionBill(int level) {
  const int points = std::max(level, 0), rate = RowUpTo(kProductionRates, level).PerPoint;
  Score bill;
  bill.Add(points * rate, Counted(points, "point") + " of production at " + Dollars(rate) +
                              " each; the higher the level, the dearer every point");
  return bill;
}

int TargetAdvertising(int size, int image) {
  return ByImage(BySize(kTargetAdvertising, size), image, 25);
}

RivalSpending RivalSpendingFor(int size) {
  return BySize(kRivalSpending, size);
}

std::string_view TicketOpinion(int size, int price) {
  const int fair = FairTicketPrice(size);
  // A small promotion's crowd walks away long before the dollars add up.
  if (price > 2 * fair) return kScandal;
  return RowUpTo(kOpinions, price - fair).Words;
}

int DearestFairPrice(int size) {
  int price = FairTicketPrice(size);
  const std::string_view fair = TicketOpinion(size, price);
  while (TicketOpinion(size, price + 1) == fair) ++price;
  return price;
}

int ProductionRaiseCost(int production, int number) {
  return RowUpTo(kPrices, production).Cost.at(static_cast<std::size_t>(number - 1));
}

bool RaiseProduction(World& world, int number) {
  Promotion& promotion = world.Player();
  const int cost = ProductionRaiseCost(promotion.Production, number);
  if (cost > promotion.Money) return false;
  MoveBeside(world, promotion, -cost, "Better production");
  const int raise = kProductionRaises.at(static_cast<std::size_t>(number - 1));
  promotion.Production = std::min(promotion.Production + raise, kBestProduction);
  return true;
}

std::string FinanceText(const Promotion& promotion) {
  return "Current finance: $" + std::to_string(promotion.Money);
}

std::string SpendingText(int level, int dollarsAMonth) {
  return std::to_string(level) + "% \\ $" + std::to_string(dollarsAMonth) + " p.m";
}

std::string DollarsAndCents(long long cents) {
  std::string text = "$" + std::to_string(cents / 100);
  if (const auto rest = std::to_string(cents % 100); cents % 100 != 0)
    text += (rest.size() < 2 ? ".0" : ".") + rest;
  return text;
}

bool CanDonate(const World& world, int thousands) {
  return thousands * 1000 <= world.Player().Money;
}

void Donate(World& world, int thousands) {
  world.Game().Reputation += thousands;
  MoveBeside(world, world.Player(), -1000LL * thousands, "Donations");
}

int LoanTerm(int steps) {
  return RowUpTo(kSizesOfLoans, steps).Months;
}

Score LoanQuote(int dollars, int months, int difficulty) {
  const long long divisor = std::max(months, 1);
  Score quote;
  quote.Add((dollars * 100LL + divisor / 2) / divisor,
            "the equal part of " + Counted(divisor, "month"));
  quote.Add(InterestOn(dollars, difficulty) * 100LL,
            "what the bank takes of the whole sum by the difficulty");
  return quote;
}

int MonthlyRepayment(const Promotion& promotion, int difficulty) {
  const int base = promotion.LoanAmount / kLoanStep * kLoanStep;
  const long long whole = InterestOn(base, difficulty) +
                          static_cast<long long>(base) / std::max<int>(promotion.LoanMonths, 1);
  return static_cast<int>(std::min<long long>(whole, std::numeric_limits<int>::max()));
}

bool BankAccepts(const Promotion& promotion, int steps, Decision* why) {
  const int quarter = steps * kLoanStep / 4;
  return Weigh(why, quarter <= promotion.Money,
               "The bank wants a quarter of the sum in hand, " + Dollars(quarter) + "; we have " +
                   Dollars(promotion.Money) + ".");
}

void TakeLoan(World& world, int steps) {
  Promotion& promotion = world.Player();
  ForgetLoan(promotion);
  promotion.LoanAmount = steps * kLoanStep;
  promotion.LoanMonths = LoanTerm(steps);
  MoveBeside(world, promotion, steps * kLoanStep, "A loan");
}

Score PayOffCost(const Promotion& promotion, int difficulty) {
  const int rest = std::max(promotion.LoanAmount - promotion.LoanRepaid, 0);
  Score cost;
  cost.Add(rest, "what is still to be repaid");
  cost.Add(InterestOn(rest, difficulty), "what the bank takes of it by the difficulty");
  return cost;
}

bool PayOffLoan(World& world) {
  Promotion& promotion = world.Player();
  const long long cost = PayOffCost(promotion, world.Game().Difficulty).Whole();
  if (cost > promotion.Money) return false;
  MoveBeside(world, promotion, -cost, kRepayment);
  ForgetLoan(promotion);
  return true;
}

void ForgetLoan(Promotion& promotion) {
  promotion.LoanAmount = 0;
  promotion.LoanMonths = 0;
  promotion.LoanRepaid = 0;
  promotion.LoanMissed = 0;
}

}  // namespace grapplemont
