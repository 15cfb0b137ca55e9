#include "calendar/image.h"

#include <algorithm>

#include "business/monthlymoney.h"
#include "calendar/events.h"
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

}  // namespace grapplemont
