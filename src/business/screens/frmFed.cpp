#include "business/monthlymoney.h"
#include "business/officewords.h"
#include "business/screens/fedscreens.h"
#include "business/screens/officescreens.h"
#include "business/screens/screenfedproduct.h"
#include "business/screens/screenfedsites.h"
#include "business/screens/screenfedsplits.h"
#include "business/standing.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/world.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

constexpr int kMonthsShown = 120;

/// The player's promotion: how it stands, what it shows, how its people are divided, where its
/// young learn, and the way to its money.
class frmFed : public ui::Screen {
 public:
  explicit frmFed(Game& game) : Screen(game.Desk(), "frmFed", "Promotion"), game_(game) {
    for (const Term& day : kWeekDays) cmbmeeting.Add(std::string(day.Says), day.Code);
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblmoney;
    page.Actions = {&cmdfinance, &cmdsponsor, &cmdvalue, &cmdback};
    page.Cancel = &cmdback;
    page.Body = ui::Tabs(
        {ui::Group("Overview", {ui::Columns({Facts().Grow(2), Charts().Grow(3)}).Grow()}),
         product_.Layout(), splits_.Layout(),
         ui::Group("Camp and territory",
                   {ui::Columns({camp_.Layout().Grow(), territory_.Layout().Grow()}).Grow()})});
    return page;
  }

  void Load() override { Return(); }

  void Return() override {
    ShowPromotion();
    ShowSpending();
    ShowCharts();
    product_.Show();
    splits_.Show();
    camp_.Show();
    territory_.Show();
  }

 private:
  World& world() { return game_.World(); }
  Promotion& player() { return world().Player(); }

  ui::Box Facts() {
    return ui::Rows(
        {ui::Group("The company",
                   {ui::Field("Name", lblname), ui::Field("Size", lblsize),
                    ui::Field("Image", lblimage), ui::Field("Owner", lblowner),
                    ui::Field("The economy", lbleconomy), ui::Field("Staff meeting", cmbmeeting),
                    ui::Field("Commissioner", lblcommissioner), cmdcommissioner}),
         ui::Group("Spending", {ui::WithButtons(lstspending, {&cmdadvertising, &cmdmerch, &cmdprod,
                                                              &cmdtickets})})
             .Grow()});
  }

  ui::Box Charts() {
    return ui::Rows(
        {ui::Group("Image by month", {ui::Grow(chtimage)}).Grow(),
         ui::Group("Standing by month, a size class for each hundred", {ui::Grow(chtstanding)})
             .Grow()});
  }

  void ShowPromotion() {
    const Staff* owner = OwnerOf(world(), player().Uid);
    lblname.Text = player().Name + " (" + player().Initials.Str() + ")";
    lblsize.Text = std::string(SizeText(player().Size));
    lblimage.Text = std::to_string(player().Image) + "%";
    lblowner.Text = owner ? owner->Name.Str() : "None";
    lbleconomy.Text = std::string(EconomyText(world().Game().Economy)) +
                      (world().Game().EconomyRising ? ", rising" : ", falling");
    lblcommissioner.Text = HolderName(world(), Office::Commissioner);
    cmbmeeting.SelectKey(DayNumber(player().MeetingDay));
  }

  void ShowSpending() {
    lblmoney.Text = FinanceText(player());
    const Promotion& p = player();
    lstspending.Fill(
        {{{"Advertising", SpendingText(p.Advertising, AdvertisingCost(p.Advertising)), ""}, 1},
         {{"Merchandise", SpendingText(p.Merchandising, MerchandisingCost(p.Merchandising)), ""},
          2},
         {{"Production", SpendingText(p.Production, ProductionCost(p.Production)), ""}, 3},
         {{"Tickets", Dollars(p.TicketPrice) + " a ticket", ""}, 4}});
  }

  void ShowCharts() {
    const std::vector<PastStanding> standings = StandingsOf(world(), player(), kMonthsShown + 1);
    std::vector<double> images, scores;
    for (const PastStanding& standing : standings) {
      images.push_back(standing.Image);
      scores.push_back(standing.Score());
    }
    chtimage.Captions = CaptionsOf(standings);
    chtimage.Lines = std::vector<ui::Chart::Series>{{"", images, ui::Tone::Blue}};
    chtstanding.Captions = CaptionsOf(standings);
    chtstanding.Lines = std::vector<ui::Chart::Series>{{"", scores, ui::Tone::Gold}};
  }

  void cmbmeeting_Pick() { player().MeetingDay = Says(kWeekDays, cmbmeeting.Key()); }

  void cmdcommissioner_Click() { desk().Open(MakefrmFedPick(game_, Office::Commissioner)); }
  void cmdadvertising_Click() { OpenAdvertising(game_); }
  void cmdmerch_Click() { OpenMerchandising(game_); }
  void cmdprod_Click() { desk().Open("frmFedProd"); }
  void cmdtickets_Click() { desk().Open("frmTicket"); }
  void cmdsponsor_Click() { desk().Open("frmFedSponsor"); }
  void cmdfinance_Click() { desk().Open("frmFinance"); }
  void cmdvalue_Click() { desk().Open("frmFedValue"); }

  void cmdback_Click() {
    Close();
    if (game_.RefreshMainScreen) game_.RefreshMainScreen();
  }

  using K = ui::ColumnKind;
  Game& game_;
  ui::Label lblmoney{*this, "lblmoney"};
  ui::Label lblname{*this, "lblname"};
  ui::Label lblsize{*this, "lblsize"};
  ui::Label lblimage{*this, "lblimage"};
  ui::Label lblowner{*this, "lblowner"};
  ui::Label lbleconomy{*this, "lbleconomy"};
  ui::ComboBox cmbmeeting{*this, "cmbmeeting", &frmFed::cmbmeeting_Pick};
  ui::Label lblcommissioner{*this, "lblcommissioner"};
  ui::Button cmdcommissioner{*this, "cmdcommissioner", "Choose A Commissioner",
                             &frmFed::cmdcommissioner_Click};
  ui::ListBox lstspending{
      *this, "lstspending", {{"For", K::Text, 2}, {"Now", K::Text, 3}, {"", K::Button, 2}}};
  ui::Button cmdadvertising{*this, "cmdadvertising", "Change", &frmFed::cmdadvertising_Click};
  ui::Button cmdmerch{*this, "cmdmerch", "Change", &frmFed::cmdmerch_Click};
  ui::Button cmdprod{*this, "cmdprod", "Raise", &frmFed::cmdprod_Click};
  ui::Button cmdtickets{*this, "cmdtickets", "Change", &frmFed::cmdtickets_Click};
  ui::Chart chtimage{*this, "chtimage"};
  ui::Chart chtstanding{*this, "chtstanding"};
  FedProduct product_{*this, game_};
  FedSplits splits_{*this, game_};
  FedSite camp_{*this, game_, kCampSite, [this] { Return(); }};
  FedSite territory_{*this, game_, kTerritorySite, [this] { Return(); }};
  ui::Button cmdfinance{*this, "cmdfinance", "Finance", &frmFed::cmdfinance_Click};
  ui::Button cmdsponsor{*this, "cmdsponsor", "Sponsors", &frmFed::cmdsponsor_Click};
  ui::Button cmdvalue{*this, "cmdvalue", "What We Are Worth", &frmFed::cmdvalue_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmFed::cmdback_Click};
};

}  // namespace

SCREEN(frmFed)

}  // namespace grapplemont
