#include <array>

#include "records/fields/fields.h"
#include "records/world.h"
#include "storylines/feuds.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/screens/storyscreens.h"

namespace grapplemont {

namespace {

/// The counters of a side, by the names of their controls ("txtclean1") and what they are called.
struct Counter {
  const char* Control;
  const char* Caption;
  Natural Feud::*One;
  Natural Feud::*Two;
};
constexpr std::array<Counter, 4> kCounters = {{
    {"txtclean", "Clean wins", &Feud::Clean1, &Feud::Clean2},
    {"txtdirty", "Dirty wins", &Feud::Dirty1, &Feud::Dirty2},
    {"txtinter", "Verbal attacks", &Feud::Interference1, &Feud::Interference2},
    {"txtsneak", "Sneak attacks", &Feud::Sneak1, &Feud::Sneak2},
}};
constexpr int kKinds = static_cast<int>(kCounters.size());

const Counter& CounterOf(int kind) {
  return kCounters[static_cast<std::size_t>(kind - 1)];
}

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
      rows.push_back(RowOf(feuds_, feud, slot));
    }
    lstfeuds.Fill(std::move(rows));
    lblfacts.Text = std::to_string(running) + " of " + std::to_string(kFeuds) + " feuds running.";
  }

  ui::Cell NameCell(const Feud& feud) {
    if (IsFreeSlot(feud)) return {"<<<Empty Feud Slot>>>", ui::Tone::Muted};
    const FeudSides sides = SidesOf(feud);
    return SideName(world(), sides.One) + " vs " + SideName(world(), sides.Two);
  }

  /// Nothing for an empty slot.
  static ui::Cell CountCell(const Feud& feud, long count) {
    return IsFreeSlot(feud) ? ui::Cell("") : ui::Cell(static_cast<int>(count));
  }

  void lstfeuds_Click() {
    const Feud feud = FeudOf(lstfeuds.Key());
    const bool taken = !IsFreeSlot(feud);
    cmdask.Text = taken ? "Ask Maeve" : "Start Feud";
    EnableUnless({cmdstat, cmdend}, taken ? "" : "There is no feud in this slot.");
    ShowScore(feud);
    txtmaeve.Write(taken ? "Ask her where this feud should go." : "");
  }

  void ShowScore(const Feud& feud) {
    const bool free = IsFreeSlot(feud);
    const FeudSides sides = SidesOf(feud);
    lstscore.Clear();
    lstscore.SetColumns({{""},
                         {free ? "Side one" : SideName(world(), sides.One), K::Number},
                         {free ? "Side two" : SideName(world(), sides.Two), K::Number}});
    if (free) return;
    for (const Counter& counter : kCounters)
      lstscore.Add({counter.Caption, ui::Cell(feud.*counter.One), ui::Cell(feud.*counter.Two)});
    const FeudScore score = FeudWins(feud);
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
  const CellColumns<Feud> feuds_ = {
      {{"Feud", K::Text, 5}, [this](const Feud& feud) { return NameCell(feud); }},
      {{"Heat", K::Percent, 2}, [](const Feud& feud) { return CountCell(feud, feud.Heat); }},
      {{"Days", K::Number, 1, "Days since it began."},
       [this](const Feud& feud) {
         return CountCell(feud, (world().Today() - Day(feud.Started)).count());
       }},
      {{"Wins 1", K::Number, 1, "Wins and attacks of the side named first."},
       [](const Feud& feud) { return CountCell(feud, FeudWins(feud).One); }},
      {{"Wins 2", K::Number, 1, "Wins and attacks of the other side."},
       [](const Feud& feud) { return CountCell(feud, FeudWins(feud).Two); }}};
  ui::ListBox lstfeuds{*this, "lstfeuds", HeadingsOf(feuds_), &frmFeuds::lstfeuds_Click,
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

namespace {

class frmFeudStat : public ui::Screen {
 public:
  frmFeudStat(Game& game, int slot)
      : Screen(game.Desk(), "frmFeudStat", "Feud Statistics"), game_(game), slot_(slot) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdend, &cmdback};
    page.Main = &cmdback;
    page.Cancel = &cmdback;
    page.Body = ui::Rows(
        {ui::Group("The feud", {ui::Field("Heat", txtheat), ui::Field("Started", txtstarted)}),
         ui::Columns({ui::Group("Side one", SideBox(txtside1, counts1, txtwon1)),
                      ui::Group("Side two", SideBox(txtside2, counts2, txtwon2))}),
         ui::Spacer()});
    return page;
  }

  void Load() override { Show(); }
  void Return() override { Show(); }

 private:
  using Labels = ui::Array<ui::Label>;

  static std::vector<ui::Box> SideBox(ui::Label& name, Labels& counts, ui::Label& won) {
    std::vector<ui::Box> box{name};
    for (int kind = 1; kind <= kKinds; ++kind)
      box.push_back(ui::Field(CounterOf(kind).Caption, counts(kind)));
    box.push_back(ui::Field("Won", won));
    return box;
  }

  Labels CountLabels(const std::string& side) {
    return Labels("", kKinds, [this, side](const std::string&, int kind) {
      return std::make_unique<ui::Label>(*this, CounterOf(kind).Control + side);
    });
  }

  void Show() {
    const World& world = game_.World();
    const Feud& feud = world.Feuds()[slot_];
    const FeudSides sides = SidesOf(feud);
    const FeudScore score = FeudWins(feud);
    txtside1.Text = SideName(world, sides.One);
    txtside2.Text = SideName(world, sides.Two);
    lblfacts.Text = txtside1.Text.Get() + " vs " + txtside2.Text.Get();
    txtheat.Text = std::to_string(feud.Heat) + "%";
    txtstarted.Text = PlainDate(feud.Started);
    for (int kind = 1; kind <= kKinds; ++kind) {
      counts1(kind).Text = std::to_string(feud.*CounterOf(kind).One);
      counts2(kind).Text = std::to_string(feud.*CounterOf(kind).Two);
    }
    txtwon1.Text = std::to_string(score.One);
    txtwon2.Text = std::to_string(score.Two);
  }

  void cmdend_Click() {
    if (EndFeudAfterAsking(game_, slot_)) Close();
  }
  void cmdback_Click() { Close(); }

  Game& game_;
  int slot_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Label txtheat{*this, "txtheat"};
  ui::Label txtstarted{*this, "txtstarted"};
  ui::Label txtside1{*this, "txtside1"};
  Labels counts1 = CountLabels("1");
  ui::Label txtwon1{*this, "txtwon1"};
  ui::Label txtside2{*this, "txtside2"};
  Labels counts2 = CountLabels("2");
  ui::Label txtwon2{*this, "txtwon2"};
  ui::Button cmdend{*this, "cmdend", "End Feud", &frmFeudStat::cmdend_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmFeudStat::cmdback_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmFeudStat(Game& game, int slot) {
  return std::make_unique<frmFeudStat>(game, slot);
}

bool EndFeudAfterAsking(Game& game, int slot) {
  if (!game.Desk().Ask("End Feud?", "End this feud off-camera?", ui::Default::No)) return false;
  EndFeudOffCamera(game.World(), slot);
  return true;
}

}  // namespace grapplemont
