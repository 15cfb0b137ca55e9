#include "session/screens/sessionscreens.h"

namespace grapplemont {

namespace {

class frmTitleScreen : public ui::Screen {
 public:
  explicit frmTitleScreen(Game& game)
      : Screen(game.Desk(), "frmTitleScreen", "Grapplemont", ui::Role::Cover), game_(game) {
    imgtitle.Tip = "Click to begin.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Main = &cmdbegin;
    page.Cancel = &cmdquit;
    page.Body = ui::Rows({ui::Grow(imgtitle), ui::Columns({cmdquit, ui::Spacer(), cmdbegin})});
    return page;
  }

  void Load() override {
    for (const char* picture : {"vxm_back.jpg", "vxm_title.jpg"}) {
      if (game_.Disk().Look(game_.PictureFolder() + "/" + picture) == Disk::Kind::File) continue;
      desk().Say("Error Loading",
                 "Sorry, some graphics files seem to be missing, and so the game cannot load.\n"
                 "Please see the help file that comes with this game for details on what files "
                 "should be placed in which directory.");
      return desk().CloseAll();
    }
  }

 private:
  void imgtitle_Click() {
    Close();
    desk().Open("frmDisclaimer");
  }
  void cmdquit_Click() { desk().CloseAll(); }

  Game& game_;
  ui::Picture imgtitle{*this, "imgtitle", "vxm_title.jpg", &frmTitleScreen::imgtitle_Click};
  ui::Button cmdquit{*this, "cmdquit", "Quit", &frmTitleScreen::cmdquit_Click};
  ui::Button cmdbegin{*this, "cmdbegin", "Begin", &frmTitleScreen::imgtitle_Click};
};

}  // namespace

SCREEN(frmTitleScreen)

}  // namespace grapplemont
