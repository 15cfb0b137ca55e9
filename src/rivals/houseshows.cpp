#include "rivals/houseshows.h"

#include "records/fields/fields.h"
#include "rivals/rivals.h"
#include "rivals/rivalsteps.h"
#include "rivals/rivaltitles.h"
#include "rivals/tuning.h"

namespace grapplemont {

namespace {

bool Works(const Worker& worker) {
  return IsOnRoster(worker) && worker.Status == "Nor";
}

bool IsEnough(int crew) {
  return crew >= tuning::kHouseShowCrew;
}

void Earn(Promotion& rival, int dollars) {
  rival.Money += dollars;
  rival.ThisMonth.TicketIncome += dollars;
}

}  // namespace

std::map<int, int> HouseShowCrews(const World& world) {
  std::map<int, int> crews;
  for (const Worker& worker : world.Workers())
    if (Works(worker)) ++crews[worker.Employer];
  return crews;
}

int HouseShowIncome(const Promotion& rival, int crew) {
  if (!IsEnough(crew)) return 0;
  const int sure = BySize(tuning::kHouseShow, rival.Size) / 2;
  return sure + sure * rival.Image / 100;
}

void RivalHouseShows(World& world) {
  std::map<int, int> crews = HouseShowCrews(world);
  const auto plays = [&](int uid) { return IsEnough(crews[uid]); };
  for (Promotion& promotion : world.Promotions())
    if (IsRival(world, promotion))
      Earn(promotion, HouseShowIncome(promotion, crews[promotion.Uid]));
  for (Worker& worker : world.Workers()) {
    const Promotion* employer = world.FindPromotion(worker.Employer);
    if (employer && IsRival(world, *employer) && Works(worker) && plays(employer->Uid))
      worker.Condition -= world.RandomDraw(tuning::kHouseShowWear);
  }
  if (IsEventDay(world.Today() - std::chrono::days{1})) DefendRivalTitles(world);
}

}  // namespace grapplemont
