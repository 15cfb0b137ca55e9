#include "info/mailoptions.h"
#include "records/world.h"
#include "ui/gamescreen.h"

namespace grapplemont {

namespace {

/// In the order of GameInfo.Reporter, from 0.
constexpr std::array<const char*, 3> kReporters = {"The Lamplighter", "Rafe Tolland", "QVD"};
constexpr int kOptions = static_cast<int>(kMailOptionTable.size());

const MailOption& OptionOf(int number) {
  return kMailOptionTable[static_cast<std::size_t>(number - 1)];
}

/// Every choice counts from the moment it is made; there is nothing to save and nothing to lose.
class frmOptions : public GameScreen {
 public:
  explicit frmOptions(Game& game)
      : GameScreen(game, "frmOptions", "Options", {.Back = "Done", .BackName = "cmddone"}) {
    for (int number = 1; number <= kOptions; ++number)
      for (const Term& choice : kMailOptions)
        if (!OptionOf(number).TwoWay || choice.Code != kMailRivals)
          combos(number).Add(std::string(choice.Says), choice.Code);
    int reporter = 0;
    for (const char* name : kReporters) cmbreport.Add(name, reporter++);
    cmbload.Add("Graphics Set Default", 0);
    for (int set = 1; set <= 4; ++set) cmbload.Add("Graphics Set " + std::to_string(set), set);
  }

  ui::Page Layout() override {
    std::vector<ui::Box> world, own;
    for (int number = 1; number <= kOptions; ++number)
      (OptionOf(number).TwoWay ? own : world)
          .push_back(ui::Field(OptionOf(number).Covers, combos(number)));
    return PageOf(
        ui::Columns(
            {ui::Rows({ui::Group("Mail about the world", std::move(world)), ui::Spacer()}).Grow(3),
             ui::Rows(
                 {ui::Group("Set all mail at once", {cmdalways, cmddirect, cmdnever}),
                  ui::Group("Mail about your own people", std::move(own)),
                  ui::Group("Shows", {ui::Field("Match reporter", cmbreport)}),
                  ui::Group("While time passes", {ui::Field("Loading screens", cmbload), cmdview}),
                  ui::Spacer()})
                 .Grow(2)}),
        &lblfacts);
  }

  void Load() override { Show(); }
  void Return() override { Show(); }

 private:
  GameInfo& state() { return game_.World().Game(); }

  void Show() {
    for (int number = 1; number <= kOptions; ++number) {
      const MailOption& option = OptionOf(number);
      const int choice = state().*option.Choice;
      combos(number).SelectKey(option.TwoWay && choice == kMailRivals ? int(kMailAlways) : choice);
    }
    cmbreport.SelectKey(state().Reporter);
    cmbload.SelectKey(state().LoadingSet);
  }

  void SetAll(int choice) {
    SetAllMailOptions(state(), choice);
    Show();
  }

  void cmbmail_Click(int number) { SetMailOption(state(), OptionOf(number), combos(number).Key()); }
  void cmbreport_Click() { state().Reporter = cmbreport.Key(); }
  void cmbload_Click() { state().LoadingSet = cmbload.Key(); }
  void cmdview_Click() { desk().Open("frmLoadingScreens"); }
  void cmdalways_Click() { SetAll(kMailAlways); }
  void cmddirect_Click() { SetAll(kMailRivals); }
  void cmdnever_Click() { SetAll(kMailNever); }

  ui::Label lblfacts{*this, "lblfacts",
                     "A direct rival or above is a promotion of your own size or bigger. News of "
                     "your own promotion always comes."};
  ui::Array<ui::ComboBox> combos{"", kOptions, [this](const std::string&, int number) {
                                   return std::make_unique<ui::ComboBox>(
                                       *this, OptionOf(number).Control,
                                       [this, number] { cmbmail_Click(number); });
                                 }};
  ui::ComboBox cmbreport{*this, "cmbreport", &frmOptions::cmbreport_Click};
  ui::ComboBox cmbload{*this, "cmbload", &frmOptions::cmbload_Click};
  ui::Button cmdalways{*this, "cmdalways", "Always", &frmOptions::cmdalways_Click};
  ui::Button cmddirect{*this, "cmddirect", "Only for direct rivals or above",
                       &frmOptions::cmddirect_Click};
  ui::Button cmdnever{*this, "cmdnever", "Never", &frmOptions::cmdnever_Click};
  ui::Button cmdview{*this, "cmdview", "View", &frmOptions::cmdview_Click};
};

}  // namespace

SCREEN(frmOptions)

}  // namespace grapplemont
