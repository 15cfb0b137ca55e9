#include "business/officewords.h"
#include "rivals/rivals.h"
#include "rivals/screens/rivalscreens.h"
#include "rivals/takeover.h"

namespace grapplemont {

namespace {

constexpr const char* kDeals = "deals";

/// Two ways to be rid of a rival, and what each costs.
class frmTakeover : public ui::Screen {
 public:
  frmTakeover(Game& game, int uid)
      : Screen(game.Desk(), "frmTakeover", "Takeover", ui::Role::Dialog), game_(game), uid_(uid) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblmoney;
    page.Actions = {&cmdcancel, &cmddoit};
    page.Main = &cmddoit;
    page.Cancel = &cmdcancel;
    page.Body = ui::Rows(
        {ui::Group("", {opt1, lblabout1, lblcost1}), ui::Group("", {opt2, lblabout2, lblcost2})});
    return page;
  }

  void Load() override {
    const Promotion& rival = Rival();
    Title = "Takeover of " + rival.Name.Str();
    lblmoney.Text = FinanceText(game_.World().Player());
    lblcost1.Text = CostText(rival, Takeover::Complete);
    lblcost2.Text = CostText(rival, Takeover::Destruction);
  }

 private:
  Promotion& Rival() { return *game_.World().FindPromotion(uid_); }

  static std::string CostText(const Promotion& rival, Takeover kind) {
    return "Cost : $" + std::to_string(TakeoverCost(rival, kind));
  }

  void cmddoit_Click() {
    const Takeover kind = opt1.Checked ? Takeover::Complete : Takeover::Destruction;
    if (TakeoverCost(Rival(), kind) > game_.World().Player().Money)
      return desk().Say("Error!", "You cannot afford the cost!");
    TakeOverRival(game_.World(), Rival(), kind);
    desk().Say("Done!", "Takeover completed!");
    Close();
  }
  void cmdcancel_Click() { Close(); }

  Game& game_;
  int uid_;
  ui::Label lblmoney{*this, "lblmoney"};
  ui::OptionButton opt1{*this, "opt1", "Complete Takeover", kDeals, true};
  ui::Label lblabout1{
      *this, "lblabout1",
      "Pay their debts. Their workers and staff come to you with their contracts; an "
      "owner goes."};
  ui::Label lblcost1{*this, "lblcost1"};
  ui::OptionButton opt2{*this, "opt2", "Corporate Destruction", kDeals};
  ui::Label lblabout2{*this, "lblabout2",
                      "Pay their debts and a month's wages. Everybody goes to the market."};
  ui::Label lblcost2{*this, "lblcost2"};
  ui::Button cmdcancel{*this, "cmdcancel", "Cancel", &frmTakeover::cmdcancel_Click};
  ui::Button cmddoit{*this, "cmddoit", "Make the deal!", &frmTakeover::cmddoit_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmTakeover(Game& game, int uid) {
  return std::make_unique<frmTakeover>(game, uid);
}

}  // namespace grapplemont
