#include "rivals/challenge.h"
#include "rivals/screens/rivalscreens.h"

namespace grapplemont {

namespace {

/// The stranger's visit. However it is left, he opens his promotion.
class frmPinky : public ui::Screen {
 public:
  explicit frmPinky(Game& game)
      : Screen(game.Desk(), "frmPinky", "A Visitor", ui::Role::Dialog), game_(game) {
    txtwords.Brief = true;
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Actions = {&cmdback};
    page.Main = &cmdback;
    page.Cancel = &cmdback;
    page.Body = ui::Rows({txtwords});
    return page;
  }

  void Load() override { txtwords.Write(StrangersWords(game_.World())); }

 private:
  void cmdback_Click() {
    if (game_.World().Game().EndCode == kStrangerWaits) MeetStranger(game_.World());
    Close();
    if (game_.RefreshMainScreen) game_.RefreshMainScreen();
  }

  Game& game_;
  ui::Report txtwords{*this, "txtwords"};
  ui::Button cmdback{*this, "cmdback", "So Be It", &frmPinky::cmdback_Click};
};

}  // namespace

SCREEN(frmPinky)

}  // namespace grapplemont
