#include "roster/screens/rosterscreens.h"
#include "roster/screens/screentalks.h"
#include "roster/screens/screenworkerpage.h"
#include "roster/screens/screenworkers.h"
#include "roster/shortlist.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// Whom the player keeps an eye on, and how they stand today.
class frmShortlist : public ui::Screen {
 public:
  explicit frmShortlist(Game& game)
      : Screen(game.Desk(), "frmShortlist", "Shortlist"), game_(game) {
    lstwres.EmptyText = "Nobody yet. Put somebody on it under Other Workers or on a worker's page.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdremove, &cmdpage, &cmdback, &cmdcontract};
    page.Main = &cmdcontract;
    page.Cancel = &cmdback;
    page.Body = ui::Columns(
        {ui::Group("", {ui::Grow(lstwres)}).Grow(5), ui::Group("", {ui::Grow(txtpage)}).Grow(3)});
    return page;
  }

  void Load() override { Return(); }
  void Return() override {
    ShowList();
    if (lstwres.Selected() == 0) lstwres.Select(1);
    ShowChoice();
  }

 private:
  World& world() { return game_.World(); }
  const Worker* Chosen() { return world().FindWorker(lstwres.Key()); }

  void ShowList() {
    std::vector<ui::ListBox::Row> rows;
    for (const Worker* worker : Shortlisted(world())) {
      std::vector<ui::Cell> cells = ShortRow(*worker);
      cells.emplace_back(MarketStanding(world(), *worker));
      cells.push_back(StatusCell(*worker));
      rows.push_back({std::move(cells), worker->Uid});
    }
    lblfacts.Text = std::to_string(rows.size()) + " of " +
                    std::to_string(world().Game().Shortlist.size()) + " places taken.";
    lstwres.Fill(std::move(rows));
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
    RemoveFromShortlist(world(), lstwres.Key());
    lstwres.Select(0);
    ShowList();
    lstwres.Select(std::min(place, lstwres.Count()));
    ShowChoice();
  }
  void cmdpage_Click() { OpenWorkerPage(game_, lstwres.Key()); }
  void cmdcontract_Click() {
    if (const Worker* chosen = Chosen()) OpenTalks(game_, *chosen);
  }
  void cmdback_Click() { Close(); }

  static std::vector<ui::Column> Columns() {
    std::vector<ui::Column> columns = ShortColumns();
    columns.push_back({"Standing", ui::ColumnKind::Text, 6});
    columns.push_back({"Status", ui::ColumnKind::Text, 2, "Empty for who is available."});
    return columns;
  }

  Game& game_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstwres{*this, "lstwres", Columns(), &frmShortlist::ShowChoice, cmdpage};
  ui::Report txtpage{*this, "txtpage"};
  ui::Button cmdremove{*this, "cmdremove", "Remove", &frmShortlist::cmdremove_Click};
  ui::Button cmdpage{*this, "cmdpage", "Open Page", &frmShortlist::cmdpage_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmShortlist::cmdback_Click};
  ui::Button cmdcontract{*this, "cmdcontract", "Talks", &frmShortlist::cmdcontract_Click};
};

}  // namespace

SCREEN(frmShortlist)

}  // namespace grapplemont
