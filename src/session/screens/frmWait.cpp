#include "records/world.h"
#include "session/home.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

class frmWait : public ui::Screen {
 public:
  explicit frmWait(Game& game) : Screen(game.Desk(), "frmWait", "One Moment", ui::Role::Wait) {
    const int set = game.HasWorld() ? int(game.World().Game().LoadingSet) : 0;
    imgwait.File = DrawWaitingPicture(game.Disk(), game.PictureFolders(), set,
                                      *game.NewDraws(Game::kPictures));
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Body = ui::Rows({ui::Grow(imgwait), lblstep});
    return page;
  }

 private:
  ui::Picture imgwait{*this, "imgwait"};
  ui::Label lblstep{*this, "lblstep"};
};

/// The galleries of waiting pictures, and how to add one's own.
class frmLoadingScreens : public GameScreen {
 public:
  explicit frmLoadingScreens(Game& game)
      : GameScreen(game, "frmLoadingScreens", "Loading Screens") {
    cmbset.Add("Graphics Set Default", 0);
    for (int set = 1; set <= 4; ++set) cmbset.Add("Graphics Set " + std::to_string(set), set);
    cmbset.SelectKey(game.HasWorld() ? int(game.World().Game().LoadingSet) : 0);
  }

  ui::Page Layout() override {
    return PageOf(ui::Rows({ui::Columns({ui::Field("Set", cmbset), lblcount, ui::Spacer()}),
                            ui::Grow(imgpicture), lbltext, lblfolder}),
                  nullptr, {&cmdprevious, &cmdnext});
  }

  void Load() override { cmbset_Click(); }

 private:
  void cmbset_Click() {
    pictures_ = WaitingPictures(game_.Disk(), game_.PictureFolders(), cmbset.Key());
    at_ = 0;
    const std::string prefix = "VXM_Set" + std::to_string(cmbset.Key());
    lbltext.Text =
        cmbset.Key() == 0
            ? "These are the pictures that the game brings along."
            : "To use this graphics set (maximum 10 graphics per set), please add your " + prefix +
                  "_01.jpg to " + prefix +
                  "_10.jpg. They must be in order, and there must be at least 1 graphic present.";
    lblfolder.Text = "Pictures of your own belong into " + game_.PictureFolders().front() + ".";
    lblfolder.Visible = cmbset.Key() != 0;
    ShowPicture();
  }

  void ShowPicture() {
    const auto count = pictures_.size();
    imgpicture.File = count == 0 ? std::string() : pictures_[at_];
    lblcount.Text = count == 0 ? "No graphics in this set."
                               : std::to_string(at_ + 1) + " of " + std::to_string(count) + ", " +
                                     pictures_[at_];
    EnableUnless({cmdprevious, cmdnext}, count > 1 ? "" : "There is no other picture.");
  }

  void cmdprevious_Click() {
    at_ = (at_ + pictures_.size() - 1) % pictures_.size();
    ShowPicture();
  }
  void cmdnext_Click() {
    at_ = (at_ + 1) % pictures_.size();
    ShowPicture();
  }

  std::vector<std::string> pictures_;
  std::size_t at_ = 0;
  ui::ComboBox cmbset{*this, "cmbset", &frmLoadingScreens::cmbset_Click};
  ui::Label lblcount{*this, "lblcount"};
  ui::Picture imgpicture{*this, "imgpicture"};
  ui::Label lbltext{*this, "lbltext"}, lblfolder{*this, "lblfolder"};
  ui::Button cmdprevious{*this, "cmdprevious", "Previous", &frmLoadingScreens::cmdprevious_Click};
  ui::Button cmdnext{*this, "cmdnext", "Next", &frmLoadingScreens::cmdnext_Click};
};

}  // namespace

SCREEN(frmWait)
SCREEN(frmLoadingScreens)

}  // namespace grapplemont
