#include "booking/screens/bookingscreens.h"
#include "records/fields/wording.h"
#include "storylines/screens/screentitles.h"

namespace grapplemont {

namespace {

/// The player's Titles to look up while a show is being booked.
class frmAltBelts : public ui::Screen {
 public:
  explicit frmAltBelts(Game& game) : Screen(game.Desk(), "frmAltBelts", "Titles"), game_(game) {
    lsttitles.EmptyText = "Your promotion has no Title.";
    lsthistory.EmptyText = "Choose a Title to see who has held it.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback};
    page.Cancel = &cmdback;
    page.Body = ui::Columns({ui::Group("", {ui::Grow(lsttitles)}).Grow(4),
                             ui::Group("Who has held it", {ui::Grow(lsthistory)}).Grow(3)});
    return page;
  }

  void Load() override {
    ShowTitles();
    lsttitles.Select(lsttitles.Count() > 0 ? 1 : 0);
    ShowHistory();
  }
  void Return() override {
    ShowTitles();
    ShowHistory();
  }

 private:
  World& world() { return game_.World(); }

  void ShowTitles() {
    std::vector<ui::ListBox::Row> rows;
    int vacant = 0;
    for (const grapplemont::Title& title : world().Titles()) {
      if (title.Owner != world().PlayerUid()) continue;
      if (title.Holder == 0) ++vacant;
      rows.push_back(TitleRow(world(), title));
    }
    lblfacts.Text = Counted(std::ssize(rows), "Title") + ", " + std::to_string(vacant) + " vacant";
    lsttitles.Fill(std::move(rows));
  }

  void ShowHistory() {
    const int number = lsttitles.Key();
    lsthistory.Fill(number == 0 ? std::vector<ui::ListBox::Row>{}
                                : ReignRows(world().Titles()[number]));
  }

  void cmdback_Click() { Close(); }

  Game& game_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lsttitles{*this, "lsttitles", TitleColumns(), &frmAltBelts::ShowHistory};
  ui::ListBox lsthistory{*this, "lsthistory", ReignColumns()};
  ui::Button cmdback{*this, "cmdback", "Back", &frmAltBelts::cmdback_Click};
};

}  // namespace

SCREEN(frmAltBelts)

}  // namespace grapplemont
