#include <algorithm>

#include "business/charity.h"
#include "business/officewords.h"
#include "business/screens/officescreens.h"

namespace grapplemont {

namespace {

constexpr int kMostThousands = 1000;

std::string DonationText(int thousands) {
  return thousands == kMostThousands ? "$1,000,000" : "$" + std::to_string(thousands) + ",000";
}

/// Money for a good cause, and for the player's good name.
class frmCharity : public ui::Screen {
 public:
  explicit frmCharity(Game& game) : Screen(game.Desk(), "frmCharity", "Charity"), game_(game) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblmoney;
    page.Actions = {&cmdback, &cmddonate};
    page.Main = &cmddonate;
    page.Cancel = &cmdback;
    page.Body = ui::Group("", {ui::Field("Thousands of dollars", hsamount),
                               ui::Field("Donation", lblamount), lblreputation});
    return page;
  }

  void Load() override { Show(); }
  void Return() override { Show(); }

 private:
  World& world() { return game_.World(); }

  void Show() {
    lblmoney.Text = FinanceText(world().Player());
    lblreputation.Text = "Your reputation is " + std::to_string(world().Game().Reputation) +
                         "%. It rises by a point for each $1,000, up to 100%.";
    ShowChoice();
  }

  void ShowChoice() { lblamount.Text = DonationText(hsamount.Value); }

  void cmddonate_Click() {
    if (!CanDonate(world(), hsamount.Value))
      return desk().Say("Money Problems!", "You cannot afford this donation!");
    if (!desk().Ask("Donate money?", "Are you sure?")) return;
    Donate(world(), hsamount.Value);
    Show();
  }

  void cmdback_Click() { Close(); }

  Game& game_;
  ui::Label lblmoney{*this, "lblmoney"};
  ui::ScrollBar hsamount{*this, "hsamount", 1, kMostThousands, &frmCharity::ShowChoice};
  ui::Label lblamount{*this, "lblamount"};
  ui::Label lblreputation{*this, "lblreputation"};
  ui::Button cmdback{*this, "cmdback", "Back", &frmCharity::cmdback_Click};
  ui::Button cmddonate{*this, "cmddonate", "Donate", &frmCharity::cmddonate_Click};
};

}  // namespace

SCREEN(frmCharity)

}  // namespace grapplemont
