#include "show/attendance.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <span>

#include "business/finance.h"
#include "records/arithmetic.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

/// People by tenths of the image, from below 10 to 90 up.
using Bands = std::array<int, 10>;
struct CrowdRow {
  Bands Base, Draw;
};
using CrowdsBySize = std::array<CrowdRow, 6>;

constexpr Bands Each(int value) {
  Bands bands{};
  bands.fill(value);
  return bands;
}

constexpr Bands FirstThen(int first, int above) {
  Bands bands = Each(above);
  bands[0] = first;
  return bands;
}

constexpr CrowdRow kNone = {Each(0), Each(0)};

constexpr CrowdsBySize kPayPerViews = {{
    {{10000, 11000, 12000, 13000, 14000, 15000, 16000, 17000, 18000, 20000}, Each(1000)},
    {{4500, 5000, 5500, 6000, 6500, 7000, 7500, 8000, 8500, 9000}, Each(200)},
    {{3200, 3400, 3500, 3600, 3700, 3800, 3900, 4000, 4100, 4200}, Each(100)},
    {{1200, 1400, 1600, 1800, 2000, 2200, 2400, 2600, 2800, 3000}, Each(100)},
    kNone,
    kNone,
}};

constexpr CrowdsBySize kLargeEvents = {{
    {Each(5000), Each(500)},
    {{3200, 3400, 3500, 3600, 3700, 3800, 3900, 4000, 4100, 4200}, Each(100)},
    {{1200, 1400, 1600, 1800, 2000, 2200, 2400, 2600, 2800, 3000}, Each(100)},
    {{500, 550, 600, 650, 700, 800, 900, 1000, 1100, 1200},
     {50, 50, 50, 50, 100, 100, 100, 100, 100, 100}},
    {{75, 100, 150, 200, 250, 300, 350, 400, 450, 500}, {10, 10, 20, 20, 20, 50, 50, 50, 50, 50}},
    {Each(50), Each(100)},
}};

constexpr CrowdsBySize kMediumEvents = {{
    {Each(2000), Each(500)},
    {Each(1500), Each(250)},
    {{400, 450, 500, 600, 700, 800, 900, 1000, 1100, 1200}, Each(50)},
    {{250, 275, 300, 325, 350, 375, 400, 425, 450, 500}, Each(20)},
    {{90, 100, 110, 130, 150, 170, 200, 225, 250, 300}, Each(10)},
    {{10, 20, 30, 40, 50, 60, 70, 80, 90, 100}, Each(10)},
}};

constexpr CrowdsBySize kSmallEvents = {{
    {Each(1000), Each(200)},
    {Each(1000), Each(100)},
    {Each(750), Each(250)},
    {Each(500), Each(200)},
    {{10, 20, 30, 40, 60, 80, 110, 140, 170, 200}, Each(10)},
    {{1, 10, 15, 20, 25, 30, 35, 40, 45, 50}, Each(5)},
}};

/// By Event.Type from 1 pay-per-view to 4 small, then by size from Global to Backyard. All 0 where
/// a promotion is too small to hold such an Event.
constexpr std::array<CrowdsBySize, 4> kEventCrowds = {kPayPerViews, kLargeEvents, kMediumEvents,
                                                      kSmallEvents};

// A Global promotion that has just fallen below 20 draws less than one that is nearly gone: the
// curious come to the end.
constexpr CrowdsBySize kTvCrowds = {{
    {{4500, 4000, 5000, 6000, 6500, 7000, 7500, 8000, 9000, 10000}, Each(50)},
    {{600, 800, 1000, 1250, 1500, 1750, 2000, 2500, 3000, 3500}, FirstThen(20, 10)},
    {{300, 320, 340, 360, 380, 400, 420, 440, 460, 500}, Each(20)},
    {{120, 130, 140, 150, 160, 170, 180, 190, 200, 210}, FirstThen(5, 10)},
    {{10, 20, 30, 40, 50, 60, 70, 80, 90, 100}, FirstThen(5, 10)},
    {Each(1), Each(9)},
}};

constexpr EconomyFactor kEventEconomy[] = {
    {86, kAnyHigh, 110}, {20, 29, 90}, {10, 19, 80}, {kAnyLow, 9, 70}};
// A weekly show follows good times more than an Event, and bad ones later.
constexpr EconomyFactor kTvEconomy[] = {
    {91, kAnyHigh, 120}, {81, 90, 110}, {10, 19, 80}, {kAnyLow, 9, 70}};

/// What a price does to the crowd, one step after the other on the last result.
struct PriceStep {
  int Off;  // dollars from the fair price; the step counts when the price lies beyond
  int Percent;
};
constexpr PriceStep kPriceSteps[] = {{-5, 110}, {-10, 125}, {5, 90},  {10, 80},
                                     {15, 70},  {20, 60},   {25, 50}, {30, 40}};

// By size, Global to Backyard: the price from which on nobody comes.
constexpr int kAnyPrice = std::numeric_limits<int>::max();
constexpr std::array<int, 6> kNobodysPrice = {kAnyPrice, kAnyPrice, 71, 51, 26, 16};

BaseAndDraw InBand(const CrowdRow& row, int image) {
  const auto band = static_cast<std::size_t>(std::clamp(image / 10, 0, 9));
  return {row.Base[band], row.Draw[band]};
}

std::string PriceInWords(int off) {
  if (off == 0) return "tickets at the fair price";
  return "tickets " + Dollars(std::abs(off)) + (off < 0 ? " below" : " above") + " the fair price";
}

int PeopleAtPrice(int people, int off) {
  for (const PriceStep& step : kPriceSteps)
    if (step.Off < 0 ? off < step.Off : off > step.Off) people = PercentOf(people, step.Percent);
  return people;
}

/// The base, then what chance puts on top of it. Draws as Drawn does.
Score DrawnInSteps(World& world, BaseAndDraw amount, int size, int image) {
  Score number;
  number.Add(amount.Base,
             std::string(SizeText(size)) + " with an image of " + std::to_string(image) + "%");
  number.Add(Drawn(world, amount) - amount.Base,
             "luck of the day, 1 to " + std::to_string(amount.Draw));
  return number;
}

Score AsOne(int number) {
  Score score;
  score.Add(number, "the crowd");
  return score;
}

void FollowEconomy(Score& number, std::span<const EconomyFactor> factors, int economy) {
  number.Weigh(ByEconomy(number, factors, economy), "economy " + std::to_string(economy));
}

Score GateOf(Score people, const Gate& gate, std::span<const EconomyFactor> economy) {
  FollowEconomy(people, economy, gate.Economy);
  const int off = gate.TicketPrice - FairTicketPrice(gate.Size);
  people.Weigh(PeopleAtPrice(people, off), PriceInWords(off));
  if (IsNobodysPrice(gate.Size, gate.TicketPrice))
    people.Become(0, "nobody pays " + Dollars(gate.TicketPrice));
  return people;
}

Gate GateFor(const World& world, const Promotion& promotion) {
  return {promotion.Size, promotion.TicketPrice, world.Game().Economy};
}

}  // namespace

BaseAndDraw EventCrowd(int type, int size, int image) {
  if (type < 1 || type > 4) return {};
  return InBand(BySize(kEventCrowds[static_cast<std::size_t>(type - 1)], size), image);
}

BaseAndDraw TvCrowd(int size, int image) {
  return InBand(BySize(kTvCrowds, size), image);
}

Score EventGate(int crowd, const Gate& gate) {
  return GateOf(AsOne(crowd), gate, kEventEconomy);
}

Score TvGate(int crowd, const Gate& gate) {
  return GateOf(AsOne(crowd), gate, kTvEconomy);
}

Score EventAttendance(World& world, const Promotion& promotion, int type) {
  const int size = promotion.Size, image = promotion.Image;
  return GateOf(DrawnInSteps(world, EventCrowd(type, size, image), size, image),
                GateFor(world, promotion), kEventEconomy);
}

Score TvAttendance(World& world, const Promotion& promotion) {
  const int size = promotion.Size, image = promotion.Image;
  return GateOf(DrawnInSteps(world, TvCrowd(size, image), size, image), GateFor(world, promotion),
                kTvEconomy);
}

bool IsNobodysPrice(int size, int ticketPrice) {
  return ticketPrice >= BySize(kNobodysPrice, size);
}

int EventProductionCost(int type) {
  constexpr std::array<int, 4> kCosts = {1500000, 200000, 25000, 1000};
  return type < 1 || type > 4 ? 0 : kCosts[static_cast<std::size_t>(type - 1)];
}

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

// By size; by the image from 11, 21 and so on, a little later than the crowds.
constexpr CrowdsBySize kTvRatings = {{
    {{540, 540, 560, 580, 600, 640, 680, 720, 760, 800}, Each(10)},
    {{300, 300, 330, 360, 390, 420, 450, 480, 500, 520}, Each(10)},
    {{140, 140, 160, 180, 200, 220, 240, 260, 280, 300}, Each(10)},
    {{40, 40, 50, 60, 70, 80, 90, 100, 120, 140}, Each(10)},
    {{1, 1, 2, 4, 6, 8, 9, 10, 20, 30}, {2, 2, 2, 5, 5, 5, 5, 5, 5, 5}},
    {Each(1), Each(2)},
}};

constexpr EconomyFactor kViewerEconomy[] = {
    {91, kAnyHigh, 120}, {81, 90, 110}, {10, 19, 90}, {kAnyLow, 9, 80}};

}  // namespace

BaseAndDraw BuyRateBase(int size, int image) {
  if (size > kRegional) return {};
  const auto bands = kBuyRates[static_cast<std::size_t>(std::max(size, int(kGlobal)) - 1)];
  const auto above =
      std::find_if(bands.begin(), bands.end(), [=](auto& band) { return band.From > image; });
  return above == bands.begin() ? bands.front().Rate : above[-1].Rate;
}

Score BuyRate(World& world, const Promotion& promotion) {
  const int size = promotion.Size, image = promotion.Image;
  Score rate = DrawnInSteps(world, BuyRateBase(size, image), size, image);
  FollowEconomy(rate, kBuyRateEconomy, world.Game().Economy);
  return rate;
}

int PpvIncome(int buyRate) {
  return buyRate * kDollarsPerBuy;
}

BaseAndDraw TvRatingBase(int size, int image) {
  return InBand(BySize(kTvRatings, size), image - 1);
}

Score TvBaseRating(World& world, int size, int image) {
  Score rating = DrawnInSteps(world, TvRatingBase(size, image), size, image);
  if (size < kBackyard) FollowEconomy(rating, kViewerEconomy, world.Game().Economy);
  return rating;
}

}  // namespace grapplemont
