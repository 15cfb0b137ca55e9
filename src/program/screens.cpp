#include "program/screens.h"

#include "booking/screens/bookingscreens.h"
#include "business/screens/fedscreens.h"
#include "business/screens/officescreens.h"
#include "business/screens/tvscreens.h"
#include "calendar/screens/calendarscreens.h"
#include "editor/screens/editorfilescreens.h"
#include "editor/screens/editorscreens.h"
#include "info/screens/chroniclescreens.h"
#include "info/screens/infoscreens.h"
#include "rivals/screens/rivalscreens.h"
#include "roster/screens/contractscreens.h"
#include "roster/screens/rosterscreens.h"
#include "session/screens/sessionscreens.h"
#include "show/screens/showscreens.h"
#include "storylines/screens/storyscreens.h"

namespace grapplemont {

void RegisterScreens(Game& game) {
  RegisterStoryScreens(game);
  RegisterRosterScreens(game);
  RegisterContractScreens(game);
  RegisterFedScreens(game);
  RegisterOfficeScreens(game);
  RegisterTvScreens(game);
  RegisterShowScreens(game);
  RegisterBookingScreens(game);
  RegisterRivalScreens(game);
  RegisterCalendarScreens(game);
  RegisterInfoScreens(game);
  RegisterChronicleScreens(game);
  RegisterEditorFileScreens(game);
  RegisterEditorScreens(game);
  RegisterSessionScreens(game);
}

}  // namespace grapplemont
