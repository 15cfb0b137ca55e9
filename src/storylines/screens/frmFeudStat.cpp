#include <array>

#include "records/fields/fields.h"
#include "records/world.h"
#include "storylines/feuds.h"
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
