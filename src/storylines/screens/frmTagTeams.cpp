#include "records/modWresCheck.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/screens/storyscreens.h"
#include "storylines/storynames.h"
#include "storylines/teams.h"

namespace grapplemont {

namespace {

/// The player's Tag Teams, and the roster that new ones are formed from.
class frmTagTeams : public ui::Screen {
 public:
  explicit frmTagTeams(Game& game) : Screen(game.Desk(), "frmTagTeams", "Tag Teams"), game_(game) {
    lstteams.EmptyText = "You have no team yet. Choose two workers below, name them, form a team.";
    for (int head : {1, 2}) lstwres(head).EmptyText = "Nobody works for you yet.";
    txtname.Hint = "Name of the team";
    txtfinisher.Hint = "Its finisher, if any";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmddissolve, &cmdback};
    page.Cancel = &cmdback;
    page.Body =
        ui::Rows({ui::Group("Your teams", {ui::Grow(lstteams)}).Grow(2),
                  ui::Columns({ui::Group("First worker", {ui::Grow(lstwres(1))}).Grow(3),
                               ui::Group("Second worker", {ui::Grow(lstwres(2))}).Grow(3),
                               ui::Group("The team", {ui::Field("Name", txtname),
                                                      ui::Field("Finisher", txtfinisher), lblpair,
                                                      cmdcreate, cmdrename, cmdfinisher})
                                   .Grow(3)})
                      .Grow(3)});
    return page;
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
  World& world() { return game_.World(); }
  /// nullptr when none is selected.
  Team* Chosen() { return lstteams.Key() == 0 ? nullptr : &world().Teams()[lstteams.Key()]; }

  void ShowTeams() {
    std::vector<ui::ListBox::Row> rows;
    for (const int number : PlayerTeams(world())) {
      const Team& team = world().Teams()[number];
      rows.push_back(
          {{team.Name.View(), WorkerName(world(), team.Worker1), WorkerName(world(), team.Worker2),
            team.Finisher == "None" ? "" : team.Finisher.View(), ui::Cell(team.Experience)},
           number});
    }
    const auto count = rows.size();
    lstteams.Fill(std::move(rows));
    lblfacts.Text = count == 0   ? "No team yet"
                    : count == 1 ? "1 team"
                                 : std::to_string(count) + " teams";
  }

  void ShowRoster() {
    for (int head : {1, 2}) FillShort(lstwres(head), SeenOnShows(world()));
    ShowButtons();
  }

  void ShowButtons() {
    const std::string none = Chosen() ? "" : "Choose a team first.";
    for (ui::Button* button : {&cmdrename, &cmdfinisher, &cmddissolve}) EnableUnless(*button, none);
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
    if (desk().Objects(WhyNotTeam(world(), first, second))) return;
    if (desk().Objects(WhyNotTeamName(world(), name)) || desk().Objects(WhyNotFinisher(finisher)))
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
    DissolveTeam(world(), lstteams.Key());
    ShowTeams();
    lstteams.Select(lstteams.Count() > 0 ? 1 : 0);
    lstteams_Click();
  }

  void cmdback_Click() { Close(); }

  using K = ui::ColumnKind;
  Game& game_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstteams{*this,
                       "lstteams",
                       {{"Team", K::Text, 4},
                        {"First", K::Text, 3},
                        {"Second", K::Text, 3},
                        {"Finisher", K::Text, 3},
                        {"Experience", K::Percent, 2, "Grows with every match as a team."}},
                       &frmTagTeams::lstteams_Click};
  ui::Array<ui::ListBox> lstwres{"lstwres", 2, [this](const std::string&, int head) {
                                   return std::make_unique<ui::ListBox>(
                                       *this, "lstwres" + std::to_string(head), ShortColumns(),
                                       [this] { ShowButtons(); });
                                 }};
  ui::TextBox txtname{*this, "txtname"};
  ui::TextBox txtfinisher{*this, "txtfinisher"};
  ui::Label lblpair{*this, "lblpair"};
  ui::Button cmdcreate{*this, "cmdcreate", "Form A Team", &frmTagTeams::cmdcreate_Click};
  ui::Button cmdrename{*this, "cmdrename", "Rename", &frmTagTeams::cmdrename_Click};
  ui::Button cmdfinisher{*this, "cmdfinisher", "Set Finisher", &frmTagTeams::cmdfinisher_Click};
  ui::Button cmddissolve{*this, "cmddissolve", "Dissolve", &frmTagTeams::cmddissolve_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmTagTeams::cmdback_Click};
};

}  // namespace

SCREEN(frmTagTeams)

}  // namespace grapplemont
