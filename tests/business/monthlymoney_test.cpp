#include "business/finance.h"

#include <gtest/gtest.h>

#include "business/sponsors.h"

namespace grapplemont::test {
namespace {

TEST(MerchBase, FollowsSizeAndImage) {
  struct Band {
    int Low, High;
    std::vector<int> BySize;
  };
  const Band kBands[] = {
      {80, 100, {4'000'000, 3'000'000, 2'000'000, 1'000'000, 100'000, 0}},
      {60, 79, {3'800'000, 2'800'000, 1'800'000, 800'000, 75'000, 0}},
      {40, 59, {3'600'000, 2'600'000, 1'600'000, 600'000, 50'000, 0}},
      {20, 39, {3'400'000, 2'400'000, 1'400'000, 400'000, 25'000, 0}},
      {0, 19, {3'200'000, 2'200'000, 1'200'000, 200'000, 10'000, 0}},
  };
  for (const Band& band : kBands)
    for (int size = kGlobal; size <= kBackyard; ++size)
      for (const int image : {band.Low, band.High})
        EXPECT_EQ(MerchBase(size, image), band.BySize[static_cast<std::size_t>(size - 1)])
            << size << " at " << image;
}

TEST(MerchandiseSales, AreCappedByTheLevelAndThenFollowTheEconomy) {
  struct Case {
    int Size, Image, Level, Economy, Sales;
  };
  constexpr Case kCases[] = {
      {kGlobal, 100, 100, 60, 2'400'000}, {kRegional, 65, 50, 60, 800'000},
      {kRegional, 65, 33, 60, 792'000},   {kSmall, 40, 3, 60, 50'000},
      {kSmall, 40, 2, 60, 48'000},        {kCult, 90, 0, 60, 0},
      {kBackyard, 90, 50, 60, 0},         {kRegional, 65, 33, 100, 950'400},
      {kRegional, 65, 33, 90, 950'400},   {kRegional, 65, 33, 89, 871'200},
      {kRegional, 65, 33, 81, 871'200},   {kRegional, 65, 33, 80, 792'000},
      {kRegional, 65, 33, 20, 792'000},   {kRegional, 65, 33, 19, 673'200},
      {kRegional, 65, 33, 10, 673'200},   {kRegional, 65, 33, 9, 594'000},
      {kRegional, 65, 33, 0, 594'000},    {kRegional, 65, 33, -4, 594'000},
      {kRegional, 65, 33, 103, 950'400},
  };
  for (const Case& c : kCases) {
    Promotion promotion;
    promotion.Size = c.Size;
    promotion.Image = c.Image;
    promotion.Merchandising = c.Level;
    EXPECT_EQ(MerchandiseSales(promotion, c.Economy), c.Sales)
        << c.Size << " level " << c.Level << " economy " << c.Economy;
  }
}

TEST(MonthlyCosts, GoByTheLevel) {
  EXPECT_EQ(AdvertisingCost(0), 0);
  EXPECT_EQ(AdvertisingCost(95), 950'000);
  EXPECT_EQ(MerchandisingCost(0), 0);
  EXPECT_EQ(MerchandisingCost(34), 680'000);
  constexpr int kProduction[][2] = {{0, 0},        {1, 1'000},      {20, 20'000},    {21, 105'000},
                                    {40, 200'000}, {41, 410'000},   {60, 600'000},   {61, 732'000},
                                    {80, 960'000}, {81, 1'782'000}, {100, 2'200'000}};
  for (const auto& [level, cost] : kProduction) EXPECT_EQ(ProductionCost(level), cost) << level;
}

TEST(TargetAdvertising, FollowsTheQuartersOfTheImage) {
  constexpr int kHighToLow[][4] = {{100, 95, 90, 85}, {80, 75, 70, 65}, {60, 55, 50, 45},
                                   {40, 35, 30, 25},  {20, 15, 10, 5},  {0, 0, 0, 0}};
  constexpr int kEdges[][2] = {{75, 100}, {50, 74}, {25, 49}, {0, 24}};
  for (int size = kGlobal; size <= kBackyard; ++size)
    for (int quarter = 0; quarter < 4; ++quarter)
      for (const int image : kEdges[quarter])
        EXPECT_EQ(TargetAdvertising(size, image), kHighToLow[size - 1][quarter])
            << size << " at " << image;
}

TEST(Spending, GoesBySizeAlone) {
  constexpr int kMerchandisingProductionPrice[][3] = {{100, 80, 60}, {80, 60, 40}, {60, 40, 30},
                                                      {40, 20, 20},  {20, 10, 10}, {0, 5, 5}};
  for (int size = kGlobal; size <= kBackyard; ++size) {
    const auto& [merchandising, production, price] = kMerchandisingProductionPrice[size - 1];
    EXPECT_EQ(RivalSpendingFor(size).Merchandising, merchandising);
    EXPECT_EQ(RivalSpendingFor(size).Production, production);
    EXPECT_EQ(FairTicketPrice(size), price);
  }
}

TEST(Sponsors, RefuseRiskAndThoseWhoAreTooSmall) {
  Sponsor sponsor;
  sponsor.Morality = 70;
  EXPECT_TRUE(BearsRisk(sponsor, 30));
  EXPECT_FALSE(BearsRisk(sponsor, 31));
  constexpr int kPlayer[][2] = {{1001, 801}, {751, 651}, {576, 476},
                                {401, 301},  {151, 101}, {51, 11}};
  constexpr int kRival[][2] = {{1001, 1001}, {921, 861}, {821, 701},
                               {601, 531},   {451, 321}, {251, 101}};
  for (int size = kGlobal; size <= kBackyard; ++size)
    for (const auto& [image, column] : {std::pair{100, 0}, {51, 0}, {50, 1}, {0, 1}}) {
      EXPECT_EQ(SponsorPayLimit(size, image), kPlayer[size - 1][column]) << size << " " << image;
      EXPECT_EQ(RivalSponsorPayLimit(size, image), kRival[size - 1][column])
          << size << " " << image;
    }
  sponsor.Pay = 99;
  EXPECT_EQ(SponsorPayForTv(sponsor, true), 24);
  EXPECT_EQ(SponsorPayForTv(sponsor, false), 9);
}

}  // namespace
}  // namespace grapplemont::test
