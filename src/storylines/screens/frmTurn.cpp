#include "records/counted.h"
#include "records/dates.h"
#include "records/modWresCheck.h"
#include "storylines/partners.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/screens/storyscreens.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

/// Who manages whom, and who could.
class frmManagers : public ui::Screen {
 public:
  explicit frmManagers(Game& game) : Screen(game.Desk(), "frmManagers", "Managers"), game_(game) {
    lstclients.EmptyText = "Nobody wrestles for you yet.";
    lstmanagers.EmptyText = "You have no manager. Hire one, or make one of a worker.";
    lsthis.EmptyText = "No client yet. Choose a wrestler, then give this manager.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback};
    page.Cancel = &cmdback;
    page.Body =
        ui::Columns({ui::Group("Your wrestlers", {ui::Grow(lstclients), cmdtake}).Grow(3),
                     ui::Rows({ui::Group("Your managers", {ui::Grow(lstmanagers), cmdgive}).Grow(3),
                               ui::Group("Clients of this manager", {ui::Grow(lsthis)}).Grow(2)})
                         .Grow(3)});
    return page;
  }

  void Load() override {
    Return();
    lstmanagers.Select(lstmanagers.Count() > 0 ? 1 : 0);
    ShowChoice();
  }

  void Return() override {
    ShowClients();
    ShowManagers();
    ShowChoice();
  }

 private:
  World& world() { return game_.World(); }

  void ShowClients() {
    std::vector<ui::ListBox::Row> rows;
    int managed = 0;
    for (const Worker* client : Clients(world())) {
      const Worker* manager = ManagerOf(world(), *client);
      if (manager) ++managed;
      std::vector<ui::Cell> cells = ShortRow(*client);
      cells.emplace_back(manager ? manager->Name.Str() : "");
      rows.push_back({std::move(cells), client->Uid});
    }
    lblfacts.Text = std::to_string(managed) + " of " + std::to_string(rows.size()) +
                    " wrestlers have a manager.";
    lstclients.Fill(std::move(rows));
  }

  void ShowManagers() {
    std::vector<ui::ListBox::Row> rows;
    for (const Worker* manager : Managers(world())) {
      std::vector<ui::Cell> cells = ShortRow(*manager);
      cells.emplace_back(ui::Cell(manager->Charisma));
      cells.emplace_back(manager->Speaks ? "" : "Mute", ui::Tone::Muted);
      cells.emplace_back(static_cast<int>(ClientsOf(world(), *manager).size()));
      rows.push_back({std::move(cells), manager->Uid});
    }
    lstmanagers.Fill(std::move(rows));
  }

  void ShowChoice() {
    const Worker* client = world().FindWorker(lstclients.Key());
    const Worker* manager = world().FindWorker(lstmanagers.Key());
    EnableUnless(cmdgive, client && manager ? WhyNotManage(*manager, *client)
                                            : "Choose a wrestler and a manager first.");
    EnableUnless(cmdtake, !client                ? "Choose a wrestler first."
                          : client->Manager == 0 ? client->Name + " has no manager."
                                                 : "");
    FillShort(lsthis, manager ? ClientsOf(world(), *manager) : std::vector<const Worker*>());
  }

  void cmdgive_Click() {
    Worker& client = *world().FindWorker(lstclients.Key());
    const Worker& manager = *world().FindWorker(lstmanagers.Key());
    const Worker* present = ManagerOf(world(), client);
    if (present && !desk().Ask("Managers", present->Name + " manages " + client.Name.Str() +
                                               ". Shall " + manager.Name.Str() + " take over?"))
      return;
    GiveManager(client, manager);
    Return();
  }

  void cmdtake_Click() {
    TakeManager(*world().FindWorker(lstclients.Key()));
    Return();
  }

  void cmdback_Click() { Close(); }

  static std::vector<ui::Column> ClientColumns() {
    std::vector<ui::Column> columns = ShortColumns();
    columns.push_back({"Manager", ui::ColumnKind::Text, 4});
    return columns;
  }
  static std::vector<ui::Column> ManagerColumns() {
    std::vector<ui::Column> columns = ShortColumns();
    columns.push_back({"Charisma", ui::ColumnKind::Number, 1});
    columns.push_back({"", ui::ColumnKind::Tag, 1, "Can give no interviews."});
    columns.push_back({"Manages", ui::ColumnKind::Number, 1});
    return columns;
  }

  Game& game_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstclients{*this, "lstclients", ClientColumns(), &frmManagers::ShowChoice};
  ui::ListBox lstmanagers{*this, "lstmanagers", ManagerColumns(), &frmManagers::ShowChoice};
  ui::ListBox lsthis{*this, "lsthis", ShortColumns()};
  ui::Button cmdgive{*this, "cmdgive", "Give This Manager", &frmManagers::cmdgive_Click};
  ui::Button cmdtake{*this, "cmdtake", "Take The Manager Away", &frmManagers::cmdtake_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmManagers::cmdback_Click};
};

}  // namespace

SCREEN(frmManagers)

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
