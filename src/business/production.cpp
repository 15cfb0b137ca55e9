#include "business/production.h"

#include <algorithm>

namespace grapplemont {

namespace {

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

}  // namespace

int ProductionRaiseCost(int production, int number) {
  const auto raise = static_cast<std::size_t>(number - 1);
  for (const RaisePrices& prices : kPrices)
    if (production <= prices.UpTo) return prices.Cost.at(raise);
  return kPrices.back().Cost.at(raise);
}

bool RaiseProduction(Promotion& promotion, int number) {
  const int cost = ProductionRaiseCost(promotion.Production, number);
  if (cost > promotion.Money) return false;
  promotion.Money -= cost;
  const int raise = kProductionRaises.at(static_cast<std::size_t>(number - 1));
  promotion.Production = std::min(promotion.Production + raise, kBestProduction);
  return true;
}

}  // namespace grapplemont
