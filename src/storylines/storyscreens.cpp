#include "storylines/storyscreens.h"

namespace grapplemont {

void RegisterStoryScreens(Game& game) {
  game.Desk().Register("frmFeuds", [&game] { return MakefrmFeuds(game); });
  game.Desk().Register("frmFeudStart", [&game] { return MakefrmFeudStart(game); });
}

}  // namespace grapplemont
