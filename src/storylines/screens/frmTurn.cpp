#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/screens/storyscreens.h"
#include "storylines/storynames.h"
#include "storylines/turns.h"

namespace grapplemont {

namespace {

constexpr ui::ColumnKind kTag = ui::ColumnKind::Tag;

/// Whose turn is being prepared.
class frmTurn : public ui::Screen {
 public:
  explicit frmTurn(Game& game) : Screen(game.Desk(), "frmTurn", "Turns"), game_(game) {
    lstwres.EmptyText = "Nobody works for you yet.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback};
    page.Cancel = &cmdback;
    page.Body = ui::Columns({ui::Group("", {ui::Grow(lstwres)}).Grow(3),
                             ui::Group("The turn", {ui::Grow(txtturn), cmdturn}).Grow(2)});
    return page;
  }

  void Load() override {
    ShowRoster();
    lstwres.Select(lstwres.Count() > 0 ? 1 : 0);
    ShowTurn();
  }
  void Return() override {
    ShowRoster();
    ShowTurn();
  }

 private:
  World& world() { return game_.World(); }

  void ShowRoster() {
    std::vector<ui::ListBox::Row> rows;
    int pending = 0;
    for (const Worker* worker : SeenOnShows(world())) {
      if (worker->TurnPending) ++pending;
      std::vector<ui::Cell> cells = ShortRow(*worker);
      cells.push_back(LastTurnCell(*worker));
      cells.emplace_back(worker->TurnPending ? "Turn pending" : "", ui::Tone::Gold);
      rows.push_back({std::move(cells), worker->Uid});
    }
    lstwres.Fill(std::move(rows));
    lblfacts.Text = pending == 0   ? "No turn is being prepared."
                    : pending == 1 ? "1 turn is being prepared."
                                   : std::to_string(pending) + " turns are being prepared.";
  }

  ui::Cell LastTurnCell(const Worker& worker) {
    if (DaysSinceTurn(world(), worker) < 0) return {"Never", ui::Tone::Muted};
    return {static_cast<double>((Day(worker.LastTurn) - kDayZero).count()),
            PlainDate(worker.LastTurn)};
  }

  void ShowTurn() {
    using Style = ui::Report::Style;
    const Worker* worker = world().FindWorker(lstwres.Key());
    cmdturn.Text = worker && worker->TurnPending ? "Call The Turn Off" : "Prepare A Turn";
    EnableUnless(cmdturn, worker ? "" : "Choose somebody first.");
    if (!worker) return txtturn.Write({{Style::Muted, "Choose somebody to read how he stands."}});
    const int days = DaysSinceTurn(world(), *worker);
    txtturn.Write({{Style::Strong, worker->Name.Str()},
                   {Style::Line, std::string(DispositionText(worker->Disposition)) +
                                     (days < 0 ? ", has never turned."
                                               : ", turned " + Counted(days, "day") + " ago.")},
                   {Style::Line, TurnAdvice(world(), *worker)},
                   {Style::Muted,
                    worker->TurnPending
                        ? "The turn is prepared. Book the match, interview or angle in which "
                          "it happens."
                        : "A turn that has not been prepared baffles the fans. Prepare it "
                          "here, then book the match, interview or angle in which it happens."}});
  }

  void cmdturn_Click() {
    Worker& worker = *world().FindWorker(lstwres.Key());
    worker.TurnPending ? CallOffTurn(worker) : PrepareTurn(worker);
    Return();
  }

  void cmdback_Click() { Close(); }

  static std::vector<ui::Column> Columns() {
    std::vector<ui::Column> columns = ShortColumns();
    columns.push_back({"Last turn", ui::ColumnKind::Date, 3});
    columns.push_back({"", kTag, 2});
    return columns;
  }

  Game& game_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstwres{*this, "lstwres", Columns(), &frmTurn::ShowTurn, cmdturn};
  ui::Report txtturn{*this, "txtturn"};
  ui::Button cmdturn{*this, "cmdturn", "Prepare A Turn", &frmTurn::cmdturn_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmTurn::cmdback_Click};
};

}  // namespace

SCREEN(frmTurn)

}  // namespace grapplemont
