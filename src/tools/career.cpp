#include "tools/career.h"

#include "booking/autoshow.h"
#include "calendar/advanceday.h"
#include "calendar/daykind.h"
#include "calendar/incidents.h"
#include "records/world.h"
#include "report/linememory.h"

namespace grapplemont::tools {

namespace {

/// A show that was cut off goes to its end first.
bool FinishTodays(World& world) {
  if (!ShowUnderWay(world)) return false;
  LineMemory memory;
  FinishShow(world, &memory);
  LeaveShow(world);
  return true;
}

/// A show that the roster cannot fill is called off as well. True when it has been held.
bool HoldTodays(World& world, DayKind kind, Shows shows) {
  if (shows == Shows::Cancel) return false;
  LineMemory memory;
  return HoldAutoShow(world, kind == DayKind::Event, &memory);
}

/// Whoever runs a promotion unseen makes light of what happens backstage and takes no other job.
void IgnoreIncidents(World& world) {
  while (FirstIncident(world)) CloseIncident(world);
}

}  // namespace

int EndCodeOf(const World& world) {
  const int code = world.Game().EndCode;
  return code >= 1 && code <= 9 ? code : 0;
}

void PlayDay(World& world, Shows shows) {
  world.Session.ShowRating = 0;
  world.Session.ShowFlag = 0;
  const DayKind kind = DayKindToday(world, [] { return true; });
  const bool isShow = kind == DayKind::Television || kind == DayKind::Event;
  const bool cancelled = isShow && !FinishTodays(world) && !HoldTodays(world, kind, shows);
  AdvanceDay(world, cancelled);
  IgnoreIncidents(world);
}

CareerEnd PlayDays(Game& game, int days, Shows shows,
                   const std::function<void(int day)>& dayPassed) {
  CareerEnd end;
  end.EndCode = EndCodeOf(game.World());
  while (end.Days < days && end.EndCode == 0) {
    PlayDay(game.World(), shows);
    game.Commit();
    ++end.Days;
    end.EndCode = EndCodeOf(game.World());
    dayPassed(end.Days);
  }
  return end;
}

}  // namespace grapplemont::tools
