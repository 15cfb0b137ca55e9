#include "session/screens/sessionscreens.h"
#include "ui/gamescreen.h"

namespace grapplemont {

namespace {

class frmCredits : public GameScreen {
 public:
  explicit frmCredits(Game& game)
      : GameScreen(game, "frmCredits", "Credits", {.Is = ui::Role::Cover}) {
    using Style = ui::Report::Style;
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

  ui::Page Layout() override { return PageOf(ui::Group("", {ui::Grow(rptcredits)}), nullptr, {&cmdothers}); }

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
    using Style = ui::Report::Style;
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

SCREEN(frmCredits)
SCREEN(frmCreditsXtra)

}  // namespace grapplemont
