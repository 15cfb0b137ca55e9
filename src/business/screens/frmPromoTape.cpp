#include "business/networks.h"
#include "business/promotapes.h"
#include "business/screens/screentv.h"
#include "business/screens/tvscreens.h"
#include "records/modVar.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// To which network the tape goes.
class frmPromoTape : public ui::Screen {
 public:
  explicit frmPromoTape(Game& game)
      : Screen(game.Desk(), "frmPromoTape", "Promo Tape", ui::Role::Dialog), game_(game) {
    lstnetworks.EmptyText = "None available";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback, &cmdsend};
    page.Main = &cmdsend;
    page.Cancel = &cmdback;
    page.Large = true;
    page.Body = ui::Group("", {ui::Grow(lstnetworks)});
    return page;
  }

  void Load() override {
    const Promotion& player = world().Player();
    lblfacts.Text = "We could draw a rating of " +
                    RatingText(AudiencePotential(player, world().Game().Economy)) +
                    ". Our risk is " + std::to_string(player.Risk) +
                    ", our production values are " + std::to_string(player.Production) + ".";
    FillNetworks(lstnetworks, world());
    ShowSend();
  }
  void Return() override { Load(); }

 private:
  World& world() { return game_.World(); }

  void ShowSend() {
    EnableUnless(cmdsend, lstnetworks.Key() == 0 ? "Choose a network first." : "");
  }

  void cmdsend_Click() {
    if (const std::string why = WhyNoTape(world()); !why.empty()) return desk().Say("Error!", why);
    SendTape(world(), lstnetworks.Key());
    desk().Say("Sent!", "Tape sent!");
    Close();
  }

  void cmdback_Click() { Close(); }

  Game& game_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstnetworks{*this, "lstnetworks", NetworkColumns(), &frmPromoTape::ShowSend, cmdsend};
  ui::Button cmdback{*this, "cmdback", "Back", &frmPromoTape::cmdback_Click};
  ui::Button cmdsend{*this, "cmdsend", "Send Tape", &frmPromoTape::cmdsend_Click};
};

}  // namespace

SCREEN(frmPromoTape)

}  // namespace grapplemont
