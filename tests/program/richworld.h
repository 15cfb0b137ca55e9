#pragma once

#include "support/smallworld.h"

namespace grapplemont::test {

/// Two promotions, of which "CWA" has something of everything, and people on the market.
inline SmallWorld RichWorld() {
  SmallWorld small;
  small.Network("Nine")
      .Promotion("CWA", kCult, [](Promotion& p) { p.Money = 9000000; })
      .Owner("Ruth Vane")
      .Staff("Pen", kWriter)
      .Crew(12)
      .Team("The Hands", "CWA Hand 1", "CWA Hand 2")
      .Stable("The Firm", {"CWA Hand 3", "CWA Hand 4"})
      .Title("CWA Crown", "CWA Hand 1")
      .Show("Sunday Slam", "Sunday", "Nine")
      .Sponsor("Gulp")
      .Event(3)
      .Promotion("XWF", kRegional, [](Promotion& p) { p.Money = -2000000; })
      .Crew(4)
      .OnTheMarket()
      .Crew(4)
      .Staff("Free Pen", kWriter)
      .Sponsor("Chew");
  return small;
}

/// The screens that lie on the desk of a game.
inline constexpr const char* kInGame[] = {
    "frmMainScreen", "frmOptions",      "frmNews",       "frmNotepad",   "frmFeuds",
    "frmFeudStart",  "frmBooking",      "frmPPVBooking", "frmWait",      "frmLoadingScreens",
    "frmAutoBook",   "frmDebut",        "frmAltRoster",  "frmAltBelts",  "frmQuickStat",
    "frmTagTeams",   "frmStables",      "frmManagers",   "frmTurn",      "frmRoster",
    "frmOtherWres",  "frmStaff",        "frmOtherStaff", "frmShortlist", "frmUser",
    "frmFinance",    "frmTicket",       "frmCharity",    "frmLoan",      "frmWages",
    "frmFedProd",    "frmFedSponsor",   "frmTelevision", "frmPromoTape", "frmTvOffer",
    "frmTVRank",     "frmViewNetworks", "frmViewShows",  "frmFed",       "frmFedValue",
    "frmBelts",      "frmEvent",        "frmOtherFed",   "frmTheEnd",    "frmPinky",
    "frmReigns",     "frmChronicle",    "frmResults",    "frmReports",   "frmAwards",
    "frmTalk",       "frmMorning",      "frmInternet",   "frmGlossary",  "frmDrafts",
    "frmProspect",   "frmPlayOn",       "frmMonth",      "frmGodMode",   "frmRecords",
    "frmHall",       "frmYearbook",     "frmFamilyTree", "frmMornings",  "frmFutures"};

/// Those that come before one, and the editor's.
inline constexpr const char* kBeforeGame[] = {
    "frmTitleScreen",  "frmDisclaimer",   "frmGameMenu",     "frmCredits",    "frmCreditsXtra",
    "frmAbout",        "frmNewGame",      "frmLoadGame",     "frmWait",       "frmLoadingScreens",
    "frmEditor",       "frmEditWres",     "frmEditPromo",    "frmEditOwners", "frmEditStaff",
    "frmEditTeams",    "frmEditStables",  "frmEditBelts",    "frmEditTv",     "frmEditEvents",
    "frmEditNetworks", "frmEditSponsors", "frmEditMaintain", "frmEditMerge",  "frmEditImport",
    "frmEditTables"};

}  // namespace grapplemont::test
