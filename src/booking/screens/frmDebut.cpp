#include "booking/debuts.h"
#include "booking/screens/bookingscreens.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// Who waits for his first appearance, and the ways to it.
class frmDebut : public ui::Screen {
 public:
  explicit frmDebut(Game& game, bool isEvent = false)
      : Screen(game.Desk(), "frmDebut", "Debuts"), game_(game), isEvent_(isEvent) {
    lstwres.EmptyText = "Everybody on your roster has been seen. Whom you sign waits here.";
    lstways.EmptyText = "Choose somebody to see how he can be brought out.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback};
    page.Cancel = &cmdback;
    page.Body = ui::Columns({ui::Group("Not seen yet", {ui::Grow(lstwres)}).Grow(3),
                             ui::Group("Ways to a debut", {ui::Grow(lstways), lblnote}).Grow(4)});
    return page;
  }

  void Load() override {
    ShowRoster();
    lstwres.Select(lstwres.Count() > 0 ? 1 : 0);
    ShowWays();
  }
  void Return() override {
    ShowRoster();
    ShowWays();
  }

 private:
  World& world() { return game_.World(); }

  void ShowRoster() {
    std::vector<ui::ListBox::Row> rows;
    for (const Worker* worker : WaitingForDebut(world())) {
      std::vector<ui::Cell> cells = ShortRow(*worker);
      cells.emplace_back(PositionText(worker->Position));
      cells.push_back(StatusCell(*worker));
      rows.push_back({std::move(cells), worker->Uid});
    }
    const auto count = std::ssize(rows);
    lstwres.Fill(std::move(rows));
    lblfacts.Text = count == 0 ? "Nobody waits for a debut."
                               : Counted(count, "worker waits", "workers wait") + " for a debut.";
  }

  void ShowWays() {
    std::vector<ui::ListBox::Row> rows;
    if (const Worker* worker = world().FindWorker(lstwres.Key()))
      for (const DebutWay& way : WaysToDebut(world(), *worker, isEvent_))
        rows.push_back({{ui::Cell(way.Kind), way.How,
                         way.WhyNot.empty() ? ui::Cell("Today", ui::Tone::Green)
                                            : ui::Cell(way.WhyNot, ui::Tone::Muted)},
                        static_cast<int>(rows.size()) + 1});
    lstways.Fill(std::move(rows));
  }

  void lstwres_Open() { desk().Open(MakefrmQuickStat(game_, lstwres.Key())); }
  void cmdback_Click() { Close(); }

  static std::vector<ui::Column> Columns() {
    std::vector<ui::Column> columns = ShortColumns();
    columns.push_back({"Position", ui::ColumnKind::Text, 3});
    columns.push_back({"", ui::ColumnKind::Tag, 2});
    return columns;
  }

  using K = ui::ColumnKind;
  Game& game_;
  const bool isEvent_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstwres{*this, "lstwres", Columns(), &frmDebut::ShowWays, &frmDebut::lstwres_Open};
  ui::ListBox lstways{
      *this,
      "lstways",
      {{"In a", K::Tag}, {"How the wizard calls it", K::Text, 3}, {"", K::Text, 2}}};
  ui::Label lblnote{*this, "lblnote",
                    "Whoever appears in a match or an angle without one of these has been seen as "
                    "well, and the debut is spent."};
  ui::Button cmdback{*this, "cmdback", "Back", &frmDebut::cmdback_Click};
};

}  // namespace

SCREEN(frmDebut)

std::unique_ptr<ui::Screen> MakefrmDebut(Game& game, bool isEvent) {
  return std::make_unique<frmDebut>(game, isEvent);
}

}  // namespace grapplemont
