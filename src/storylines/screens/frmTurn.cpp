#include <algorithm>

#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "storylines/partners.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

/// Who manages whom, and who could.
class frmManagers : public GameScreen {
 public:
  explicit frmManagers(Game& game) : GameScreen(game, "frmManagers", "Managers") {
    lstclients.Acts = {{&cmdtake}};
    lstmanagers.Acts = {{&cmdgive}};
    lstclients.EmptyText = "Nobody wrestles for you yet.";
    lstmanagers.EmptyText = "You have no manager. Hire one, or make one of a worker.";
    lsthis.EmptyText = "No client yet. Choose a wrestler, then give this manager.";
    BackBefore(cmdgive);
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns({ui::Group("Your wrestlers", {ui::Grow(lstclients), cmdtake}).Grow(3),
                     ui::Rows({ui::Group("Your managers", {ui::Grow(lstmanagers)}).Grow(3),
                               ui::Group("Clients of this manager", {ui::Grow(lsthis)}).Grow(2)})
                         .Grow(3)}),
        &lblfacts, {}, &cmdgive);
  }

  void Load() override {
    Return();
    lstmanagers.Select(lstmanagers.Count() > 0 ? 1 : 0);
    ShowChoice();
  }

  void Return() override {
    ShowClients();
    FillTable(lstmanagers, managers_, Managers(world()));
    ShowChoice();
  }

 private:
  void ShowClients() {
    const std::vector<const Worker*> clients = Clients(world());
    const auto managed = std::count_if(clients.begin(), clients.end(), [&](const Worker* client) {
      return ManagerOf(world(), *client) != nullptr;
    });
    lblfacts.Text = std::to_string(managed) + " of " +
                    Counted(static_cast<int>(clients.size()), "wrestler") +
                    (managed == 1 ? " has a manager." : " have a manager.");
    FillTable(lstclients, clients_, clients);
  }

  ui::Cell ManagerCell(const Worker& client) {
    const Worker* manager = ManagerOf(world(), client);
    return manager ? manager->Name.Str() : "";
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
    client.Manager = manager.Uid;
    Return();
  }

  void cmdtake_Click() {
    world().FindWorker(lstclients.Key())->Manager = 0;
    Return();
  }

  ui::Label lblfacts{*this, "lblfacts"};
  const CellColumns<Worker> clients_ = PeopleTable(
      {{{"Manager", K::Text, 4}, [this](const Worker& client) { return ManagerCell(client); }}});
  const CellColumns<Worker> managers_ =
      PeopleTable({{{"Charisma", K::Number, 1},
                    [](const Worker& manager) { return ui::Cell(manager.Charisma); }},
                   {{"", K::Tag, 1, "Can give no interviews."},
                    [](const Worker& manager) {
                      return ui::Cell(manager.Speaks ? "" : "Mute", ui::Tone::Muted);
                    }},
                   {{"Manages", K::Number, 1}, [this](const Worker& manager) {
                      return ui::Cell(static_cast<int>(ClientsOf(world(), manager).size()));
                    }}});
  ui::ListBox lstclients{*this, "lstclients", WithFaces(world(), HeadingsOf(clients_)),
                         &frmManagers::ShowChoice};
  ui::ListBox lstmanagers{*this, "lstmanagers", WithFaces(world(), HeadingsOf(managers_)),
                          &frmManagers::ShowChoice};
  ui::ListBox lsthis{*this, "lsthis", WithFaces(world(), ShortColumns())};
  ui::Button cmdgive{*this, "cmdgive", "Give This Manager", &frmManagers::cmdgive_Click};
  ui::Button cmdtake{*this, "cmdtake", "Take The Manager Away", &frmManagers::cmdtake_Click};
};

/// Whose turn is being prepared.
class frmTurn : public GameScreen {
 public:
  explicit frmTurn(Game& game) : GameScreen(game, "frmTurn", "Turns") {
    lstwres.EmptyText = "Nobody works for you yet.";
    lstwres.Acts = {{&cmdturn}};
    BackBefore(cmdturn);
  }

  ui::Page Layout() override {
    return PageOf(ui::Columns({ui::Group("", {ui::Grow(lstwres)}).Grow(3),
                               ui::Group("The turn", {ui::Grow(txtturn)}).Grow(2)}),
                  &lblfacts, {}, &cmdturn);
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
  void ShowRoster() {
    const std::vector<const Worker*> seen = SeenOnShows(world());
    const auto pending = std::count_if(
        seen.begin(), seen.end(), [](const Worker* worker) { return bool(worker->TurnPending); });
    FillTable(lstwres, columns_, seen);
    lblfacts.Text = (pending == 0 ? "No turn is" : Counted(pending, "turn is", "turns are")) +
                    " being prepared.";
  }

  ui::Cell LastTurnCell(const Worker& worker) {
    if (DaysSinceTurn(world(), worker) < 0) return {"Never", ui::Tone::Muted};
    return DayCell(worker.LastTurn);
  }

  void ShowTurn() {
    using Style = ui::Report::Style;
    const Worker* worker = world().FindWorker(lstwres.Key());
    cmdturn.Text = worker && worker->TurnPending ? "Call The Turn Off" : "Prepare A Turn";
    EnableUnless(cmdturn, worker ? "" : "Choose somebody first.");
    if (!worker) return txtturn.Write({{Style::Muted, "Choose somebody to read how they stand."}});
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
    worker.TurnPending = !worker.TurnPending;
    Return();
  }

  ui::Label lblfacts{*this, "lblfacts"};
  const CellColumns<Worker> columns_ = PeopleTable(
      {{{"Last turn", K::Date, 3}, [this](const Worker& worker) { return LastTurnCell(worker); }},
       {{"", K::Tag, 2}, [](const Worker& worker) {
          return ui::Cell(worker.TurnPending ? "Turn pending" : "", ui::Tone::Gold);
        }}});
  ui::ListBox lstwres{*this, "lstwres", WithFaces(world(), HeadingsOf(columns_)),
                      &frmTurn::ShowTurn, cmdturn};
  ui::Report txtturn{*this, "txtturn"};
  ui::Button cmdturn{*this, "cmdturn", "Prepare A Turn", &frmTurn::cmdturn_Click};
};

}  // namespace

SCREEN(frmManagers)
SCREEN(frmTurn)

}  // namespace grapplemont
