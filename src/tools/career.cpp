#include "tools/career.h"

#include "calendar/advanceday.h"
#include "calendar/daykind.h"
#include "records/world.h"

namespace grapplemont::tools {

namespace {

int EndCodeOf(const World& world) {
  const int code = world.Game().EndCode;
  return code >= 1 && code <= 9 ? code : 0;
}

/// The day as "Next Day" would take it, with its show called off.
void PlayDay(World& world) {
  world.Session.ShowRating = 0;
  world.Session.ShowFlag = 0;
  const DayKind kind = DayKindToday(world, [] { return true; });
  AdvanceDay(world, kind == DayKind::Television || kind == DayKind::Event);
}

}  // namespace

CareerEnd PlayDays(Game& game, int days, Shows /*shows*/,
                   const std::function<void(int day)>& dayPassed) {
  CareerEnd end;
  end.EndCode = EndCodeOf(game.World());
  while (end.Days < days && end.EndCode == 0) {
    PlayDay(game.World());
    game.Commit();
    ++end.Days;
    end.EndCode = EndCodeOf(game.World());
    dayPassed(end.Days);
  }
  return end;
}

}  // namespace grapplemont::tools
