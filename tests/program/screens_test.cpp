#include <gtest/gtest.h>

#include <set>

#include "support/gameonworld.h"
#include "support/homefolder.h"

namespace grapplemont::test {
namespace {

void Gather(const ui::Box& box, std::set<const ui::Control*>& shown) {
  if (box.Shown) shown.insert(box.Shown);
  for (const ui::Box& part : box.Parts) Gather(part, shown);
}

/// Every control that a screen's arrangement places somewhere.
std::set<const ui::Control*> Placed(ui::Screen& screen) {
  const ui::Page page = screen.Layout();
  std::set<const ui::Control*> placed{page.Facts, page.Main, page.Cancel};
  placed.insert(page.Actions.begin(), page.Actions.end());
  placed.insert(page.Top.begin(), page.Top.end());
  placed.insert(page.TopActions.begin(), page.TopActions.end());
  for (const ui::SideGroup& group : page.Side)
    for (const auto& command : group.Commands) placed.insert(command.Press);
  Gather(page.Body, placed);
  return placed;
}

/// Opens the screen, looks whether all it has can be seen somewhere and can be left, and leaves it.
void Visit(ScriptDesk& desk, const std::string& name) {
  SCOPED_TRACE(name);
  desk.Open(name);
  ASSERT_EQ(desk.TopName(), name);
  ui::Screen& screen = *desk.Top();
  const auto placed = Placed(screen);
  std::set<std::string> names;
  for (const ui::Control* control : screen.Controls()) {
    EXPECT_TRUE(names.insert(control->Name()).second) << control->Name() << " twice";
    const bool isBackdrop = control->Name() == "imgback";
    EXPECT_TRUE(isBackdrop || placed.contains(control)) << control->Name() << " lies nowhere";
  }
  if (screen.Is() != ui::Role::Wait && screen.Is() != ui::Role::Hub) {
    EXPECT_TRUE(screen.Layout().Cancel) << "Escape leads nowhere";
  }
  desk.Close(screen);
}

constexpr const char* kInGame[] = {
    "frmMainScreen", "frmOptions",      "frmNews",       "frmNotepad",   "frmFeuds",
    "frmFeudStart",  "frmBooking",      "frmPPVBooking", "frmWait",      "frmLoadingScreens",
    "frmAutoBook",   "frmDebut",        "frmAltRoster",  "frmAltBelts",  "frmQuickStat",
    "frmTagTeams",   "frmStables",      "frmManagers",   "frmTurn",      "frmRoster",
    "frmOtherWres",  "frmStaff",        "frmOtherStaff", "frmShortlist", "frmUser",
    "frmFinance",    "frmTicket",       "frmCharity",    "frmLoan",      "frmWages",
    "frmFedProd",    "frmFedSponsor",   "frmTelevision", "frmPromoTape", "frmTvOffer",
    "frmTVRank",     "frmViewNetworks", "frmViewShows",  "frmFed",       "frmFedValue",
    "frmBelts",      "frmEvent",        "frmOtherFed",   "frmTheEnd",    "frmPinky",
    "frmReigns",     "frmResults",      "frmReports",    "frmAwards",    "frmTalk",
    "frmInternet"};
constexpr const char* kBeforeGame[] = {
    "frmTitleScreen",  "frmDisclaimer",   "frmGameMenu",   "frmCredits",        "frmCreditsXtra",
    "frmNewGame",      "frmLoadGame",     "frmWait",       "frmLoadingScreens", "frmEditor",
    "frmEditWres",     "frmEditPromo",    "frmEditOwners", "frmEditStaff",      "frmEditTeams",
    "frmEditStables",  "frmEditBelts",    "frmEditTv",     "frmEditEvents",     "frmEditNetworks",
    "frmEditSponsors", "frmEditMaintain", "frmEditMerge",  "frmEditImport",     "frmEditTables"};

TEST(EveryScreen, OpensOnAWorldWithSomethingOfEverything) {
  GameOnWorld play(SmallWorld()
                       .Network("Nine")
                       .Promotion("CWA", kCult)
                       .Owner("Ruth Vane")
                       .Staff("Pen", kWriter)
                       .Crew(12)
                       .Team("The Hands", "CWA Hand 1", "CWA Hand 2")
                       .Stable("The Firm", {"CWA Hand 3", "CWA Hand 4"})
                       .Title("CWA Crown", "CWA Hand 1")
                       .Show("Sunday Slam", "Sunday", "Nine")
                       .Sponsor("Gulp")
                       .Event(3)
                       .Game("CWA")
                       .Feud("CWA Hand 5", "CWA Hand 6")
                       .TagFeud("CWA Hand 1", "CWA Hand 2", "CWA Hand 7", "CWA Hand 8")
                       .Mail("Ruth Vane", "Hello."));
  for (const char* name : kInGame) Visit(play.Desk, name);
}

TEST(EveryScreen, OpensOnAWorldWithNothingButThePlayersPromotion) {
  GameOnWorld play(SmallWorld().Promotion("CWA").Game("CWA"));
  for (const char* name : kInGame) Visit(play.Desk, name);
}

TEST(EveryScreen, OpensBeforeAGameOnRichAndOnEmptyData) {
  HomeFolder rich(SmallWorld()
                      .Network("Nine")
                      .Promotion("CWA")
                      .Owner("Ruth Vane")
                      .Staff("Pen", kWriter)
                      .Crew(4)
                      .Team("The Hands", "CWA Hand 1", "CWA Hand 2")
                      .Stable("The Firm", {"CWA Hand 3"})
                      .Title("CWA Crown", "CWA Hand 1")
                      .Show("Sunday Slam", "Sunday", "Nine")
                      .Sponsor("Gulp")
                      .Event(3)
                      .Build());
  for (const char* name : kBeforeGame) Visit(rich.Desk, name);
  HomeFolder empty{World()};
  for (const char* name : kBeforeGame) Visit(empty.Desk, name);
}

}  // namespace
}  // namespace grapplemont::test
