#include <algorithm>

#include "calendar/advanceday.h"
#include "calendar/image.h"
#include "rivals/ambition.h"
#include "rivals/houseshows.h"
#include "rivals/rivals.h"
#include "rivals/tuning.h"

namespace grapplemont {

namespace {

/// Who is seen more on television is seen more on tour as well.
void Tour(World& world, Promotion& rival, SizeAim aim) {
  const tuning::Tour& tour = BySize(tuning::kTours, rival.Size);
  const auto shows = std::ranges::count_if(
      world.Shows(), [&](const Show& show) { return show.Owner == rival.Uid; });
  const int weight = 1 + static_cast<int>(shows);
  if (aim == SizeAim::StayUp) MoveImage(world, rival, tour.Gain * weight);
  if (aim == SizeAim::StayBelow) MoveImage(world, rival, -tour.Loss * weight);
}

}  // namespace

void RivalHouseShows(World& world) {
  const HouseShowCrews crews = CrewsFor(world);
  HoldHouseShows(world, crews);
  const Rosters rosters(world);
  for (Promotion& rival : world.Promotions())
    if (IsRival(world, rival) && HouseShowIncome(rival, crews.Of(rival.Uid)) > 0)
      Tour(world, rival, SizeAimOf(world, rival, rosters));
}

}  // namespace grapplemont
