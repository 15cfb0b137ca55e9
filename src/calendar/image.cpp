#include "calendar/image.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <span>

#include "business/finance.h"
#include "calendar/events.h"
#include "records/arithmetic.h"
#include "records/fields/vocabulary.h"
#include "records/modVar.h"
#include "roster/invented.h"

namespace grapplemont {

namespace {

constexpr int kAfterAFall = 90;
constexpr int kAfterARise = 10;
constexpr int kPotentialAboveFloor = 20;
constexpr int kLeastPotential = 30;

bool IsPlayers(const World& world, const Promotion& promotion) {
  return promotion.Uid == world.PlayerUid();
}

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
  worker.Over = std::max(worker.Over - world.RandomDraw(5), floor);
}

void FallInClass(World& world, Promotion& promotion) {
  promotion.Size += 1;
  promotion.Image = kAfterAFall;
  if (IsPlayers(world, promotion)) world.Session.StartSize = promotion.Size;
  NoteDeed(world, kDeedFallen, &promotion, promotion.Name, {}, promotion.Size);
  TellOfClass(world, promotion, " fallen to ");
  if (IsPlayers(world, promotion) && world.RandomDraw(3) == 3) world.Game().EndCode = kEndBoard;
  for (Worker& worker : world.Workers())
    if (worker.Employer == promotion.Uid) FallWithIt(world, worker);
  OwnersQuit(world, promotion);
}

bool SharesTheRise(const Worker& worker, const Promotion& promotion) {
  return worker.Employer == promotion.Uid && worker.Position != kDevelopmentDeal &&
         worker.Position != kTrainingCamp && worker.Position < 79;
}

void RiseWithIt(World& world, Worker& worker) {
  worker.Over += world.RandomDraw(5) + (worker.Position == kMainEvent ? 5 : 0);
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

/// From this rating up comes the step; the rows fall.
struct ImageBand {
  int From;
  int Step;
};
using Bands = std::span<const ImageBand>;
using Ladders = std::array<Bands, 6>;  // Global to Backyard

// The player's Events.
constexpr ImageBand kEvent1[] = {{90, 5}, {80, 4}, {60, 2}, {40, -3}, {20, -7}, {0, -15}};
constexpr ImageBand kEvent2[] = {{90, 6}, {80, 3}, {60, 1}, {40, -3}, {20, -5}, {0, -12}};
constexpr ImageBand kEvent3[] = {{90, 10}, {80, 4}, {60, 2}, {40, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kEvent4[] = {{90, 10}, {80, 6},  {60, 3},  {50, 1},
                                 {40, 0},  {30, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kEvent5[] = {{90, 10}, {80, 6},  {60, 3},  {50, 2},
                                 {40, 1},  {30, -2}, {20, -3}, {0, -5}};
constexpr ImageBand kEvent6[] = {{90, 10}, {80, 6}, {60, 3}, {50, 2}, {20, 1}, {0, -2}};
constexpr Ladders kEvents = {kEvent1, kEvent2, kEvent3, kEvent4, kEvent5, kEvent6};

// The player's television shows. A Backyard show of 90 jumps a class almost at once: meant so.
constexpr ImageBand kTv1[] = {{90, 3}, {80, 2}, {60, 1}, {40, -3}, {20, -7}, {0, -15}};
constexpr ImageBand kTv2[] = {{90, 3}, {80, 2}, {60, 1}, {40, -3}, {20, -5}, {0, -12}};
constexpr ImageBand kTv3[] = {{90, 4}, {80, 2}, {60, 1}, {40, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kTv4[] = {{90, 4}, {80, 2}, {50, 1}, {40, 0}, {30, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kTv5[] = {{90, 5}, {80, 4},  {60, 3},  {50, 2},
                              {40, 1}, {30, -2}, {20, -3}, {0, -5}};
constexpr ImageBand kTv6[] = {{90, 25}, {80, 4}, {60, 3}, {50, 2}, {20, 1}, {0, -2}};
constexpr Ladders kTvShows = {kTv1, kTv2, kTv3, kTv4, kTv5, kTv6};

// Rivals' Events.
constexpr ImageBand kRivalEvent1[] = {{90, 5}, {80, 4}, {68, 2}, {50, -3}, {20, -7}, {0, -15}};
constexpr ImageBand kRivalEvent2[] = {{85, 6}, {75, 3}, {60, 1}, {40, -3}, {20, -5}, {0, -12}};
constexpr ImageBand kRivalEvent3[] = {{75, 10}, {60, 4}, {48, 2}, {30, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kRivalEvent4[] = {{75, 10}, {65, 6},  {55, 3},  {45, 2},
                                      {35, 1},  {30, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kRivalEvent5[] = {{90, 10}, {80, 6}, {60, 4},  {45, 3},
                                      {35, 2},  {30, 1}, {20, -2}, {0, -5}};
constexpr ImageBand kRivalEvent6[] = {{90, 10}, {80, 6}, {60, 3}, {30, 2}, {10, 1}, {0, -2}};
constexpr Ladders kRivalEvents = {kRivalEvent1, kRivalEvent2, kRivalEvent3,
                                  kRivalEvent4, kRivalEvent5, kRivalEvent6};

// Rivals' television shows.
constexpr ImageBand kRivalTv1[] = {{90, 3}, {80, 2}, {68, 1}, {50, -2}, {20, -3}, {0, -5}};
constexpr ImageBand kRivalTv2[] = {{85, 3}, {75, 2}, {60, 1}, {40, -2}, {20, -3}, {0, -5}};
constexpr ImageBand kRivalTv3[] = {{75, 3}, {60, 2}, {48, 1}, {30, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kRivalTv4[] = {{75, 5}, {65, 4},  {55, 3},  {45, 2},
                                   {38, 1}, {30, -1}, {20, -2}, {0, -3}};
constexpr ImageBand kRivalTv5[] = {{90, 6}, {80, 5}, {60, 4},  {45, 3},
                                   {35, 2}, {30, 1}, {20, -3}, {0, -5}};
constexpr ImageBand kRivalTv6[] = {{90, 4}, {60, 3}, {30, 2}, {10, 1}, {0, -5}};
constexpr Ladders kRivalTvShows = {kRivalTv1, kRivalTv2, kRivalTv3,
                                   kRivalTv4, kRivalTv5, kRivalTv6};

int StepIn(const Ladders& tables, int size, int rating) {
  const Bands bands = BySize(tables, size);
  for (const ImageBand& band : bands)
    if (rating >= band.From) return band.Step;
  return bands.back().Step;
}

}  // namespace

int EventImageStep(int size, int rating) {
  return StepIn(kEvents, size, rating);
}
int TvImageStep(int size, int rating) {
  return StepIn(kTvShows, size, rating);
}
int RivalEventImageStep(int size, int quality) {
  return StepIn(kRivalEvents, size, quality);
}
int RivalTvImageStep(int size, int quality) {
  return StepIn(kRivalTvShows, size, quality);
}

namespace {

constexpr int kPoorReputation = 25;

// By difficulty from 1 to 4.
using ByDifficulty = std::array<int, 4>;
constexpr ByDifficulty kEventsBefore = {1, 0, -2, -3};
constexpr ByDifficulty kTvShowsBefore = {1, 0, -1, -2};

int StepAt(const ByDifficulty& steps, const GameInfo& game) {
  return steps[static_cast<std::size_t>(std::clamp<int>(game.Difficulty, kEasy, kRockHard) - 1)];
}

int Disrepute(const GameInfo& game) {
  return game.Reputation < kPoorReputation ? -1 : 0;
}

int SumOf(const Goodwill& goodwill) {
  return std::accumulate(goodwill.begin(), goodwill.end(), 0);
}

}  // namespace

Goodwill EventGoodwill(const GameInfo& game) {
  return {StepAt(kEventsBefore, game), Disrepute(game), game.Reputation == 0 ? -1 : 0};
}

Goodwill TvGoodwill(const GameInfo& game) {
  return {StepAt(kTvShowsBefore, game), Disrepute(game), 0};
}

int WholeEventStep(const GameInfo& game, int size, int rating) {
  return SumOf(EventGoodwill(game)) + EventImageStep(size, rating);
}

int WholeTvStep(const GameInfo& game, int size, int rating) {
  return SumOf(TvGoodwill(game)) + TvImageStep(size, rating);
}

}  // namespace grapplemont
