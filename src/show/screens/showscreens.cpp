#include "show/screens/showscreens.h"

namespace grapplemont {

void RegisterShowScreens(Game& game) {
  game.Desk().Register("frmMatchOutput", [&game] { return MakefrmMatchOutput(game); });
  game.Desk().Register("frmPostShow", [&game] { return MakefrmPostShow(game); });
}

}  // namespace grapplemont
