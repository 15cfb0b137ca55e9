#include "tools/career.h"

#include "booking/showstart.h"
#include "calendar/advanceday.h"
#include "calendar/incidents.h"
#include "records/world.h"
#include "report/report.h"
#include "rivals/endstories.h"
#include "rivals/founding.h"
#include "rivals/rivals.h"
#include "tools/officework.h"

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

/// Whoever waits to challenge him is heard out.
void MeetWhoWaits(World& world) {
  if (world.Game().EndCode == kStrangerWaits) MeetStranger(world);
}

/// A rival no bigger than the promotion that was left has a chair for him; false where none is.
bool TakeAnotherJob(World& world) {
  std::vector<const Promotion*> offers;
  for (const Promotion& promotion : world.Promotions())
    if (IsRival(world, promotion) && promotion.Size >= world.Player().Size)
      offers.push_back(&promotion);
  if (offers.empty()) return false;
  const int drawn = world.RandomDraw(static_cast<int>(offers.size()));
  ChangeJob(world, *offers[static_cast<std::size_t>(drawn - 1)]);
  world.Game().EndCode = 0;
  return true;
}

}  // namespace

int EndCodeOf(const World& world) {
  return HasEnded(world.Game()) ? int(world.Game().EndCode) : 0;
}

void PlayDay(World& world, Shows shows, const StepWatcher& watcher) {
  MeetWhoWaits(world);
  world.Session.ShowRating = 0;
  world.Session.ShowFlag = 0;
  const DayKind kind = DayKindToday(world, [] { return true; });
  const bool isShow = kind == DayKind::Television || kind == DayKind::Event;
  const bool cancelled = isShow && !FinishTodays(world) && !HoldTodays(world, kind, shows);
  AdvanceDay(world, cancelled, watcher);
  IgnoreIncidents(world);
  if (shows == Shows::Auto && !HasEnded(world.Game())) WorkInTheOffice(world);
}

CareerEnd PlayDays(Game& game, int days, Shows shows, const std::function<void(int day)>& dayPassed,
                   AfterTheEnd after) {
  World& world = game.World();
  CareerEnd end;
  end.EndCode = EndCodeOf(world);
  while (end.Days < days && end.EndCode == 0) {
    PlayDay(world, shows);
    ++end.Days;
    end.EndCode = EndCodeOf(world);
    if (end.EndCode != 0) end.Reasons.push_back(end.EndCode);
    if (end.EndCode != 0 && after == AfterTheEnd::AnotherJob && TakeAnotherJob(world))
      end.EndCode = 0;
    game.Commit();
    dayPassed(end.Days);
  }
  return end;
}

}  // namespace grapplemont::tools
