#include "business/screens/frmSpending.h"

#include <algorithm>

#include "business/finance.h"
#include "records/modVar.h"
#include "records/notes.h"
#include "records/whatif.h"
#include "storylines/screens/screenpeople.h"

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
class frmFedMerch : public GameScreen {
 public:
  frmFedMerch(Game& game, const Spending& side)
      : GameScreen(game, "frmFedMerch", side.Title, {.Is = ui::Role::Dialog}), side_(side) {
    lblmeans.Text = side.Means;
    txtwhy.Brief = true;
    cmdwhy.Visible = side.Level == &Promotion::Merchandising;
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Field("Percent", hscurrent), ui::Field("Cost", lblcost),
                                 ui::Field("Last month", lbllast),
                                 ui::Columns({cmdwhy, ui::Spacer()}), txtwhy, lblmeans}),
                  &lblmoney);
  }

  void Return() override {
    hscurrent.Value = player().*side_.Level;
    Show();
  }

 private:
  Promotion& player() { return world().Player(); }

  void Show() {
    const int level = player().*side_.Level;
    lblmoney.Text = FinanceText(player());
    lblcost.Text = SpendingText(level, side_.MonthlyCost(level));
    const MonthBooks& last = player().LastMonth;
    lbllast.Text = "spent " + Dollars(last.*side_.Cost);
    const bool sold = !NotedScore(world(), kNoteMerch).Steps().empty();
    EnableUnless(cmdwhy, sold ? "" : "Nothing was sold on the last first of a month.");
    if (side_.Level == &Promotion::Merchandising)
      lbllast.Text = lbllast.Text.Get() + ", sold for " + Dollars(last.MerchIncome);
  }

  /// How the last sales came about, as they were counted.
  void cmdwhy_Click() {
    txtwhy.WriteLines(WhyText("sold", NotedScore(world(), kNoteMerch), Dollars));
  }

  void hscurrent_Change() {
    player().*side_.Level = hscurrent.Value;
    Show();
  }

  const Spending& side_;
  ui::Label lblmoney{*this, "lblmoney"};
  ui::ScrollBar hscurrent{*this, "hscurrent", 0, kMostSpending, &frmFedMerch::hscurrent_Change};
  ui::Label lblcost{*this, "lblcost"};
  ui::Label lbllast{*this, "lbllast"};
  ui::Button cmdwhy{*this, "cmdwhy", "Why?", &frmFedMerch::cmdwhy_Click};
  ui::Report txtwhy{*this, "txtwhy"};
  ui::Label lblmeans{*this, "lblmeans"};
};

constexpr int kRaises = static_cast<int>(kProductionRaises.size());

std::string PercentText(int number) {
  return std::to_string(kProductionRaises[static_cast<std::size_t>(number - 1)]) + "%";
}

/// Better production, bought in steps.
class frmFedProd : public GameScreen {
 public:
  explicit frmFedProd(Game& game)
      : GameScreen(game, "frmFedProd", "Production", {.Is = ui::Role::Dialog}) {
    txtwhy.Brief = true;
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Field("Production values", lblproduction),
                                 ui::Field("Cost of running it", lblmonthly),
                                 ui::Columns({cmdwhy, ui::Spacer()}), txtwhy, cmdraise(1),
                                 cmdraise(2), cmdraise(3)}),
                  &lblmoney);
  }

  void Return() override {
    lblmoney.Text = FinanceText(player());
    lblproduction.Text = std::to_string(player().Production) + "%";
    lblmonthly.Text = Dollars(ProductionCost(player().Production)) + " a month";
    EnableUnless(cmdwhy, player().Production > 0 ? "" : "What is not there costs nothing.");
    txtwhy.Write("");
    const bool best = player().Production >= kBestProduction;
    for (int number = 1; number <= kRaises; ++number) {
      cmdraise(number).Text =
          "Raise by " + PercentText(number) + " : Cost $" + std::to_string(CostOf(number));
      EnableUnless(cmdraise(number), best ? "Production cannot be any better." : "");
    }
  }

 private:
  Promotion& player() { return world().Player(); }
  int CostOf(int number) { return ProductionRaiseCost(player().Production, number); }

  void cmdraise_Click(int number) {
    const char* kReport = "Finance Report";
    if (!desk().Ask(kReport, "Pay $" + std::to_string(CostOf(number)) + " for a " +
                                 PercentText(number) + " increase?"))
      return;
    if (!RaiseProduction(world(), number)) desk().Say(kReport, "You cannot afford this!");
    Return();
  }

  ui::Label lblmoney{*this, "lblmoney"};
  ui::Label lblproduction{*this, "lblproduction"};
  ui::Label lblmonthly{*this, "lblmonthly"};
  ui::Button cmdwhy{
      *this, "cmdwhy", "Why?", [this] {
        txtwhy.WriteLines(WhyText("a month", ProductionBill(player().Production), Dollars));
      }};
  ui::Report txtwhy{*this, "txtwhy"};
  ui::Array<ui::Button> cmdraise{"cmdraise", kRaises, [this](const std::string& name, int number) {
                                   return std::make_unique<ui::Button>(
                                       *this, name, "", [this, number] { cmdraise_Click(number); });
                                 }};
};

constexpr int kDearestTicket = 100;  // dollars

/// What a ticket costs, and what people would say of another price.
class frmTicket : public GameScreen {
 public:
  explicit frmTicket(Game& game)
      : GameScreen(game, "frmTicket", "Ticket Prices", {.Is = ui::Role::Dialog}) {
    BackBefore(cmddoit);
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Field("New price in dollars", hsticket),
                                 ui::Field("What people say", lblopinion), lblfair}),
                  &lblprice, {&cmdwhatif}, &cmddoit);
  }

  void Load() override {
    hsticket.Max = std::max<int>(kDearestTicket, player().TicketPrice);
    hsticket.Value = player().TicketPrice;
    Return();
  }
  void Return() override {
    lblprice.Text = "Current Ticket Prices : $" + std::to_string(player().TicketPrice);
    lblfair.Text = "People expect to pay " + Dollars(FairTicketPrice(player().Size)) +
                   " at a promotion that is " + std::string(SizeText(player().Size)) +
                   ", and find up to " + Dollars(DearestFairPrice(player().Size)) + " fair.";
    ShowChoice();
  }

 private:
  Promotion& player() { return world().Player(); }

  void ShowChoice() {
    lblopinion.Text = std::string(TicketOpinion(player().Size, hsticket.Value));
    EnableUnless({cmdwhatif, cmddoit},
                 hsticket.Value == player().TicketPrice ? "That is the price now." : "");
  }

  /// By habit the price would be the usual one from the next month on.
  static Answer At(const std::string& words, int dollars) {
    const auto set = [dollars](World& copy) { copy.Player().TicketPrice = dollars; };
    return {words + Dollars(dollars) + ", whatever the office would ask by habit", set, set};
  }

  void cmdwhatif_Click() {
    game_.OpenWhatIf({"Ask " + Dollars(hsticket.Value) + " for a ticket?",
                      At("from today a ticket costs ", hsticket.Value),
                      At("a ticket goes on costing ", player().TicketPrice)});
  }

  void cmddoit_Click() {
    if (!desk().Ask("Change price?", "Are you sure?")) return;
    player().TicketPrice = hsticket.Value;
    Return();
  }

  ui::Label lblprice{*this, "lblprice"};
  ui::ScrollBar hsticket{*this, "hsticket", 0, kDearestTicket, &frmTicket::ShowChoice};
  ui::Label lblopinion{*this, "lblopinion"};
  ui::Label lblfair{*this, "lblfair"};
  ui::Button cmdwhatif{*this, "cmdwhatif", "What If", &frmTicket::cmdwhatif_Click};
  ui::Button cmddoit{*this, "cmddoit", "Change Price", &frmTicket::cmddoit_Click};
};

constexpr int kMostThousands = 1000;

std::string DonationText(int thousands) {
  return thousands == kMostThousands ? "$1,000,000" : "$" + std::to_string(thousands) + ",000";
}

/// Money for a good cause, and for the player's good name.
class frmCharity : public GameScreen {
 public:
  explicit frmCharity(Game& game)
      : GameScreen(game, "frmCharity", "Charity", {.Is = ui::Role::Dialog}) {
    BackBefore(cmddonate);
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Field("Thousands of dollars", hsamount),
                                 ui::Field("Donation", lblamount), lblreputation}),
                  &lblmoney, {}, &cmddonate);
  }

  void Return() override {
    lblmoney.Text = FinanceText(world().Player());
    lblreputation.Text = "Your reputation is " + std::to_string(world().Game().Reputation) +
                         "%. It rises by a point for each $1,000, up to 100%.";
    ShowChoice();
  }

 private:
  void ShowChoice() { lblamount.Text = DonationText(hsamount.Value); }

  void cmddonate_Click() {
    if (!CanDonate(world(), hsamount.Value))
      return desk().Say("Money Problems!", "You cannot afford this donation!");
    if (!desk().Ask("Donate money?", "Are you sure?")) return;
    Donate(world(), hsamount.Value);
    Return();
  }

  ui::Label lblmoney{*this, "lblmoney"};
  ui::ScrollBar hsamount{*this, "hsamount", 1, kMostThousands, &frmCharity::ShowChoice};
  ui::Label lblamount{*this, "lblamount"};
  ui::Label lblreputation{*this, "lblreputation"};
  ui::Button cmddonate{*this, "cmddonate", "Donate", &frmCharity::cmddonate_Click};
};

}  // namespace

SCREEN(frmFedProd)
SCREEN(frmTicket)
SCREEN(frmCharity)

ui::Cell MoneyCell(long long dollars, ui::Tone tone) {
  return {static_cast<double>(dollars), Dollars(dollars), tone};
}

void OpenAdvertising(Game& game) {
  game.Desk().Open(std::make_unique<frmFedMerch>(game, kAdvertisingSide));
}

void OpenMerchandising(Game& game) {
  game.Desk().Open(std::make_unique<frmFedMerch>(game, kMerchandisingSide));
}

}  // namespace grapplemont
