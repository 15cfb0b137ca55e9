#include "storylines/screens/storyscreens.h"

namespace grapplemont {

void RegisterStoryScreens(Game& game) {
  game.Desk().Register("frmFeuds", [&game] { return MakefrmFeuds(game); });
  game.Desk().Register("frmFeudStart", [&game] { return MakefrmFeudStart(game); });
  game.Desk().Register("frmTagTeams", [&game] { return MakefrmTagTeams(game); });
  game.Desk().Register("frmStables", [&game] { return MakefrmStables(game); });
  game.Desk().Register("frmBelts", [&game] { return MakefrmBelts(game); });
  game.Desk().Register("frmReigns", [&game] { return MakefrmReigns(game); });
  game.Desk().Register("frmManagers", [&game] { return MakefrmManagers(game); });
  game.Desk().Register("frmTurn", [&game] { return MakefrmTurn(game); });
}

}  // namespace grapplemont
