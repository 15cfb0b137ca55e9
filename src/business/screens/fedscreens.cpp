#include "business/screens/fedscreens.h"

namespace grapplemont {

void RegisterFedScreens(Game& game) {
  game.Desk().Register("frmFed", [&game] { return MakefrmFed(game); });
  game.Desk().Register("frmFedValue", [&game] { return MakefrmFedValue(game); });
}

}  // namespace grapplemont
