#include "records/fields/wording.h"
#include "records/keepannals.h"
#include "records/modWresCheck.h"
#include "storylines/partners.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// The player's Tag Teams, and the roster that new ones are formed from.
class frmTagTeams : public GameScreen {
 public:
  explicit frmTagTeams(Game& game) : GameScreen(game, "frmTagTeams", "Tag Teams") {
    lstteams.Acts = {{&cmddissolve}};
    lstteams.EmptyText = "You have no team yet. Choose two workers below, name them, form a team.";
    for (int head : {1, 2}) lstwres(head).EmptyText = "Nobody works for you yet.";
    txtname.Hint = "Name of the team";
    txtfinisher.Hint = "Its finisher, if any";
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Rows({ui::Group("Your teams", {ui::Grow(lstteams)}).Grow(2),
                  ui::Columns({ui::Group("First worker", {ui::Grow(lstwres(1))}).Grow(3),
                               ui::Group("Second worker", {ui::Grow(lstwres(2))}).Grow(3),
                               ui::Group("The team", {ui::Field("Name", txtname),
                                                      ui::Field("Finisher", txtfinisher), lblpair,
                                                      cmdcreate, cmdrename, cmdfinisher})
                                   .Grow(3)})
                      .Grow(3)}),
        &lblfacts, {&cmddissolve});
  }

  void Load() override {
    ShowTeams();
    lstteams.Select(lstteams.Count() > 0 ? 1 : 0);
    lstteams_Click();
  }
  void Return() override {
    ShowTeams();
    ShowRoster();
  }

 private:
  /// nullptr when none is selected.
  Team* Chosen() { return lstteams.Key() == 0 ? nullptr : &world().Teams()[lstteams.Key()]; }

  void ShowTeams() {
    FillTable(lstteams, teams_, PlayerTeams(world()),
              [&](const Team& team) { return world().Teams().NumberOf(team); });
    lblfacts.Text = lstteams.Count() == 0 ? "No team yet" : Counted(lstteams.Count(), "team");
  }

  void ShowRoster() {
    for (int head : {1, 2}) FillShort(lstwres(head), SeenOnShows(world()));
    ShowButtons();
  }

  void ShowButtons() {
    const std::string none = Chosen() ? "" : "Choose a team first.";
    EnableUnless({cmdrename, cmdfinisher, cmddissolve}, none);
    const int first = lstwres(1).Key(), second = lstwres(2).Key();
    lblpair.Text = first != 0 && second != 0
                       ? WorkerName(world(), first) + " and " + WorkerName(world(), second)
                       : "Choose one worker of each list.";
  }

  /// The members and the names of the selected team stand where a new one is put together.
  void lstteams_Click() {
    ShowRoster();
    const Team* team = Chosen();
    if (!team) return;
    txtname.Text = team->Name.Str();
    txtfinisher.Text = team->Finisher == "None" ? "" : team->Finisher.Str();
    lstwres(1).SelectKey(team->Worker1);
    lstwres(2).SelectKey(team->Worker2);
    ShowButtons();
  }

  std::string Typed(ui::TextBox& box) { return std::string(TrimmedName(box.Text.Get())); }

  void cmdcreate_Click() {
    const int first = lstwres(1).Key(), second = lstwres(2).Key();
    const std::string name = Typed(txtname), finisher = Typed(txtfinisher);
    if (desk().Objects(WhyNotTeam(world(), first, second)) ||
        desk().Objects(WhyNotTeamName(world(), name)) || desk().Objects(WhyNotFinisher(finisher)))
      return;
    const int number = FormTeam(world(), name, first, second, finisher);
    ShowTeams();
    lstteams.SelectKey(number);
    lstteams_Click();
  }

  void cmdrename_Click() {
    const std::string name = Typed(txtname);
    if (Chosen()->Name == name || desk().Objects(WhyNotTeamName(world(), name))) return;
    Chosen()->Name = name;
    ShowTeams();
    lstteams_Click();
  }

  void cmdfinisher_Click() {
    const std::string finisher = Typed(txtfinisher);
    if (desk().Objects(WhyNotFinisher(finisher))) return;
    SetTeamFinisher(*Chosen(), finisher);
    ShowTeams();
    lstteams_Click();
  }

  void cmddissolve_Click() {
    if (!desk().Ask("Dissolve?", "Are you sure you wish to dissolve " + Chosen()->Name + "?",
                    ui::Default::No))
      return;
    const Team& team = world().Teams()[lstteams.Key()];
    KeepGroup(world(), kAnnalParted, team.Name, team.Worker1, team.Worker2);
    world().Teams().Erase(lstteams.Key());
    Load();
  }

  using K = ui::ColumnKind;
  ui::Label lblfacts{*this, "lblfacts"};
  const CellColumns<Team> teams_ = {
      {{"Team", K::Text, 4}, [](const Team& team) { return team.Name.View(); }},
      {{"First", K::Text, 3},
       [this](const Team& team) { return WorkerName(world(), team.Worker1); }},
      {{"Second", K::Text, 3},
       [this](const Team& team) { return WorkerName(world(), team.Worker2); }},
      {{"Finisher", K::Text, 3},
       [](const Team& team) { return team.Finisher == "None" ? "" : team.Finisher.View(); }},
      {{"Experience", K::Percent, 2, "Grows with every match as a team."},
       [](const Team& team) { return ui::Cell(team.Experience); }}};
  ui::ListBox lstteams{*this, "lstteams", HeadingsOf(teams_), &frmTagTeams::lstteams_Click};
  ui::Array<ui::ListBox> lstwres{"lstwres", 2, [this](const std::string&, int head) {
                                   return std::make_unique<ui::ListBox>(
                                       *this, "lstwres" + std::to_string(head),
                                       WithFaces(world(), ShortColumns()),
                                       [this] { ShowButtons(); });
                                 }};
  ui::TextBox txtname{*this, "txtname"};
  ui::TextBox txtfinisher{*this, "txtfinisher"};
  ui::Label lblpair{*this, "lblpair"};
  ui::Button cmdcreate{*this, "cmdcreate", "Form A Team", &frmTagTeams::cmdcreate_Click};
  ui::Button cmdrename{*this, "cmdrename", "Rename", &frmTagTeams::cmdrename_Click};
  ui::Button cmdfinisher{*this, "cmdfinisher", "Set Finisher", &frmTagTeams::cmdfinisher_Click};
  ui::Button cmddissolve{*this, "cmddissolve", "Dissolve", &frmTagTeams::cmddissolve_Click};
};

/// The player's stables: who is in them and who could be.
class frmStables : public GameScreen {
 public:
  explicit frmStables(Game& game) : GameScreen(game, "frmStables", "Stables") {
    lststables.Acts = {{&cmddissolve}};
    lstmembers.Extends = lstwres.Extends = true;
    lstmembers.Acts = {{&cmdremove}};
    lstwres.Acts = {{&cmdadd}};
    lststables.EmptyText = "You have no stable yet. Type a name below and found one.";
    lstmembers.EmptyText = "Nobody is in this stable. Choose somebody at the right and add them.";
    lstwres.EmptyText = "Everybody you have is in this stable.";
    txtname.Hint = "Name";
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns({ui::Rows({ui::Group("Your stables", {ui::Grow(lststables)}).Grow(),
                               ui::Group("Name", {txtname, cmdcreate, cmdrename})})
                         .Grow(5),
                     ui::Group("Members", {ui::Grow(lstmembers), cmdremove}).Grow(5),
                     ui::Group("Not in this stable", {ui::Grow(lstwres), cmdadd}).Grow(5)}),
        &lblfacts, {&cmddissolve});
  }

  void Load() override {
    ShowStables();
    lststables.Select(lststables.Count() > 0 ? 1 : 0);
    lststables_Click();
  }
  void Return() override {
    ShowStables();
    ShowStable();
  }

 private:
  /// Empty when none is selected.
  std::string Chosen() {
    const int number = lststables.Key();
    return number == 0 ? std::string() : world().Stables()[number].Name.Str();
  }

  void ShowStables() {
    FillTable(lststables, stables_, PlayerStables(world()),
              [&](const Stable& stable) { return world().Stables().NumberOf(stable); });
    lblfacts.Text =
        lststables.Count() == 0 ? "No stable yet" : Counted(lststables.Count(), "stable");
  }

  void ShowStable() {
    const std::string stable = Chosen();
    std::vector<const Worker*> members, others;
    for (const Worker* worker : SeenOnShows(world()))
      (!stable.empty() && worker->Stable == stable ? members : others).push_back(worker);
    FillTable(lstmembers, members_, members);
    FillTable(lstwres, others_, others);
    ShowButtons();
  }

  ui::Cell RoleCell(const Worker& worker) {
    if (&worker == StableLeader(world(), worker.Stable)) return {"Leader", ui::Tone::Gold};
    return StatusCell(worker);
  }
  static ui::Cell InCell(const Worker& worker) {
    return {IsInStable(worker) ? worker.Stable.View() : "", ui::Tone::Muted};
  }

  void ShowButtons() {
    const std::string none = Chosen().empty() ? "Choose a stable first." : "";
    EnableUnless({cmdrename, cmddissolve}, none);
    EnableUnless(cmdadd, !none.empty()        ? none
                         : lstwres.Key() == 0 ? "Choose somebody of this list first."
                                              : "");
    EnableUnless(cmdremove, !none.empty()           ? none
                            : lstmembers.Key() == 0 ? "Choose a member first."
                                                    : "");
  }

  void lststables_Click() {
    txtname.Text = Chosen();
    ShowStable();
  }

  void cmdcreate_Click() {
    const std::string name(TrimmedName(txtname.Text.Get()));
    if (desk().Objects(WhyNotFound(world(), name))) return;
    FoundStable(world(), name);
    ShowStables();
    lststables.Select(lststables.Count());
    lststables_Click();
  }

  void cmdrename_Click() {
    const std::string name(TrimmedName(txtname.Text.Get()));
    if (name == Chosen()) return;
    if (desk().Objects(WhyNotStableName(world(), name))) return;
    RenameStable(world(), Chosen(), name);
    ShowStables();
    lststables_Click();
  }

  void cmddissolve_Click() {
    const std::string stable = Chosen();
    const int booked = BookedFor(world(), stable);
    const std::string price =
        booked == 0   ? ""
        : booked == 1 ? " The segment that is booked for it will be removed from the sheet."
                      : " The " + std::to_string(booked) +
                            " segments that are booked for it will be removed from the sheet.";
    if (!desk().Ask("Dissolve?", "Are you sure you wish to dissolve " + stable + "?" + price,
                    ui::Default::No))
      return;
    DissolveStable(world(), stable);
    Load();
  }

  void cmdadd_Click() {
    for (const int uid : lstwres.Keys()) {
      Worker* worker = world().FindWorker(uid);
      if (!worker || desk().Objects(WhyNotJoin(world(), Chosen(), *worker))) break;
      worker->Stable = Chosen();
      KeepGroup(world(), kAnnalJoined, Chosen(), uid);
    }
    Return();
  }

  void cmdremove_Click() {
    for (const int uid : lstmembers.Keys())
      if (Worker* worker = world().FindWorker(uid)) worker->Stable = "None";
    Return();
  }

  using K = ui::ColumnKind;
  ui::Label lblfacts{*this, "lblfacts"};
  const CellColumns<Stable> stables_ = {
      {{"Stable", K::Text, 4}, [](const Stable& stable) { return stable.Name.View(); }},
      {{"Members", K::Number, 1, "Ten at most."},
       [this](const Stable& stable) {
         return ui::Cell(static_cast<int>(StableMembers(world(), stable.Name).size()));
       }},
      {{"Leader", K::Text, 4, "The most popular member who is fit."}, [this](const Stable& stable) {
         const Worker* leader = StableLeader(world(), stable.Name);
         return leader ? leader->Name.Str() : "";
       }}};
  const CellColumns<Worker> members_ =
      PeopleTable({{{"", K::Tag, 2}, [this](const Worker& worker) { return RoleCell(worker); }}});
  const CellColumns<Worker> others_ =
      PeopleTable({{{"Stable", K::Text, 2, "Where somebody is in one already."}, InCell}});
  ui::ListBox lststables{*this, "lststables", HeadingsOf(stables_), &frmStables::lststables_Click};
  ui::TextBox txtname{*this, "txtname"};
  ui::Button cmdcreate{*this, "cmdcreate", "Found A Stable", &frmStables::cmdcreate_Click};
  ui::Button cmdrename{*this, "cmdrename", "Rename", &frmStables::cmdrename_Click};
  ui::ListBox lstmembers{*this, "lstmembers", WithFaces(world(), NarrowColumns(members_)),
                         &frmStables::ShowButtons, cmdremove};
  ui::Button cmdremove{*this, "cmdremove", "Take Out", &frmStables::cmdremove_Click};
  ui::ListBox lstwres{*this, "lstwres", WithFaces(world(), NarrowColumns(others_)),
                      &frmStables::ShowButtons, cmdadd};
  ui::Button cmdadd{*this, "cmdadd", "Add To The Stable", &frmStables::cmdadd_Click};
  ui::Button cmddissolve{*this, "cmddissolve", "Dissolve", &frmStables::cmddissolve_Click};
};

}  // namespace

SCREEN(frmTagTeams)
SCREEN(frmStables)

}  // namespace grapplemont
