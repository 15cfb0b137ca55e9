#include "show/charges.h"

#include <algorithm>
#include <array>

#include "business/tvshows.h"
#include "records/arithmetic.h"

namespace grapplemont {

namespace {

/// So much below what the size asks for, and the sum loses so much; every limit passed charges.
struct Charge {
  int Margin;
  int Amount;
};
constexpr std::array<Charge, 4> kAnnouncerCharges = {{{5, 20}, {10, 20}, {20, 20}, {30, 40}}};
constexpr std::array<Charge, 4> kColourCharges = {{{5, 5}, {10, 10}, {20, 15}, {30, 30}}};
constexpr std::array<Charge, 5> kProductionCharges = {
    {{5, 10}, {10, 10}, {20, 10}, {30, 10}, {50, 20}}};

// By size, Global to Backyard.
constexpr std::array<int, 6> kWantedProduction = {85, 65, 60, 40, 10, 5};

constexpr int kSpeechlessCharge = 100;

int WantedProduction(int size) {
  return BySize(kWantedProduction, size);
}

template <std::size_t N>
int Charged(const std::array<Charge, N>& charges, int have, int want) {
  int sum = 0;
  for (const Charge& charge : charges)
    if (have + charge.Margin < want) sum -= charge.Amount;
  return sum;
}

/// An empty chair does not charge the sum: it makes it true or false that it stood at a number.
int EmptyChair(int sum, int number) {
  return sum == number ? -1 : 0;
}

}  // namespace

int WithAnnouncer(const World& world, int announcer, int sum) {
  const Staff* staff = world.FindStaff(announcer);
  if (!staff) return EmptyChair(sum, 100);
  return sum + Charged(kAnnouncerCharges, staff->Talent, WantedTalent(world.Player().Size));
}

int WithColour(const World& world, int colour, bool isWorker, int sum) {
  const Worker* worker = isWorker ? world.FindWorker(colour) : nullptr;
  const Staff* staff = isWorker ? nullptr : world.FindStaff(colour);
  if (!worker && !staff) return EmptyChair(sum, 40);
  const int have = worker ? worker->Charisma : staff->Talent;
  sum += Charged(kColourCharges, have, WantedTalent(world.Player().Size));
  return worker && !worker->Speaks ? sum - kSpeechlessCharge : sum;
}

int ProductionCharge(const Promotion& promotion) {
  return Charged(kProductionCharges, promotion.Production, WantedProduction(promotion.Size));
}

}  // namespace grapplemont
