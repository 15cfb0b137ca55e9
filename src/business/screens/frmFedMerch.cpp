#include "business/monthlymoney.h"
#include "business/officewords.h"
#include "business/screens/officescreens.h"
#include "records/modVar.h"
#include "records/world.h"

namespace grapplemont {

namespace {

/// What sets the two sides of the screen apart.
struct Spending {
  const char* Title;
  const char* Means;
  RangedWord<0, 100> Promotion::*Level;
  int (*MonthlyCost)(int level);
  Cash MonthBooks::*Cost;
};
constexpr Spending kAdvertisingSide = {
    "Advertising",
    "Advertising keeps us on everybody's lips. It is paid on the first of each month.",
    &Promotion::Advertising, AdvertisingCost, &MonthBooks::AdvertisingCost};
constexpr Spending kMerchandisingSide = {
    "Merchandising",
    "What we put on sale limits what can be sold. It is paid on the first of each month, when the "
    "sales come in.",
    &Promotion::Merchandising, MerchandisingCost, &MonthBooks::MerchCost};
constexpr int kMostSpending = 100;

/// How much goes into advertising or merchandise; a level counts from the moment it is set.
class frmFedMerch : public ui::Screen {
 public:
  frmFedMerch(Game& game, const Spending& side)
      : Screen(game.Desk(), "frmFedMerch", side.Title), game_(game), side_(side) {
    lblmeans.Text = side.Means;
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblmoney;
    page.Actions = {&cmdback};
    page.Main = &cmdback;
    page.Cancel = &cmdback;
    page.Body = ui::Group("", {ui::Field("Percent", hscurrent), ui::Field("Cost", lblcost),
                               ui::Field("Last month", lbllast), lblmeans});
    return page;
  }

  void Load() override { Return(); }

  void Return() override {
    hscurrent.Value = player().*side_.Level;
    Show();
  }

 private:
  Promotion& player() { return game_.World().Player(); }

  void Show() {
    const int level = player().*side_.Level;
    lblmoney.Text = FinanceText(player());
    lblcost.Text = SpendingText(level, side_.MonthlyCost(level));
    const MonthBooks& last = player().LastMonth;
    lbllast.Text = "spent " + Dollars(last.*side_.Cost);
    if (side_.Level == &Promotion::Merchandising)
      lbllast.Text = lbllast.Text.Get() + ", sold for " + Dollars(last.MerchIncome);
  }

  void hscurrent_Change() {
    player().*side_.Level = hscurrent.Value;
    Show();
  }

  void cmdback_Click() { Close(); }

  Game& game_;
  const Spending& side_;
  ui::Label lblmoney{*this, "lblmoney"};
  ui::ScrollBar hscurrent{*this, "hscurrent", 0, kMostSpending, &frmFedMerch::hscurrent_Change};
  ui::Label lblcost{*this, "lblcost"};
  ui::Label lbllast{*this, "lbllast"};
  ui::Label lblmeans{*this, "lblmeans"};
  ui::Button cmdback{*this, "cmdback", "Back", &frmFedMerch::cmdback_Click};
};

}  // namespace

void OpenAdvertising(Game& game) {
  game.Desk().Open(std::make_unique<frmFedMerch>(game, kAdvertisingSide));
}

void OpenMerchandising(Game& game) {
  game.Desk().Open(std::make_unique<frmFedMerch>(game, kMerchandisingSide));
}

}  // namespace grapplemont
