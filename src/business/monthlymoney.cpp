#include "business/monthlymoney.h"

#include <algorithm>
#include <array>

#include "business/economyfactor.h"
#include "records/arithmetic.h"

namespace grapplemont {

namespace {

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

template <std::size_t N>
int ByImage(const std::array<int, N>& bands, int image, int width) {
  return bands[std::min(static_cast<std::size_t>(std::max(image, 0) / width), N - 1)];
}

}  // namespace

int FairTicketPrice(int size) {
  return BySize(kFairTicketPrice, size);
}

int MerchBase(int size, int image) {
  return ByImage(BySize(kMerchBase, size), image, 20);
}

int MerchandiseCap(int level) {
  return level * kSalesPerMerchandising;
}

int MerchandiseSales(const Promotion& promotion, int economy) {
  if (promotion.Merchandising <= 0) return 0;
  const int sales =
      std::min(MerchBase(promotion.Size, promotion.Image), MerchandiseCap(promotion.Merchandising));
  return ByEconomy(sales, kMerchandiseEconomy, economy);
}

int AdvertisingCost(int level) {
  return level * kDollarsPerAdvertising;
}

int MerchandisingCost(int level) {
  return level * kDollarsPerMerchandising;
}

int ProductionCost(int level) {
  for (const ProductionRate& rate : kProductionRates)
    if (level <= rate.UpTo) return std::max(level, 0) * rate.PerPoint;
  return level * std::end(kProductionRates)[-1].PerPoint;
}

int TargetAdvertising(int size, int image) {
  return ByImage(BySize(kTargetAdvertising, size), image, 25);
}

RivalSpending RivalSpendingFor(int size) {
  return BySize(kRivalSpending, size);
}

}  // namespace grapplemont
