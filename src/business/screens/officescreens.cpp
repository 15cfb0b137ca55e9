#include "business/screens/officescreens.h"

namespace grapplemont {

void RegisterOfficeScreens(Game& game) {
  game.Desk().Register("frmFinance", [&game] { return MakefrmFinance(game); });
  game.Desk().Register("frmTicket", [&game] { return MakefrmTicket(game); });
  game.Desk().Register("frmCharity", [&game] { return MakefrmCharity(game); });
  game.Desk().Register("frmLoan", [&game] { return MakefrmLoan(game); });
  game.Desk().Register("frmWages", [&game] { return MakefrmWages(game); });
  game.Desk().Register("frmFedProd", [&game] { return MakefrmFedProd(game); });
  game.Desk().Register("frmFedSponsor", [&game] { return MakefrmFedSponsor(game); });
}

}  // namespace grapplemont
