#include "booking/screens/bookingscreens.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "storylines/managers.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

/// The roster to look things up in while a show is being booked.
class frmAltRoster : public ui::Screen {
 public:
  explicit frmAltRoster(Game& game) : Screen(game.Desk(), "frmAltRoster", "Roster"), game_(game) {
    lstwres.EmptyText = "Nobody works for you yet.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdstats, &cmdback};
    page.Cancel = &cmdback;
    page.Body = ui::Group("", {ui::Grow(lstwres)});
    return page;
  }

  void Load() override { Return(); }
  void Return() override {
    ShowRoster();
    ShowButtons();
  }

 private:
  World& world() { return game_.World(); }

  bool IsOnTheCard(const Worker& worker) {
    for (const Segment& segment : world().Segments())
      if (TakesPart(segment, worker.Uid)) return true;
    return false;
  }

  std::string TeamsOf(const Worker& worker) {
    std::string names;
    for (const Team& team : world().Teams())
      if (team.Worker1 == worker.Uid || team.Worker2 == worker.Uid)
        names += (names.empty() ? "" : ", ") + team.Name.Str();
    return names;
  }

  static std::string_view Named(std::string_view name) { return name == "None" ? "" : name; }

  void ShowRoster() {
    std::vector<ui::ListBox::Row> rows;
    int onCard = 0;
    for (const Worker* worker : SeenOnShows(world())) {
      const bool booked = IsOnTheCard(*worker);
      if (booked) ++onCard;
      const Worker* manager = ManagerOf(world(), *worker);
      rows.push_back({{worker->Name.View(), PositionText(worker->Position),
                       DispositionCell(*worker), ui::Cell(worker->Over),
                       worker->Status == "Nor" ? ui::Cell(worker->Condition) : StatusCell(*worker),
                       ui::Cell(worker->Morale), Named(worker->Stable), TeamsOf(*worker),
                       manager ? manager->Name.View() : "", Named(worker->Split),
                       ui::Cell(booked ? "Booked" : "", ui::Tone::Gold)},
                      worker->Uid});
    }
    lblfacts.Text = Counted(std::ssize(rows), "worker") + ", " + std::to_string(onCard) +
                    " of them on the card";
    lstwres.Fill(std::move(rows));
  }

  void ShowButtons() { EnableUnless(cmdstats, lstwres.Key() == 0 ? "Choose somebody first." : ""); }

  void cmdstats_Click() { desk().Open(MakefrmQuickStat(game_, lstwres.Key())); }
  void cmdback_Click() { Close(); }

  using K = ui::ColumnKind;
  Game& game_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstwres{*this,
                      "lstwres",
                      {{"Name"},
                       {"Position"},
                       {"Disp.", K::Tag},
                       {"Over", K::Number, 0, "Popularity."},
                       {"Condition", K::Percent},
                       {"Morale", K::Percent},
                       {"Stable"},
                       {"Teams"},
                       {"Manager"},
                       {"Split"},
                       {"Card", K::Tag, 0, "Booked on the sheet."}},
                      &frmAltRoster::ShowButtons,
                      cmdstats};
  ui::Button cmdstats{*this, "cmdstats", "Stats", &frmAltRoster::cmdstats_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmAltRoster::cmdback_Click};
};

}  // namespace

SCREEN(frmAltRoster)

}  // namespace grapplemont
