#include "session/screens/sessionscreens.h"

namespace grapplemont {

namespace {

class frmGameMenu : public ui::Screen {
 public:
  explicit frmGameMenu(Game& game)
      : Screen(game.Desk(), "frmGameMenu", "Grapplemont", ui::Role::Cover) {
    cmdeditor.Enabled = desk().Knows("frmEditor");
    if (!cmdeditor.Enabled) cmdeditor.Tip = "The editor comes with a later version.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Main = &cmdnewgame;
    page.Cancel = &cmdquit;
    page.Body =
        ui::Rows({ui::Grow(imgtitle), cmdnewgame, cmdloadgame, cmdeditor, cmdcredits, cmdquit});
    return page;
  }

 private:
  void cmdnewgame_Click() { desk().Open("frmNewGame"); }
  void cmdloadgame_Click() { desk().Open("frmLoadGame"); }
  void cmdeditor_Click() { desk().Open("frmEditor"); }
  void cmdcredits_Click() { desk().Open("frmCredits"); }
  void cmdquit_Click() {
    if (desk().Ask("Quit?", "Are you sure you want to quit?")) desk().CloseAll();
  }

  ui::Picture imgback{*this, "imgback", "vxm_back.jpg"};
  ui::Picture imgtitle{*this, "imgtitle", "vxm_title.jpg"};
  ui::Button cmdnewgame{*this, "cmdnewgame", "New Game", &frmGameMenu::cmdnewgame_Click};
  ui::Button cmdloadgame{*this, "cmdloadgame", "Load Game", &frmGameMenu::cmdloadgame_Click};
  ui::Button cmdeditor{*this, "cmdeditor", "File Editor", &frmGameMenu::cmdeditor_Click};
  ui::Button cmdcredits{*this, "cmdcredits", "Credits", &frmGameMenu::cmdcredits_Click};
  ui::Button cmdquit{*this, "cmdquit", "Quit", &frmGameMenu::cmdquit_Click};
};

}  // namespace

SCREEN(frmGameMenu)

}  // namespace grapplemont
