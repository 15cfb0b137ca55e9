#include "business/finance.h"
#include "business/past.h"
#include "business/screens/frmSpending.h"
#include "business/screens/screenfed.h"
#include "business/worth.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/world.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

constexpr int kMonthsShown = 120;

/// The player's promotion: how it stands, what it shows, how its people are divided, where its
/// young learn, and the way to its money.
class frmFed : public GameScreen {
 public:
  explicit frmFed(Game& game) : GameScreen(game, "frmFed", "Promotion", {.Manages = true}) {
    for (const Term& day : kWeekDays) cmbmeeting.Add(std::string(day.Says), day.Code);
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(
        ui::Tabs(
            {ui::Group("Overview", {ui::Columns({Facts().Grow(2), Charts().Grow(3)}).Grow()}),
             product_.Layout(), splits_.Layout(),
             ui::Group("Camp and territory",
                       {ui::Columns({camp_.Layout().Grow(), territory_.Layout().Grow()}).Grow()})}),
        &lblmoney, {&cmdfinance, &cmdsponsor, &cmdvalue});
    page.Main = nullptr;  // Enter does nothing
    return page;
  }

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

  void cmdprod_Click() { desk().Open("frmFedProd"); }
  void cmdvalue_Click() { desk().Open("frmFedValue"); }

  using K = ui::ColumnKind;
  ui::Label lblmoney{*this, "lblmoney"};
  ui::Label lblname{*this, "lblname"};
  ui::Label lblsize{*this, "lblsize"};
  ui::Label lblimage{*this, "lblimage"};
  ui::Label lblowner{*this, "lblowner"};
  ui::Label lbleconomy{*this, "lbleconomy"};
  ui::ComboBox cmbmeeting{*this, "cmbmeeting", &frmFed::cmbmeeting_Pick};
  ui::Label lblcommissioner{*this, "lblcommissioner"};
  ui::Button cmdcommissioner{*this, "cmdcommissioner", "Choose A Commissioner",
                             [this] { desk().Open(MakefrmFedPick(game_, Office::Commissioner)); }};
  ui::ListBox lstspending{
      *this, "lstspending", {{"For", K::Text, 2}, {"Now", K::Text, 3}, {"", K::Button, 2}}};
  ui::Button cmdadvertising{*this, "cmdadvertising", "Change", [this] { OpenAdvertising(game_); }};
  ui::Button cmdmerch{*this, "cmdmerch", "Change", [this] { OpenMerchandising(game_); }};
  ui::Button cmdprod{*this, "cmdprod", "Raise", &frmFed::cmdprod_Click};
  ui::Button cmdtickets{*this, "cmdtickets", "Change", [this] { desk().Open("frmTicket"); }};
  ui::Chart chtimage{*this, "chtimage"};
  ui::Chart chtstanding{*this, "chtstanding"};
  FedProduct product_{*this, game_};
  FedSplits splits_{*this, game_};
  FedSite camp_{*this, game_, kCampSite, [this] { Return(); }};
  FedSite territory_{*this, game_, kTerritorySite, [this] { Return(); }};
  ui::Button cmdfinance{*this, "cmdfinance", "Finance", [this] { desk().Open("frmFinance"); }};
  ui::Button cmdsponsor{*this, "cmdsponsor", "Sponsors", [this] { desk().Open("frmFedSponsor"); }};
  ui::Button cmdvalue{*this, "cmdvalue", "What We Are Worth", &frmFed::cmdvalue_Click};
};

/// What the promotion is worth, and why.
class frmFedValue : public GameScreen {
 public:
  explicit frmFedValue(Game& game)
      : GameScreen(game, "frmFedValue", "What We Are Worth", {.Is = ui::Role::Dialog}) {
    lstworth.Room = 16;
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(ui::Group("", {ui::Grow(lstworth)}), &lblworth);
    page.Large = true;
    return page;
  }

  void Return() override {
    const Promotion& player = game_.World().Player();
    const std::vector<WorthLine> lines = PromotionWorth(game_.World(), player);
    std::vector<ui::ListBox::Row> rows;
    for (const WorthLine& line : lines)
      rows.push_back({{line.What, ui::Cell(line.Why, ui::Tone::Muted), Amount(line.Dollars)}});
    const std::string sum = Dollars(SumOf(lines));
    rows.push_back({{ui::Cell("All together", ui::Tone::Gold), "",
                     ui::Cell(static_cast<double>(SumOf(lines)), sum, ui::Tone::Gold)}});
    lstworth.Fill(std::move(rows));
    lblworth.Text = player.Name + " is worth " + sum + ".";
  }

 private:
  static ui::Cell Amount(long long dollars) {
    return {static_cast<double>(dollars), Dollars(dollars),
            dollars < 0    ? ui::Tone::Red
            : dollars == 0 ? ui::Tone::Muted
                           : ui::Tone::Plain};
  }

  using K = ui::ColumnKind;
  ui::Label lblworth{*this, "lblworth"};
  ui::ListBox lstworth{
      *this, "lstworth", {{"What", K::Text, 3}, {"Why", K::Text, 8}, {"Dollars", K::Number, 2}}};
};

}  // namespace

SCREEN(frmFed)
SCREEN(frmFedValue)

}  // namespace grapplemont
