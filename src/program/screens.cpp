#include "program/screens.h"

#include "calendar/screens/calendarscreens.h"
#include "chronicle/screens/chroniclescreens.h"
#include "editor/screens/screenpages.h"
#include "futures/screens/futurescreens.h"
#include "halls/screens/hallscreens.h"
#include "info/screens/helpscreens.h"
#include "info/screens/infoscreens.h"
#include "program/screenfinding.h"
#include "rivals/screens/rivalscreens.h"
#include "roster/screens/frmWorker.h"

namespace grapplemont {

// Every screen that is opened by its name. The file of each ends in the same row.
#define EVERY_SCREEN(SCREEN) \
  SCREEN(frmFeuds)           \
  SCREEN(frmFeudStart)       \
  SCREEN(frmTagTeams)        \
  SCREEN(frmStables)         \
  SCREEN(frmBelts)           \
  SCREEN(frmReigns)          \
  SCREEN(frmManagers)        \
  SCREEN(frmTurn)            \
  SCREEN(frmStaff)           \
  SCREEN(frmOtherStaff)      \
  SCREEN(frmRoster)          \
  SCREEN(frmOtherWres)       \
  SCREEN(frmShortlist)       \
  SCREEN(frmFed)             \
  SCREEN(frmFedValue)        \
  SCREEN(frmFinance)         \
  SCREEN(frmTicket)          \
  SCREEN(frmCharity)         \
  SCREEN(frmLoan)            \
  SCREEN(frmWages)           \
  SCREEN(frmFedProd)         \
  SCREEN(frmFedSponsor)      \
  SCREEN(frmTelevision)      \
  SCREEN(frmPromoTape)       \
  SCREEN(frmTvOffer)         \
  SCREEN(frmTVRank)          \
  SCREEN(frmViewNetworks)    \
  SCREEN(frmViewShows)       \
  SCREEN(frmMatchOutput)     \
  SCREEN(frmPostShow)        \
  SCREEN(frmBooking)         \
  SCREEN(frmPPVBooking)      \
  SCREEN(frmAutoBook)        \
  SCREEN(frmDrafts)          \
  SCREEN(frmDebut)           \
  SCREEN(frmAltRoster)       \
  SCREEN(frmAltBelts)        \
  SCREEN(frmQuickStat)       \
  SCREEN(frmOtherFed)        \
  SCREEN(frmCards)           \
  SCREEN(frmTheEnd)          \
  SCREEN(frmPinky)           \
  SCREEN(frmPlayOn)          \
  SCREEN(frmRecords)         \
  SCREEN(frmHall)            \
  SCREEN(frmYearbook)        \
  SCREEN(frmFamilyTree)      \
  SCREEN(frmMainScreen)      \
  SCREEN(frmEvent)           \
  SCREEN(frmIncident)        \
  SCREEN(frmFutures)         \
  SCREEN(frmChronicle)       \
  SCREEN(frmResults)         \
  SCREEN(frmReports)         \
  SCREEN(frmAwards)          \
  SCREEN(frmMorning)         \
  SCREEN(frmNews)            \
  SCREEN(frmNotepad)         \
  SCREEN(frmOptions)         \
  SCREEN(frmUser)            \
  SCREEN(frmTalk)            \
  SCREEN(frmProspect)        \
  SCREEN(frmMonth)           \
  SCREEN(frmInternet)        \
  SCREEN(frmGlossary)        \
  SCREEN(frmEditMaintain)    \
  SCREEN(frmEditMerge)       \
  SCREEN(frmEditImport)      \
  SCREEN(frmEditTables)      \
  SCREEN(frmEditor)          \
  SCREEN(frmGodMode)         \
  SCREEN(frmTitleScreen)     \
  SCREEN(frmDisclaimer)      \
  SCREEN(frmGameMenu)        \
  SCREEN(frmCredits)         \
  SCREEN(frmCreditsXtra)     \
  SCREEN(frmAbout)           \
  SCREEN(frmNewGame)         \
  SCREEN(frmLoadGame)        \
  SCREEN(frmMornings)        \
  SCREEN(frmWait)            \
  SCREEN(frmLoadingScreens)

#define DECLARE(name) std::unique_ptr<ui::Screen> Make##name(Game& game);
EVERY_SCREEN(DECLARE)

void RegisterScreens(Game& game) {
#define REGISTER(name) game.Desk().Register(#name, [&game] { return Make##name(game); });
  EVERY_SCREEN(REGISTER)
  RegisterRecordPages(game);
  ConnectRoster(game);
  ConnectRivals(game);
  ConnectHalls(game);
  ConnectCalendar(game);
  ConnectFutures(game);
  ConnectChronicle(game);
  ConnectInfo(game);
  ConnectHelp(game);
  ConnectFinding(game);
}

}  // namespace grapplemont
