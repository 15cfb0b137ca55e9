#include "show/attendance.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <span>

#include "business/finance.h"
#include "records/arithmetic.h"
#include "records/modVar.h"
#include "show/crowdtables.h"

namespace grapplemont {

namespace {

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

bool LiesBeyond(int off, int step) {
  return step < 0 ? off < step : off > step;
}

BaseAndDraw InBand(const CrowdRow& row, int image) {
  const auto band = static_cast<std::size_t>(std::clamp(image / 10, 0, 9));
  return {row.Base[band], row.Draw[band]};
}

std::string PriceInWords(int off) {
  return "tickets " + Dollars(std::abs(off)) + (off < 0 ? " below" : " above") + " the fair price";
}

int PeopleAtPrice(int people, int off) {
  for (const PriceStep& step : kPriceSteps)
    if (LiesBeyond(off, step.Off)) people = PercentOf(people, step.Percent);
  return people;
}

Score GateOf(int crowd, const Gate& gate, std::span<const EconomyFactor> economy) {
  Score people;
  people.Add(crowd, "size and image");
  people.Become(ByEconomy(people, economy, gate.Economy),
                "economy " + std::to_string(gate.Economy));
  const int off = gate.TicketPrice - FairTicketPrice(gate.Size);
  people.Become(PeopleAtPrice(people, off), PriceInWords(off));
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
  return InBand(BySize(EventCrowds[static_cast<std::size_t>(type - 1)], size), image);
}

BaseAndDraw TvCrowd(int size, int image) {
  return InBand(BySize(TvCrowds, size), image);
}

Score EventGate(int crowd, const Gate& gate) {
  return GateOf(crowd, gate, kEventEconomy);
}

Score TvGate(int crowd, const Gate& gate) {
  return GateOf(crowd, gate, kTvEconomy);
}

Score EventAttendance(World& world, const Promotion& promotion, int type) {
  return EventGate(Drawn(world, EventCrowd(type, promotion.Size, promotion.Image)),
                   GateFor(world, promotion));
}

Score TvAttendance(World& world, const Promotion& promotion) {
  return TvGate(Drawn(world, TvCrowd(promotion.Size, promotion.Image)), GateFor(world, promotion));
}

bool IsNobodysPrice(int size, int ticketPrice) {
  return ticketPrice >= BySize(kNobodysPrice, size);
}

int EventProductionCost(int type) {
  constexpr std::array<int, 4> kCosts = {1500000, 200000, 25000, 1000};
  return type < 1 || type > 4 ? 0 : kCosts[static_cast<std::size_t>(type - 1)];
}

}  // namespace grapplemont
