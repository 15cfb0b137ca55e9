#include "show/tvratings.h"

#include <algorithm>
#include <array>
#include <span>

#include "business/finance.h"

namespace grapplemont {

namespace {

/// One band of the image.
struct RateBand {
  int From;
  BaseAndDraw Rate;
};

constexpr RateBand kRegionalRates[] = {{0, {1, 3}},  {40, {3, 3}},  {50, {6, 3}},
                                       {60, {9, 3}}, {70, {12, 3}}, {80, {16, 4}}};
constexpr RateBand kCultRates[] = {{0, {20, 3}},  {20, {23, 3}}, {30, {25, 3}}, {40, {27, 3}},
                                   {50, {29, 3}}, {60, {31, 3}}, {70, {34, 3}}, {80, {36, 4}}};
constexpr RateBand kNationalRates[] = {{0, {40, 4}},  {20, {44, 4}}, {30, {48, 4}}, {40, {53, 4}},
                                       {50, {57, 4}}, {60, {62, 4}}, {70, {66, 4}}, {80, {76, 4}}};
constexpr RateBand kGlobalRates[] = {
    {0, {80, 4}},   {5, {85, 4}},   {10, {94, 4}},  {15, {100, 4}}, {20, {106, 4}},
    {25, {112, 4}}, {30, {118, 4}}, {35, {124, 4}}, {40, {130, 4}}, {45, {136, 4}},
    {50, {142, 4}}, {55, {148, 4}}, {60, {154, 4}}, {65, {160, 4}}, {70, {166, 4}},
    {75, {172, 4}}, {80, {178, 4}}, {85, {184, 4}}, {90, {190, 4}}, {95, {196, 4}}};
constexpr std::array<std::span<const RateBand>, 4> kBuyRates = {kGlobalRates, kNationalRates,
                                                                kCultRates, kRegionalRates};

constexpr EconomyFactor kBuyRateEconomy[] = {{20, 29, 90}, {10, 19, 80}, {kAnyLow, 9, 70}};
constexpr int kDollarsPerBuy = 25000;

// By size from Global to Small; by the image up to 20, 30 and so on to 100.
struct RatingRow {
  std::array<int, 9> Base;
  std::array<int, 9> Draw;
};
constexpr std::array<RatingRow, 5> kTvRatings = {{
    {{540, 560, 580, 600, 640, 680, 720, 760, 800}, {10, 10, 10, 10, 10, 10, 10, 10, 10}},
    {{300, 330, 360, 390, 420, 450, 480, 500, 520}, {10, 10, 10, 10, 10, 10, 10, 10, 10}},
    {{140, 160, 180, 200, 220, 240, 260, 280, 300}, {10, 10, 10, 10, 10, 10, 10, 10, 10}},
    {{40, 50, 60, 70, 80, 90, 100, 120, 140}, {10, 10, 10, 10, 10, 10, 10, 10, 10}},
    {{1, 2, 4, 6, 8, 9, 10, 20, 30}, {2, 2, 5, 5, 5, 5, 5, 5, 5}},
}};
constexpr BaseAndDraw kBackyardRating = {1, 2};

constexpr EconomyFactor kTvEconomy[] = {
    {91, kAnyHigh, 120}, {81, 90, 110}, {10, 19, 90}, {kAnyLow, 9, 80}};

}  // namespace

BaseAndDraw BuyRateBase(int size, int image) {
  if (size > kRegional) return {};
  const auto bands = kBuyRates[static_cast<std::size_t>(std::max(size, int(kGlobal)) - 1)];
  const auto above =
      std::find_if(bands.begin(), bands.end(), [=](auto& band) { return band.From > image; });
  return above == bands.begin() ? bands.front().Rate : above[-1].Rate;
}

int BuyRateByEconomy(int rate, int economy) {
  return ByEconomy(rate, kBuyRateEconomy, economy);
}

int BuyRate(World& world, const Promotion& promotion) {
  return BuyRateByEconomy(Drawn(world, BuyRateBase(promotion.Size, promotion.Image)),
                          world.Game().Economy);
}

int PpvIncome(int buyRate) {
  return buyRate * kDollarsPerBuy;
}

BaseAndDraw TvRatingBase(int size, int image) {
  if (size >= kBackyard) return kBackyardRating;
  const RatingRow& row = kTvRatings[static_cast<std::size_t>(std::max(size, int(kGlobal)) - 1)];
  const auto band = static_cast<std::size_t>(std::clamp((image - 1) / 10 - 1, 0, 8));
  return {row.Base[band], row.Draw[band]};
}

int TvRatingByEconomy(int rating, int size, int economy) {
  return size >= kBackyard ? rating : ByEconomy(rating, kTvEconomy, economy);
}

int TvBaseRating(World& world, int size, int image) {
  return TvRatingByEconomy(Drawn(world, TvRatingBase(size, image)), size, world.Game().Economy);
}

}  // namespace grapplemont
