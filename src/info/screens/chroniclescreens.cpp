#include "info/screens/chroniclescreens.h"

namespace grapplemont {

void RegisterChronicleScreens(Game& game) {
  game.Desk().Register("frmResults", [&game] { return MakefrmResults(game); });
  game.Desk().Register("frmReports", [&game] { return MakefrmReports(game); });
  game.Desk().Register("frmAwards", [&game] { return MakefrmAwards(game); });
}

}  // namespace grapplemont
