#include "booking/screens/bookingscreens.h"

namespace grapplemont {

void RegisterBookingScreens(Game& game) {
  ui::Desk& desk = game.Desk();
  desk.Register("frmBooking", [&game] { return MakefrmBooking(game); });
  desk.Register("frmPPVBooking", [&game] { return MakefrmPPVBooking(game); });
  desk.Register("frmAutoBook", [&game] { return MakefrmAutoBook(game); });
  desk.Register("frmDebut", [&game] { return MakefrmDebut(game); });
  desk.Register("frmAltRoster", [&game] { return MakefrmAltRoster(game); });
  desk.Register("frmAltBelts", [&game] { return MakefrmAltBelts(game); });
  desk.Register("frmQuickStat", [&game] { return MakefrmQuickStat(game); });
}

}  // namespace grapplemont
