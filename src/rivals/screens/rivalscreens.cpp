#include "rivals/screens/rivalscreens.h"

namespace grapplemont {

void RegisterRivalScreens(Game& game) {
  game.Desk().Register("frmOtherFed", [&game] { return MakefrmOtherFed(game); });
  game.Desk().Register("frmTheEnd", [&game] { return MakefrmTheEnd(game); });
  game.Desk().Register("frmPinky", [&game] { return MakefrmPinky(game); });
  game.OpenPromotion = [&game](int uid) { OpenPromotionPage(game, uid); };
}

}  // namespace grapplemont
