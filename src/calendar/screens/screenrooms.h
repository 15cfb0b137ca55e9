#pragma once

#include <array>
#include <string_view>

#include "ui/screen.h"

// The rooms that the main screen leads to.

namespace grapplemont {

/// A command of the hub: the control, its caption, the screens of its room, the first of which it
/// opens, its group and key in the side bar, what else people call its room. What could take
/// today's show, its Titles or its table away reaches into today.
struct HubCommand {
  const char* Control;
  const char* Caption;
  const char* Pages;
  const char* Group;
  const char* Key;
  const char* Also;
  ui::Reach Into = ui::Reach::Company;
};
inline constexpr std::array<HubCommand, 21> kHubCommands = {{
    {"cmdroster", "Roster", "frmRoster frmTurn frmManagers frmAltRoster frmQuickStat frmDebut",
     "People", "F2",
     "people workers own wrestlers talent sack fire release let go contract expire push promote "
     "demote injured injury hurt unhappy debut"},
    {"cmdstaff", "Staff", "frmStaff", "People", "F3",
     "announcers referees writers medics agents sack fire release", ui::Reach::Today},
    {"cmdtag", "Tag Teams", "frmTagTeams", "People", "", "partners pairs create new make"},
    {"cmdstables", "Stables", "frmStables", "People", "", "groups factions create new make"},
    {"cmdbelt", "Titles", "frmBelts frmAltBelts frmReigns", "People", "F4",
     "belts championships champions create new make vacate", ui::Reach::Today},
    {"cmdfeud", "Feuds", "frmFeuds frmFeudStart frmFeudStat", "People", "F5",
     "rivalries start new"},
    {"cmdtv", "Television", "frmTelevision frmTVRank frmViewNetworks frmViewShows frmDrafts",
     "Business", "F6", "shows networks tv deal contract negotiate renew rename start new",
     ui::Reach::Today},
    {"cmdevents", "Events", "frmEvent", "Business", "", "pay per view ppv calendar schedule",
     ui::Reach::Today},
    {"cmdfed", "", "frmFed frmFedSponsor frmFedValue frmFedMerch frmFedProd frmFedPick frmProspect",
     "Business", "F7", "promotion company image risk"},
    {"cmdfinance", "Finance", "frmFinance frmWages frmLoan frmCharity frmTicket", "Business", "F8",
     "money books cash"},
    {"cmdotherwres", "Other Workers", "frmOtherWres frmShortlist", "World", "F9",
     "market hire sign recruit free agents contract talks"},
    {"cmdotherstaff", "Other Staff", "frmOtherStaff", "World", "",
     "hire market sign announcers referees writers medics agents trainers"},
    {"cmdotherfed", "Other Promotions", "frmOtherFed frmPromotion frmCards", "World", "",
     "rivals companies", ui::Reach::Today},
    {"cmdnet", "Internet", "frmInternet", "World", "", "rumours fans polls", ui::Reach::Tells},
    {"cmdrecords", "Records", "frmRecords frmHall frmYearbook frmFamilyTree frmAwards", "World", "",
     "hall of fame yearbook family trees best all time history", ui::Reach::Tells},
    {"cmdnews", "News", "frmNews", "Desk", "F10", "mail unread inbox messages", ui::Reach::Tells},
    {"cmdresults", "Results", "frmResults frmReports frmMorning", "Desk", "", "past shows history",
     ui::Reach::Tells},
    {"cmdmeeting", "Meeting", "frmTalk", "Desk", "", "staff advice talk", ui::Reach::Today},
    {"cmdnotepad", "Notepad", "frmNotepad", "Desk", "Ctrl+N", "notes", ui::Reach::Tells},
    {"cmdmornings", "Back In Time", "frmMornings", "Desk", "",
     "name this moment mornings undo redo go back earlier day return road what if"},
    {"cmdoptions", "Options", "frmOptions frmLoadingScreens", "Desk", "F12",
     "settings mail reporter"},
}};

/// The screen that a command opens.
inline std::string_view ScreenOf(const HubCommand& command) {
  const std::string_view pages = command.Pages;
  return pages.substr(0, pages.find(' '));
}

}  // namespace grapplemont
