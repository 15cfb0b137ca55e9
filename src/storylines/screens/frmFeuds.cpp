#include "records/world.h"
#include "storylines/feuds.h"
#include "storylines/screens/storyscreens.h"

namespace grapplemont {

namespace {

/// The eight feud slots as one table, the score of the selected feud beside it.
class frmFeuds : public ui::Screen {
 public:
  explicit frmFeuds(Game& game) : Screen(game.Desk(), "frmFeuds", "Feuds"), game_(game) {
    lstscore.EmptyText =
        "Nobody feuds in this slot. Start a feud, then feed it with matches, "
        "interviews and angles.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback, &cmdend, &cmdstat, &cmdask};
    page.Main = &cmdask;
    page.Cancel = &cmdback;
    page.Body = ui::Columns({ui::Group("", {ui::Grow(lstfeuds)}).Grow(3),
                             ui::Rows({ui::Group("The score so far", {ui::Grow(lstscore)}).Grow(3),
                                       ui::Group("Maeve's advice", {ui::Grow(txtmaeve)}).Grow(2)})
                                 .Grow(2)});
    return page;
  }

  void Load() override {
    ShowFeuds();
    lstfeuds.Select(1);
    lstfeuds_Click();
  }

  void Return() override {
    ShowFeuds();
    // A feud that was just started is the one to look at.
    if (next_ != 0 && FreeFeudSlot(world()) != next_) lstfeuds.SelectKey(next_);
    next_ = 0;
    lstfeuds_Click();
  }

 private:
  World& world() { return game_.World(); }

  /// The feud of a slot; an empty one where the file is too short to have it.
  Feud FeudOf(int slot) {
    return slot >= 1 && slot <= world().Feuds().Count() ? world().Feuds()[slot] : Feud{};
  }

  void ShowFeuds() {
    std::vector<ui::ListBox::Row> rows;
    int running = 0;
    for (int slot = 1; slot <= kFeuds; ++slot) {
      const Feud feud = FeudOf(slot);
      if (!IsFreeSlot(feud)) ++running;
      rows.push_back({RowOf(feud), slot});
    }
    lstfeuds.Fill(std::move(rows));
    lblfacts.Text = std::to_string(running) + " of " + std::to_string(kFeuds) + " feuds running.";
  }

  std::vector<ui::Cell> RowOf(const Feud& feud) {
    if (IsFreeSlot(feud))
      return {ui::Cell("<<<Empty Feud Slot>>>", ui::Tone::Muted), "", "", "", ""};
    const FeudSides sides = SidesOf(feud);
    const FeudScore score = FeudWins(feud);
    const auto days = (world().Today() - Day(feud.Started)).count();
    return {SideName(world(), sides.One) + " vs " + SideName(world(), sides.Two),
            ui::Cell(feud.Heat), ui::Cell(static_cast<int>(days)), ui::Cell(score.One),
            ui::Cell(score.Two)};
  }

  void lstfeuds_Click() {
    const Feud feud = FeudOf(lstfeuds.Key());
    const bool taken = !IsFreeSlot(feud);
    cmdask.Text = taken ? "Ask Maeve" : "Start Feud";
    for (ui::Button* button : {&cmdstat, &cmdend}) {
      button->Enabled = taken;
      button->Tip = taken ? "" : "There is no feud in this slot.";
    }
    ShowScore(feud);
    txtmaeve.Write(taken ? "Ask her where this feud should go." : "");
  }

  void ShowScore(const Feud& feud) {
    lstscore.Clear();
    lstscore.SetColumns({{""}, {"Side one", K::Number}, {"Side two", K::Number}});
    if (IsFreeSlot(feud)) return;
    const FeudSides sides = SidesOf(feud);
    lstscore.SetColumns({{""},
                         {SideName(world(), sides.One), K::Number},
                         {SideName(world(), sides.Two), K::Number}});
    const FeudScore score = FeudWins(feud);
    lstscore.Add({"Clean wins", ui::Cell(feud.Clean1), ui::Cell(feud.Clean2)});
    lstscore.Add({"Dirty wins", ui::Cell(feud.Dirty1), ui::Cell(feud.Dirty2)});
    lstscore.Add({"Verbal attacks", ui::Cell(feud.Interference1), ui::Cell(feud.Interference2)});
    lstscore.Add({"Sneak attacks", ui::Cell(feud.Sneak1), ui::Cell(feud.Sneak2)});
    lstscore.Add({"Won", ui::Cell(score.One), ui::Cell(score.Two)});
  }

  void lstfeuds_DblClick() {
    if (IsFreeSlot(FeudOf(lstfeuds.Key()))) return Start();
    cmdstat_Click();
  }

  void Start() {
    next_ = FreeFeudSlot(world());
    desk().Open("frmFeudStart");
  }

  void cmdask_Click() {
    const Feud feud = FeudOf(lstfeuds.Key());
    if (IsFreeSlot(feud)) return Start();
    txtmaeve.Write(AssessFeud(world(), feud));
  }

  void cmdstat_Click() { desk().Open(MakefrmFeudStat(game_, lstfeuds.Key())); }

  void cmdend_Click() {
    if (!EndFeudAfterAsking(game_, lstfeuds.Key())) return;
    ShowFeuds();
    lstfeuds_Click();
  }

  void cmdback_Click() {
    Close();
    if (game_.RefreshMainScreen) game_.RefreshMainScreen();
  }

  using K = ui::ColumnKind;
  Game& game_;
  int next_ = 0;  // the slot that a feud being started will take
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstfeuds{*this,
                       "lstfeuds",
                       {{"Feud", K::Text, 5},
                        {"Heat", K::Percent, 2},
                        {"Days", K::Number, 1, "Days since it began."},
                        {"Wins 1", K::Number, 1, "Wins and attacks of the side named first."},
                        {"Wins 2", K::Number, 1, "Wins and attacks of the other side."}},
                       &frmFeuds::lstfeuds_Click,
                       &frmFeuds::lstfeuds_DblClick};
  ui::ListBox lstscore{*this, "lstscore"};
  ui::Report txtmaeve{*this, "txtmaeve"};
  ui::Button cmdback{*this, "cmdback", "Back", &frmFeuds::cmdback_Click};
  ui::Button cmdend{*this, "cmdend", "End Feud", &frmFeuds::cmdend_Click};
  ui::Button cmdstat{*this, "cmdstat", "Statistics", &frmFeuds::cmdstat_Click};
  ui::Button cmdask{*this, "cmdask", "Start Feud", &frmFeuds::cmdask_Click};
};

}  // namespace

SCREEN(frmFeuds)

}  // namespace grapplemont
