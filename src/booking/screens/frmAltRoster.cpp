#include <algorithm>

#include "booking/screens/bookingscreens.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "storylines/partners.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

/// The roster to look things up in while a show is being booked.
class frmAltRoster : public GameScreen {
 public:
  explicit frmAltRoster(Game& game) : GameScreen(game, "frmAltRoster", "Roster") {
    lstwres.EmptyText = "Nobody works for you yet.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Grow(lstwres)}), &lblfacts, {&cmdstats});
  }

  void Return() override {
    ShowRoster();
    ShowButtons();
  }

 private:
  bool IsOnTheCard(const Worker& worker) {
    const auto& sheet = world().Segments();
    return std::any_of(sheet.begin(), sheet.end(),
                       [&](const Segment& segment) { return TakesPart(segment, worker.Uid); });
  }

  ui::Cell TeamsCell(const Worker& worker) {
    std::vector<std::string> names;
    for (const Team& team : world().Teams())
      if (team.Worker1 == worker.Uid || team.Worker2 == worker.Uid)
        names.push_back(team.Name.Str());
    return Joined(names);
  }

  ui::Cell ManagerCell(const Worker& worker) {
    const Worker* manager = ManagerOf(world(), worker);
    return manager ? manager->Name.View() : "";
  }

  static ui::Cell Named(std::string_view name) { return name == "None" ? "" : name; }

  void ShowRoster() {
    const std::vector<const Worker*> seen = SeenOnShows(world());
    const auto onCard = std::count_if(seen.begin(), seen.end(),
                                      [&](const Worker* worker) { return IsOnTheCard(*worker); });
    lblfacts.Text = Counted(std::ssize(seen), "worker") + ", " + std::to_string(onCard) +
                    " of them on the card";
    FillTable(lstwres, columns_, seen);
  }

  void ShowButtons() { EnableUnless(cmdstats, lstwres.Key() == 0 ? "Choose somebody first." : ""); }

  using K = ui::ColumnKind;
  ui::Label lblfacts{*this, "lblfacts"};
  const CellColumns<Worker> columns_ = {
      {{"Name"}, [](const Worker& worker) { return worker.Name.View(); }},
      {{"Over", K::Number, 0, "Popularity."},
       [](const Worker& worker) { return ui::Cell(worker.Over); }},
      {{.Title = "Disposition", .Kind = K::Tag, .Short = "Disp."}, DispositionCell},
      {{"Position"}, [](const Worker& worker) { return PositionText(worker.Position); }},
      {{"Condition", K::Percent},
       [](const Worker& worker) {
         return worker.Status == "Nor" ? ui::Cell(worker.Condition) : StatusCell(worker);
       }},
      {{"Morale", K::Number}, [](const Worker& worker) { return ui::Cell(worker.Morale); }},
      {{"Stable"}, [](const Worker& worker) { return Named(worker.Stable); }},
      {{"Teams"}, [this](const Worker& worker) { return TeamsCell(worker); }},
      {{"Manager"}, [this](const Worker& worker) { return ManagerCell(worker); }},
      {{"Split"}, [](const Worker& worker) { return Named(worker.Split); }},
      {{"Card", K::Tag, 0, "Booked on the sheet."}, [this](const Worker& worker) {
         return ui::Cell(IsOnTheCard(worker) ? "Booked" : "", ui::Tone::Gold);
       }}};
  ui::ListBox lstwres{*this, "lstwres", WithFaces(world(), HeadingsOf(columns_)),
                      &frmAltRoster::ShowButtons, cmdstats};
  ui::Button cmdstats{*this, "cmdstats", "Stats",
                      [this] { desk().Open(MakefrmQuickStat(game_, lstwres.Key())); }};
};

/// The player's Titles to look up while a show is being booked.
class frmAltBelts : public GameScreen {
 public:
  explicit frmAltBelts(Game& game) : GameScreen(game, "frmAltBelts", "Titles") {
    lsttitles.EmptyText = "Your promotion has no Title.";
    lsthistory.EmptyText = "Choose a Title to see who has held it.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Columns({ui::Group("", {ui::Grow(lsttitles)}).Grow(9),
                               ui::Group("Who has held it", {ui::Grow(lsthistory)}).Grow(5)}),
                  &lblfacts);
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
  void ShowTitles() {
    std::vector<ui::ListBox::Row> rows;
    int vacant = 0;
    const auto columns = TitleTable(world());
    for (const grapplemont::Title& title : world().Titles()) {
      if (!IsPlayers(world(), title)) continue;
      if (title.Holder == 0) ++vacant;
      rows.push_back(RowOf(columns, title, world().Titles().NumberOf(title)));
    }
    lblfacts.Text = Counted(std::ssize(rows), "Title") + ", " + std::to_string(vacant) + " vacant";
    lsttitles.Fill(std::move(rows));
  }

  void ShowHistory() {
    const int number = lsttitles.Key();
    lsthistory.Fill(number == 0 ? std::vector<ui::ListBox::Row>{}
                                : ReignRows(world().Titles()[number]));
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lsttitles{*this, "lsttitles", HeadingsOf(TitleTable(world())),
                        &frmAltBelts::ShowHistory};
  ui::ListBox lsthistory{*this, "lsthistory", ReignColumns()};
};

}  // namespace

SCREEN(frmAltRoster)
SCREEN(frmAltBelts)

}  // namespace grapplemont
