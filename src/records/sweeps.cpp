#include "records/sweeps.h"

#include "records/severing.h"

namespace grapplemont {

namespace {

void EndPromotion(World& world, int uid) {
  for (Worker& worker : world.Workers())
    if (worker.Employer == uid) worker.Split = "None";
  SeverWorkersAndStaff(world, uid);
  for (Show& show : world.Shows())
    if (show.Owner == uid) show.Name = kToBeDeleted;
  for (Sponsor& sponsor : world.Sponsors()) {
    if (sponsor.Promotion != uid) continue;
    sponsor.Promotion = 0;
    sponsor.ContractMonths = 0;
  }
  for (Event& event : world.Events())
    if (event.Owner == uid) event.Owner = 0;
  for (Title& title : world.Titles())
    if (title.Owner == uid) title.Owner = kNoEnd;
  for (Stable& stable : world.Stables())
    if (stable.Owner == uid) stable.Owner = kNoEnd;
}

}  // namespace

void CompactPromotions(World& world) {
  world.Promotions().Keep([](const Promotion& p) { return !(p.Name == kToBeDeleted); });
}

bool RemoveShow(World& world, std::string_view name) {
  for (int number = 1; number <= world.Shows().Count(); ++number) {
    if (!(world.Shows()[number].Name == name)) continue;
    world.Shows().Erase(number);
    return true;
  }
  return false;
}

void SweepDeadShows(World& world) {
  while (RemoveShow(world, kToBeDeleted)) {
  }
}

void SweepDeadPromotions(World& world) {
  for (const Promotion& promotion : world.Promotions())
    if (promotion.Name == kToBeDeleted && promotion.Uid != 0) EndPromotion(world, promotion.Uid);
  CompactPromotions(world);
}

}  // namespace grapplemont
