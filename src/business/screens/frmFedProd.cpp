#include "business/monthlymoney.h"
#include "business/officewords.h"
#include "business/production.h"
#include "business/screens/officescreens.h"
#include "records/modVar.h"
#include "records/world.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

constexpr int kRaises = static_cast<int>(kProductionRaises.size());

std::string PercentText(int number) {
  return std::to_string(kProductionRaises[static_cast<std::size_t>(number - 1)]) + "%";
}

/// Better production, bought in steps.
class frmFedProd : public ui::Screen {
 public:
  explicit frmFedProd(Game& game) : Screen(game.Desk(), "frmFedProd", "Production"), game_(game) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblmoney;
    page.Actions = {&cmdback};
    page.Main = &cmdback;
    page.Cancel = &cmdback;
    page.Body = ui::Group(
        "", {ui::Field("Production values", lblproduction),
             ui::Field("Cost of running it", lblmonthly), cmdraise(1), cmdraise(2), cmdraise(3)});
    return page;
  }

  void Load() override { Show(); }
  void Return() override { Show(); }

 private:
  Promotion& player() { return game_.World().Player(); }
  int CostOf(int number) { return ProductionRaiseCost(player().Production, number); }

  void Show() {
    lblmoney.Text = FinanceText(player());
    lblproduction.Text = std::to_string(player().Production) + "%";
    lblmonthly.Text = Dollars(ProductionCost(player().Production)) + " p.m";
    const bool best = player().Production >= kBestProduction;
    for (int number = 1; number <= kRaises; ++number) {
      cmdraise(number).Text =
          "Raise by " + PercentText(number) + " : Cost $" + std::to_string(CostOf(number));
      EnableUnless(cmdraise(number), best ? "Production cannot be any better." : "");
    }
  }

  void cmdraise_Click(int number) {
    const char* kReport = "Finance Report";
    if (!desk().Ask(kReport, "Pay $" + std::to_string(CostOf(number)) + " for a " +
                                 PercentText(number) + " increase?"))
      return;
    if (!RaiseProduction(player(), number)) desk().Say(kReport, "You cannot afford this!");
    Show();
  }

  void cmdback_Click() { Close(); }

  Game& game_;
  ui::Label lblmoney{*this, "lblmoney"};
  ui::Label lblproduction{*this, "lblproduction"};
  ui::Label lblmonthly{*this, "lblmonthly"};
  ui::Array<ui::Button> cmdraise{"cmdraise", kRaises, [this](const std::string& name, int number) {
                                   return std::make_unique<ui::Button>(
                                       *this, name, "", [this, number] { cmdraise_Click(number); });
                                 }};
  ui::Button cmdback{*this, "cmdback", "Back", &frmFedProd::cmdback_Click};
};

}  // namespace

SCREEN(frmFedProd)

}  // namespace grapplemont
