#include "business/screens/tvscreens.h"

namespace grapplemont {

void RegisterTvScreens(Game& game) {
  game.Desk().Register("frmTelevision", [&game] { return MakefrmTelevision(game); });
  game.Desk().Register("frmPromoTape", [&game] { return MakefrmPromoTape(game); });
  game.Desk().Register("frmTvOffer", [&game] { return MakefrmTvOffer(game); });
  game.Desk().Register("frmTVRank", [&game] { return MakefrmTVRank(game); });
  game.Desk().Register("frmViewNetworks", [&game] { return MakefrmViewNetworks(game); });
  game.Desk().Register("frmViewShows", [&game] { return MakefrmViewShows(game); });
}

}  // namespace grapplemont
