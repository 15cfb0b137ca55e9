#include "tools/officework.h"

namespace grapplemont::tools {

CareerEnd PlayDays(Game& game, int days, Shows shows, const std::function<void(int day)>& dayPassed,
                   AfterTheEnd after) {
  return LiveOn(game.World(), days, {.Do = shows, .Then = after}, [&](int day) {
    game.Commit();
    dayPassed(day);
    return true;
  });
}

}  // namespace grapplemont::tools
