#include "program/screens.h"

#include "booking/bookingscreens.h"
#include "business/fedscreens.h"
#include "business/officescreens.h"
#include "business/tvscreens.h"
#include "calendar/calendarscreens.h"
#include "editor/editorfilescreens.h"
#include "editor/editorscreens.h"
#include "info/chroniclescreens.h"
#include "info/infoscreens.h"
#include "rivals/rivalscreens.h"
#include "roster/contractscreens.h"
#include "roster/rosterscreens.h"
#include "session/sessionscreens.h"
#include "show/showscreens.h"
#include "storylines/storyscreens.h"

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
