#include <algorithm>

#include "records/fields/wording.h"
#include "records/world.h"
#include "session/home.h"
#include "session/layers.h"
#include "session/screens/frmLoadGame.h"
#include "session/slots.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;

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
      if (!FileIn(game_.Disk(), game_.PictureFolders(), picture).empty()) continue;
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
    const auto missing = MissingDataFiles(game_.Disk(), game_.DataFolders());
    for (int i = 1; i <= lblfiles.Count(); ++i) {
      const std::string_view file = kDataSet[static_cast<std::size_t>(i - 1)];
      const bool found = std::find(missing.begin(), missing.end(), file) == missing.end();
      lblfiles(i).Text = FileLine(file, found);
      lblfiles(i).Colour = found ? ui::Tone::Muted : ui::Tone::Red;
    }
    lblverdict.Visible = !missing.empty();
    cmdcontinue.Enabled = missing.empty();
    if (missing.empty()) return;
    lblverdict.Text = "The game cannot go on without " + Joined(missing) +
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

class frmGameMenu : public ui::Screen {
 public:
  explicit frmGameMenu(Game& game)
      : Screen(game.Desk(), "frmGameMenu", "Grapplemont", ui::Role::Cover), game_(game) {
    cmdcontinue.Visible = false;
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Main = &cmdcontinue;
    page.Then = &cmdnewgame;
    page.Cancel = &cmdquit;
    page.Body = ui::Rows({ui::Grow(imgtitle), cmdcontinue, cmdnewgame, cmdloadgame, cmdeditor,
                          cmdcredits, cmdabout, cmdquit});
    return page;
  }

  void Load() override { Return(); }
  void Return() override {
    SlotSummary last;
    played_ = SlotToContinue(game_.Disk(), game_.Home(), [&](int slot) {
      last = ReadSlotSummary(game_.Disk(), game_.SlotFolder(slot));
      return last.Playable;
    });
    cmdcontinue.Visible = last.Playable;
    cmdcontinue.Tip = "Goes on with " + last.Caption + ", on " + last.Today + ".";
  }

 private:
  void cmdcontinue_Click() { EnterSlot(game_, played_); }
  void cmdnewgame_Click() { desk().Open("frmNewGame"); }
  void cmdloadgame_Click() { desk().Open("frmLoadGame"); }
  void cmdeditor_Click() { desk().Open("frmEditor"); }
  void cmdcredits_Click() { desk().Open("frmCredits"); }
  void cmdabout_Click() { desk().Open("frmAbout"); }
  void cmdquit_Click() {
    if (desk().Ask("Quit?", "Are you sure you want to quit?")) desk().CloseAll();
  }

  Game& game_;
  int played_ = 0;
  ui::Picture imgback{*this, "imgback", "vxm_back.jpg"};
  ui::Picture imgtitle{*this, "imgtitle", "vxm_title.jpg"};
  ui::Button cmdcontinue{*this, "cmdcontinue", "Continue", &frmGameMenu::cmdcontinue_Click};
  ui::Button cmdnewgame{*this, "cmdnewgame", "New Game", &frmGameMenu::cmdnewgame_Click};
  ui::Button cmdloadgame{*this, "cmdloadgame", "Load Game", &frmGameMenu::cmdloadgame_Click};
  ui::Button cmdeditor{*this, "cmdeditor", "File Editor", &frmGameMenu::cmdeditor_Click};
  ui::Button cmdcredits{*this, "cmdcredits", "Credits", &frmGameMenu::cmdcredits_Click};
  ui::Button cmdabout{*this, "cmdabout", "About", &frmGameMenu::cmdabout_Click};
  ui::Button cmdquit{*this, "cmdquit", "Quit", &frmGameMenu::cmdquit_Click};
};

class frmCredits : public GameScreen {
 public:
  explicit frmCredits(Game& game)
      : GameScreen(game, "frmCredits", "Credits", {.Is = ui::Role::Cover}) {
    rptcredits.Write(
        {{Style::Heading, "Grapplemont"},
         {Style::Body, "Made by the people of the Grapplemont project."},
         {Style::Strong, "The rules, the records, the screens, the prose, the pictures"},
         {Style::Body, "Written and drawn for this game, every line."},
         {Style::Strong, "The world"},
         {Style::Body,
          "Every promotion, worker, network and sponsor is invented. The people who "
          "invented them apologise to nobody."},
         {Style::Strong, "The office"},
         {Style::Body,
          "Maeve (the writers' room), The Lamplighter, Rafe Tolland and QVD (the "
          "columns), Dalton Reeve (who owns more than he should)."},
         {Style::Strong, "Thanks"},
         {Style::Body,
          "To everybody who has ever taken a fall on a hard canvas so that somebody "
          "else looked good."}});
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Grow(rptcredits)}), nullptr, {&cmdothers});
  }

 private:
  void cmdothers_Click() { desk().Open("frmCreditsXtra"); }

  ui::Picture imgback{*this, "imgback", "vxm_back.jpg"};
  ui::Report rptcredits{*this, "rptcredits"};
  ui::Button cmdothers{*this, "cmdothers", "Others", &frmCredits::cmdothers_Click};
};

class frmCreditsXtra : public GameScreen {
 public:
  explicit frmCreditsXtra(Game& game)
      : GameScreen(game, "frmCreditsXtra", "Other Credits", {.Is = ui::Role::Cover}) {
    rptcredits.Write({{Style::Strong, "Built with"},
                      {Style::Body,
                       "Qt (the window), GoogleTest and Google Benchmark (the proof), and the "
                       "compilers and libraries of Debian, by their many authors, each under its "
                       "own free licence."},
                      {Style::Strong, "Lettering"},
                      {Style::Body, "Inter by Rasmus Andersson, where it is installed."},
                      {Style::Strong, "Licence"},
                      {Style::Body,
                       "Grapplemont is free software under the GNU General Public License, version "
                       "3 or later. It comes without any warranty, as does wrestling."}});
  }

  ui::Page Layout() override { return PageOf(ui::Group("", {ui::Grow(rptcredits)})); }

 private:
  ui::Picture imgback{*this, "imgback", "vxm_back.jpg"};
  ui::Report rptcredits{*this, "rptcredits"};
};

}  // namespace

SCREEN(frmTitleScreen)
SCREEN(frmDisclaimer)
SCREEN(frmGameMenu)
SCREEN(frmCredits)
SCREEN(frmCreditsXtra)

}  // namespace grapplemont
