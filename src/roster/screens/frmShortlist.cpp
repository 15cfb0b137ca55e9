#include <algorithm>

#include "roster/market.h"
#include "roster/screens/frmWorker.h"
#include "roster/screens/screentalks.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// Whom the player keeps an eye on, and how they stand today.
class frmShortlist : public GameScreen {
 public:
  explicit frmShortlist(Game& game) : GameScreen(game, "frmShortlist", "Shortlist") {
    BackBefore(cmdcontract);
    lstwres.Extends = true;
    lstwres.Acts = {{&cmdpage}, {&cmdcontract}, {&cmdremove}};
    lstwres.EmptyText = "Nobody yet. Put somebody on it under Other Workers or on a worker's page.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Columns({ui::Group("", {ui::Grow(lstwres)}).Grow(5),
                               ui::Group("", {ui::Grow(txtpage)}).Grow(3)}),
                  &lblfacts, {&cmdremove, &cmdpage}, &cmdcontract);
  }

  void Return() override {
    ShowList();
    if (lstwres.Selected() == 0) lstwres.Select(1);
    ShowChoice();
  }

 private:
  const Worker* Chosen() { return world().FindWorker(lstwres.Key()); }

  void ShowList() {
    FillTable(lstwres, columns_, Shortlisted(world()));
    lblfacts.Text = std::to_string(lstwres.Count()) + " of " +
                    std::to_string(world().Game().Shortlist.size()) + " places taken.";
  }

  void ShowChoice() {
    const Worker* chosen = Chosen();
    WriteWorkerPage(txtpage, world(), chosen, "Nobody is chosen.");
    EnableUnless(cmdcontract, WhyNoTalks(game_, chosen));
    for (ui::Button* button : {&cmdremove, &cmdpage})
      EnableUnless(*button, chosen ? "" : kNobodyChosen);
  }

  /// The place in the list stays, so that several can be taken off one after the other.
  void cmdremove_Click() {
    const int place = lstwres.Selected();
    for (const int uid : lstwres.Keys()) RemoveFromShortlist(world(), uid);
    lstwres.Select(0);
    ShowList();
    lstwres.Select(std::min(place, lstwres.Count()));
    ShowChoice();
  }
  void cmdcontract_Click() {
    if (const Worker* chosen = Chosen()) OpenTalks(game_, *chosen);
  }

  ui::Label lblfacts{*this, "lblfacts"};
  const CellColumns<Worker> columns_ = PeopleTable(
      {{{"Contract", ui::ColumnKind::Text, 6},
        [this](const Worker& worker) { return MarketStanding(world(), worker); }},
       {{"Status", ui::ColumnKind::Text, 2, "Empty for who is available."}, StatusCell}});
  ui::ListBox lstwres{*this, "lstwres", WithFaces(world(), HeadingsOf(columns_)),
                      &frmShortlist::ShowChoice, cmdpage};
  ui::Report txtpage{*this, "txtpage"};
  ui::Button cmdremove{*this, "cmdremove", "Remove", &frmShortlist::cmdremove_Click};
  ui::Button cmdpage{*this, "cmdpage", "Open Page", [this] { game_.OpenWorker(lstwres.Key()); }};
  ui::Button cmdcontract{*this, "cmdcontract", "Talks", &frmShortlist::cmdcontract_Click};
};

}  // namespace

SCREEN(frmShortlist)

}  // namespace grapplemont
