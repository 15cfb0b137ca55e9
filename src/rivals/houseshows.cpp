#include "records/dates.h"
#include "rivals/rivals.h"
#include "rivals/rivalsteps.h"
#include "rivals/rivaltitles.h"
#include "rivals/tuning.h"

namespace grapplemont {

namespace {

bool Works(const Worker& worker) {
  return IsOnRoster(worker) && worker.Status == "Nor";
}

void Earn(Promotion& rival) {
  const int sure = BySize(tuning::kHouseShow, rival.Size) / 2;
  const int dollars = sure + sure * rival.Image / 100;
  rival.Money += dollars;
  rival.ThisMonth.TicketIncome += dollars;
}

}  // namespace

void RivalHouseShows(World& world) {
  std::map<int, int> crews;
  for (const Worker& worker : world.Workers())
    if (Works(worker)) ++crews[worker.Employer];
  const auto plays = [&](int uid) { return crews[uid] >= tuning::kHouseShowCrew; };
  for (Promotion& promotion : world.Promotions())
    if (IsRival(world, promotion) && plays(promotion.Uid)) Earn(promotion);
  for (Worker& worker : world.Workers()) {
    const Promotion* employer = world.FindPromotion(worker.Employer);
    if (employer && IsRival(world, *employer) && Works(worker) && plays(employer->Uid))
      worker.Condition -= world.RandomDraw(tuning::kHouseShowWear);
  }
  if (IsEventDay(world.Today() - std::chrono::days{1})) DefendRivalTitles(world);
}

}  // namespace grapplemont
