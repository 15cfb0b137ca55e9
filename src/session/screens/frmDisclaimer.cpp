#include <algorithm>
#include <array>

#include "records/world.h"
#include "session/screens/sessionscreens.h"
#include "session/slots.h"

namespace grapplemont {

namespace {

/// "lblbelt" for "belt.dat".
std::string LabelName(std::string_view file) {
  return "lbl" + std::string(file.substr(0, file.find('.')));
}

std::string FileLine(std::string_view file, bool found) {
  std::string capital(file);
  capital.front() = static_cast<char>(capital.front() - 'a' + 'A');
  if (found) return capital + " data file found!";
  // The last line of the list has its capital in both forms.
  return "ERROR : " + (file == "wrestler.dat" ? capital : std::string(file)) +
         " data file missing!";
}

class frmDisclaimer : public ui::Screen {
 public:
  explicit frmDisclaimer(Game& game)
      : Screen(game.Desk(), "frmDisclaimer", "Before The Bell", ui::Role::Cover), game_(game) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Main = &cmdcontinue;
    page.Cancel = &cmdquit;
    std::vector<ui::Box> files;
    for (int i = 1; i <= lblfiles.Count(); ++i) files.emplace_back(lblfiles(i));
    files.emplace_back(lblverdict);
    page.Body = ui::Columns({ui::Group("", {lblstatement}).Grow(3),
                             ui::Group("The world's files", std::move(files)).Grow(2)});
    page.Actions = {&cmdquit, &cmdcontinue};
    return page;
  }

  void Load() override {
    const auto missing = MissingDataFiles(game_.Disk(), game_.DataFolder());
    for (int i = 1; i <= lblfiles.Count(); ++i) {
      const std::string_view file = kDataSet[static_cast<std::size_t>(i - 1)];
      const bool found = std::find(missing.begin(), missing.end(), file) == missing.end();
      lblfiles(i).Text = FileLine(file, found);
      lblfiles(i).Colour = found ? ui::Tone::Muted : ui::Tone::Red;
    }
    lblverdict.Visible = !missing.empty();
    cmdcontinue.Enabled = missing.empty();
    if (missing.empty()) return;
    std::string names;
    for (const std::string& file : missing) names += (names.empty() ? "" : ", ") + file;
    lblverdict.Text = "The game cannot go on without " + names +
                      ". Put what is missing into the folder data, then start again.";
    cmdcontinue.Tip = "Files of the default world are missing.";
  }

 private:
  void imgback_Click() {
    Load();  // what was missing may have been put back
    if (cmdcontinue.Enabled) return cmdcontinue_Click();
    desk().Say("Error!", lblverdict.Text);
  }
  void cmdcontinue_Click() {
    Close();
    desk().Open("frmGameMenu");
  }
  void cmdquit_Click() { desk().CloseAll(); }

  Game& game_;
  ui::Picture imgback{*this, "imgback", "vxm_back.jpg", &frmDisclaimer::imgback_Click};
  ui::Label lblstatement{
      *this, "lblstatement",
      "Grapplemont is a game about running a wrestling promotion. It is free, and it is "
      "unofficial: "
      "it has no connection with any promotion, network, sponsor or person of the real "
      "world.\n\nEverybody and everything you are about to meet is made up. Should a name, a "
      "slogan or a moustache remind you of somebody, that is chance, or wrestling.\n\nThe world "
      "is yours: you may change the default data as you like, and what you then call people is "
      "up to you."};
  ui::Array<ui::Label> lblfiles{"lblfiles", static_cast<int>(kDataSet.size()),
                                [this](const std::string&, int i) {
                                  return std::make_unique<ui::Label>(
                                      *this, LabelName(kDataSet[static_cast<std::size_t>(i - 1)]));
                                }};
  ui::Label lblverdict{*this, "lblverdict"};
  ui::Button cmdquit{*this, "cmdquit", "Quit", &frmDisclaimer::cmdquit_Click};
  ui::Button cmdcontinue{*this, "cmdcontinue", "Continue", &frmDisclaimer::cmdcontinue_Click};
};

}  // namespace

SCREEN(frmDisclaimer)

}  // namespace grapplemont
