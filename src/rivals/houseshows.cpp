#include "rivals/houseshows.h"

#include "records/fields/fields.h"
#include "rivals/rivalcards.h"
#include "rivals/tuning.h"

namespace grapplemont {

namespace {

bool IsEnough(int crew) {
  return crew >= tuning::kHouseShowCrew;
}

}  // namespace

HouseShowCrews CrewsFor(const World& world) {
  HouseShowCrews crews;
  for (const Worker& worker : world.Workers())
    if (IsFit(worker)) ++crews[worker.Employer];
  return crews;
}

int HouseShowIncome(const Promotion& rival, int crew) {
  if (!IsEnough(crew)) return 0;
  const int sure = BySize(tuning::kHouseShow, rival.Size) / 2;
  return sure + sure * rival.Image / 100;
}

void HoldHouseShows(World& world, const HouseShowCrews& crews) {
  for (Promotion& promotion : world.Promotions()) {
    if (!IsRival(world, promotion)) continue;
    const int dollars = HouseShowIncome(promotion, crews.Of(promotion.Uid));
    promotion.Money += dollars;
    promotion.ThisMonth.TicketIncome += dollars;
  }
  for (Worker& worker : world.Workers()) {
    const Promotion* employer = world.FindPromotion(worker.Employer);
    if (employer && IsRival(world, *employer) && IsFit(worker) && IsEnough(crews.Of(employer->Uid)))
      worker.Condition -= world.Life().Draw(tuning::kHouseShowWear);
  }
  for (const Promotion& promotion : world.Promotions())
    if (IsRival(world, promotion) && IsEnough(crews.Of(promotion.Uid)))
      HoldCard(world, promotion, kUnseenHouseShow);
}

}  // namespace grapplemont
