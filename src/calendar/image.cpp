#include "calendar/image.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "business/finance.h"
#include "calendar/events.h"
#include "records/arithmetic.h"
#include "records/fields/vocabulary.h"
#include "records/houserules.h"
#include "records/modVar.h"
#include "rivals/rivals.h"
#include "roster/invented.h"

namespace grapplemont {

namespace {

void TellOfClass(World& world, const Promotion& promotion, const std::string& moved) {
  const std::string level = moved + std::string(SizeText(promotion.Size)) + " level.";
  if (IsPlayers(world, promotion))
    AddNews(world, "Maeve", "We have" + level);
  else
    TellOf(world, world.Game().MailOtherFed, promotion, promotion.Initials + " have" + level);
}

void OwnersQuit(World& world, const Promotion& promotion) {
  for (Staff& staff : world.AllStaff()) {
    if (staff.Employer != promotion.Uid || staff.Position != kOwner || staff.Unsackable) continue;
    staff.Employer = 0;
    NoteDeed(world, kDeedOwnerQuit, &promotion, staff.Name);
    if (IsPlayers(world, promotion) || ShouldTell(world, world.Game().MailOwners, promotion.Size))
      AddNews(world, promotion.Initials + " News",
              "Owner " + staff.Name.Str() + " has quit " + promotion.Initials.Str() + ".");
  }
}

/// The floor holds up whoever stands above it; it lifts nobody.
void FallWithIt(World& world, Worker& worker) {
  const int floor = std::min<int>(worker.Over, worker.OverFloor);
  worker.Over = std::max(worker.Over - world.RandomDraw(kOverOfFall), floor);
}

void FallInClass(World& world, Promotion& promotion) {
  promotion.Size += 1;
  promotion.Image = kAfterAFall;
  if (IsPlayers(world, promotion)) world.Session.StartSize = promotion.Size;
  NoteDeed(world, kDeedFallen, &promotion, promotion.Name, {}, promotion.Size);
  TellOfClass(world, promotion, " fallen to ");
  if (IsPlayers(world, promotion) &&
      (world.RandomDraw(3) == 3 || Holds(world, HouseRule::HarderBoards)))
    world.Game().EndCode = kEndBoard;
  for (Worker& worker : world.Workers())
    if (worker.Employer == promotion.Uid) FallWithIt(world, worker);
  OwnersQuit(world, promotion);
}

bool SharesTheRise(const Worker& worker, const Promotion& promotion) {
  return worker.Employer == promotion.Uid && worker.Position != kDevelopmentDeal &&
         worker.Position != kTrainingCamp && worker.Position < 79;
}

void RiseWithIt(World& world, Worker& worker) {
  worker.Over +=
      world.RandomDraw(kOverOfRise) + (worker.Position == kMainEvent ? kMainEventersRise : 0);
  worker.OverFloor = std::max<int>(worker.OverFloor, OverFloorFor(worker.Over));
  worker.Potential = std::max(worker.OverFloor + kPotentialAboveFloor, kLeastPotential);
}

void RiseInClass(World& world, Promotion& promotion) {
  promotion.Size -= 1;
  promotion.Image = kAfterARise;
  if (IsPlayers(world, promotion)) world.Session.StartSize = promotion.Size;
  NoteDeed(world, kDeedRisen, &promotion, promotion.Name, {}, promotion.Size);
  TellOfClass(world, promotion, " risen to ");
  for (Worker& worker : world.Workers())
    if (SharesTheRise(worker, promotion)) RiseWithIt(world, worker);
}

/// Rivals spend by their standing, whatever has become of it.
void SpendByStanding(Promotion& rival) {
  const RivalSpending spending = RivalSpendingFor(rival.Size);
  rival.Advertising = TargetAdvertising(rival.Size, rival.Image);
  rival.Merchandising = spending.Merchandising;
  rival.Production = spending.Production;
  rival.TicketPrice = FairTicketPrice(rival.Size);
}

}  // namespace

void ChangeImage(World& world, Promotion& promotion, int amount, bool gain) {
  promotion.Image += gain ? amount : -amount;
  if (gain && promotion.Image == 100 && promotion.Size != kGlobal) RiseInClass(world, promotion);
  if (!gain && promotion.Image == 0 && promotion.Size != kBackyard) FallInClass(world, promotion);
  if (!IsPlayers(world, promotion)) SpendByStanding(promotion);
  for (Event& event : world.Events())
    if (event.Owner == promotion.Uid) event.Type = NewEventType(promotion);
}

void MoveImage(World& world, Promotion& promotion, int step) {
  ChangeImage(world, promotion, step < 0 ? -step : step, step >= 0);
}

namespace {

/// The rows fall, and one from 0 is for all that is left.
using Bands = std::array<ImageBand, 8>;

// By HeldShow and by size, Global to Backyard. A Backyard television show of 90 jumps a class
// almost at once: meant so.
constexpr std::array<Bands, 6> kSteps[] = {
    {{{{{90, 5}, {80, 4}, {60, 2}, {40, -3}, {20, -7}, {0, -15}}},
      {{{90, 6}, {80, 3}, {60, 1}, {40, -3}, {20, -5}, {0, -12}}},
      {{{90, 10}, {80, 4}, {60, 2}, {40, -1}, {20, -2}, {0, -5}}},
      {{{90, 10}, {80, 6}, {60, 3}, {50, 1}, {40, 0}, {30, -1}, {20, -2}, {0, -5}}},
      {{{90, 10}, {80, 6}, {60, 3}, {50, 2}, {40, 1}, {30, -2}, {20, -3}, {0, -5}}},
      {{{90, 10}, {80, 6}, {60, 3}, {50, 2}, {20, 1}, {0, -2}}}}},
    {{{{{90, 3}, {80, 2}, {60, 1}, {40, -3}, {20, -7}, {0, -15}}},
      {{{90, 3}, {80, 2}, {60, 1}, {40, -3}, {20, -5}, {0, -12}}},
      {{{90, 4}, {80, 2}, {60, 1}, {40, -1}, {20, -2}, {0, -5}}},
      {{{90, 4}, {80, 2}, {50, 1}, {40, 0}, {30, -1}, {20, -2}, {0, -5}}},
      {{{90, 5}, {80, 4}, {60, 3}, {50, 2}, {40, 1}, {30, -2}, {20, -3}, {0, -5}}},
      {{{90, 25}, {80, 4}, {60, 3}, {50, 2}, {20, 1}, {0, -2}}}}},
    {{{{{90, 5}, {80, 4}, {68, 2}, {50, -3}, {20, -7}, {0, -15}}},
      {{{85, 6}, {75, 3}, {60, 1}, {40, -3}, {20, -5}, {0, -12}}},
      {{{75, 10}, {60, 4}, {48, 2}, {30, -1}, {20, -2}, {0, -5}}},
      {{{75, 10}, {65, 6}, {55, 3}, {45, 2}, {35, 1}, {30, -1}, {20, -2}, {0, -5}}},
      {{{90, 10}, {80, 6}, {60, 4}, {45, 3}, {35, 2}, {30, 1}, {20, -2}, {0, -5}}},
      {{{90, 10}, {80, 6}, {60, 3}, {30, 2}, {10, 1}, {0, -2}}}}},
    {{{{{90, 3}, {80, 2}, {68, 1}, {50, -2}, {20, -3}, {0, -5}}},
      {{{85, 3}, {75, 2}, {60, 1}, {40, -2}, {20, -3}, {0, -5}}},
      {{{75, 3}, {60, 2}, {48, 1}, {30, -1}, {20, -2}, {0, -5}}},
      {{{75, 5}, {65, 4}, {55, 3}, {45, 2}, {38, 1}, {30, -1}, {20, -2}, {0, -3}}},
      {{{90, 6}, {80, 5}, {60, 4}, {45, 3}, {35, 2}, {30, 1}, {20, -3}, {0, -5}}},
      {{{90, 4}, {60, 3}, {30, 2}, {10, 1}, {0, -5}}}}}};

// By difficulty from 1 to 4.
constexpr std::array<int, 4> kEventsBefore = {1, 0, -2, -3};
constexpr std::array<int, 4> kTvShowsBefore = {1, 0, -1, -2};

int WholeStep(const GameInfo& game, HeldShow kind, int size, int rating) {
  const Goodwill before = GoodwillBefore(game, kind);
  return std::accumulate(before.begin(), before.end(), ImageStep(kind, size, rating));
}

}  // namespace

int ImageStep(HeldShow kind, int size, int rating) {
  const Bands& bands = BySize(kSteps[static_cast<std::size_t>(kind)], size);
  return std::ranges::find_if(
             bands, [&](const ImageBand& band) { return rating >= band.From || band.From == 0; })
      ->Step;
}

ImageBand NextImageBand(HeldShow kind, int size, int rating) {
  const Bands& bands = BySize(kSteps[static_cast<std::size_t>(kind)], size);
  ImageBand next{0, 0};
  for (const ImageBand& band : bands)
    if (band.From > rating) next = band;
  return next;
}

Goodwill GoodwillBefore(const GameInfo& game, HeldShow kind) {
  const bool isEvent = kind == HeldShow::Event;
  const int difficulty = std::clamp<int>(game.Difficulty, kEasy, kRockHard);
  return {(isEvent ? kEventsBefore : kTvShowsBefore)[static_cast<std::size_t>(difficulty - 1)],
          game.Reputation < kPoorReputation ? -1 : 0, isEvent && game.Reputation == 0 ? -1 : 0};
}

int WholeEventStep(const GameInfo& game, int size, int rating) {
  return WholeStep(game, HeldShow::Event, size, rating);
}
int WholeTvStep(const GameInfo& game, int size, int rating) {
  return WholeStep(game, HeldShow::Television, size, rating);
}

}  // namespace grapplemont
