#include "business/screens/screentv.h"
#include "business/screens/tvscreens.h"
#include "business/tvshows.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

class frmShowName : public ShowScreen {
 public:
  frmShowName(Game& game, std::string show)
      : ShowScreen(game, "frmShowName", "Show Name", std::move(show)) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Actions = {&cmdback, &cmdchange};
    page.Main = &cmdchange;
    page.Cancel = &cmdback;
    page.Body = ui::Group("", {ui::Field("New name", txtname), lblpast});
    return page;
  }

  void Load() override {
    if (const Show* show = FindShow()) txtname.Text = show->Name.Str();
  }

 private:
  void cmdchange_Click() {
    Show* show = ShowOrLeave();
    if (!show) return;
    const std::string name(TrimmedName(txtname.Text.Get()));
    if (show->Name == name) return Close();
    std::string why = WhyNoShowName(name);
    if (why.empty() && ShowNameTaken(world(), name)) why = "This show name already exists!";
    if (!why.empty()) return desk().Say("Error!", why);
    show->Name = name;
    Close();
  }

  void cmdback_Click() { Close(); }

  ui::TextBox txtname{*this, "txtname"};
  ui::Label lblpast{*this, "lblpast", "Its charts begin anew: the past keeps the old name."};
  ui::Button cmdback{*this, "cmdback", "Back", &frmShowName::cmdback_Click};
  ui::Button cmdchange{*this, "cmdchange", "Change Name", &frmShowName::cmdchange_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmShowName(Game& game, std::string show) {
  return std::make_unique<frmShowName>(game, std::move(show));
}

}  // namespace grapplemont
