#include "business/finance.h"
#include "business/past.h"
#include "business/screens/frmSpending.h"
#include "business/screens/screenfed.h"
#include "business/worth.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/notes.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

constexpr int kMonthsShown = 120;

using K = ui::ColumnKind;

/// What the promotion pays for month by month or asks at the door, each with a button of its own.
struct SpendingRow {
  const char* For;
  std::string Now;
};
const CellColumns<SpendingRow> kSpendingTable = {
    {{"For", K::Text, 2}, [](const SpendingRow& row) { return row.For; }},
    {{"Now", K::Text, 3}, [](const SpendingRow& row) { return row.Now; }},
    {{"", K::Button, 2}, [](const SpendingRow&) { return ""; }}};

/// The player's promotion: how it stands, what it shows, how its people are divided, where its
/// young learn, and the way to its money.
class frmFed : public GameScreen {
 public:
  explicit frmFed(Game& game) : GameScreen(game, "frmFed", "Promotion", {.Manages = true}) {
    for (const Term& day : kWeekDays) cmbmeeting.Add(std::string(day.Says), day.Code);
    txtwhy.Brief = txtwhymomentum.Brief = true;
    for (ui::Button* button : {&cmdwhy, &cmdwhymomentum, &cmdcommissioner}) button->Plain = true;
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Tabs(
            {ui::Group("Overview", {ui::Columns({Facts().Grow(3), Charts().Grow(2)}).Grow()}),
             product_->Layout(), splits_->Layout(),
             ui::Group(
                 "Camp and territory",
                 {ui::Columns({camp_->Layout().Grow(), territory_->Layout().Grow()}).Grow()})}),
        &lblmoney, {&cmdfinance, &cmdsponsor, &cmdvalue});
  }

  void Return() override {
    ShowPromotion();
    ShowSpending();
    ShowCharts();
    for (FedPart* part : {product_.get(), splits_.get(), camp_.get(), territory_.get()})
      part->Show();
  }

 private:
  Promotion& player() { return world().Player(); }

  ui::Box Facts() {
    return ui::Rows(
        {ui::Group("The company",
                   {ui::Field("Name", lblname), ui::Field("Size", lblsize),
                    ui::Field("Image", lblimage, {&cmdwhy, &txtwhy}),
                    ui::Field("Momentum", lblmomentum, {&cmdwhymomentum, &txtwhymomentum}),
                    ui::Field("Owner", lblowner), ui::Field("The economy", lbleconomy),
                    ui::Field("Staff meeting", cmbmeeting),
                    ui::Field("Commissioner", lblcommissioner, {&cmdcommissioner})}),
         ui::Group("Spending", {ui::WithButtons(lstspending, {&cmdadvertising, &cmdmerch, &cmdprod,
                                                              &cmdtickets})})
             .Grow()});
  }

  ui::Box Charts() {
    return ui::Rows(
        {ui::Group("Image by month", {ui::Grow(chtimage)}).Grow(),
         ui::Group("Standing by month (100 points make a size class)", {ui::Grow(chtstanding)})
             .Grow()});
  }

  void ShowPromotion() {
    const Staff* owner = OwnerOf(world(), player().Uid);
    Title = player().Name.Str();
    lblname.Text = player().Name + " (" + player().Initials.Str() + ")";
    lblsize.Text = std::string(SizeText(player().Size));
    lblimage.Text = std::to_string(player().Image) + "%";
    EnableUnless(cmdwhy, ImageSteps(world()).Steps().empty()
                             ? "Nothing has moved the image that is still remembered."
                             : "");
    ShowMomentum();
    txtwhy.Write("");
    txtwhymomentum.Write("");
    lblowner.Text = owner ? owner->Name.Str() : "None";
    lbleconomy.Text = std::string(EconomyText(world().Game().Economy)) +
                      (world().Game().EconomyRising ? ", rising" : ", falling");
    lblcommissioner.Text = HolderName(world(), Office::Commissioner);
    cmbmeeting.SelectKey(DayNumber(player().MeetingDay));
  }

  /// Which way the image is going, and how far since the last month end.
  void ShowMomentum() {
    const Score momentum = MomentumSteps(world());
    const int moved = momentum;
    lblmomentum.Text = moved == 0 ? std::string("None since the last month end")
                                  : std::string(moved > 0 ? "Rising, +" : "Falling, ") +
                                        std::to_string(moved) + " since the last month end";
    lblmomentum.Trend = moved;
    EnableUnless(cmdwhymomentum, momentum.Steps().empty()
                                     ? "Nothing has moved size or image since the last month end."
                                     : "");
  }

  void ShowSpending() {
    lblmoney.Text = FinanceText(player());
    const Promotion& p = player();
    FillPlaces(
        lstspending, kSpendingTable,
        std::vector<SpendingRow>{
            {"Advertising", SpendingText(p.Advertising, AdvertisingCost(p.Advertising))},
            {"Merchandise", SpendingText(p.Merchandising, MerchandisingCost(p.Merchandising))},
            {"Production", SpendingText(p.Production, ProductionCost(p.Production))},
            {"Tickets", Dollars(p.TicketPrice) + " a ticket"}});
  }

  void ShowCharts() {
    const std::vector<PastStanding> standings = StandingsOf(world(), player(), kMonthsShown + 1);
    std::vector<double> images, scores;
    for (const PastStanding& standing : standings) {
      images.push_back(standing.Image);
      scores.push_back(standing.Score());
    }
    chtimage.Captions = CaptionsOf(standings);
    chtimage.Places = PlacesOf(standings);
    chtimage.Lines = std::vector<ui::Chart::Series>{{"", images, ui::Tone::Blue}};
    chtstanding.Captions = CaptionsOf(standings);
    chtstanding.Places = PlacesOf(standings);
    chtstanding.Lines = std::vector<ui::Chart::Series>{{"", scores, ui::Tone::Gold}};
  }

  void cmbmeeting_Pick() { player().MeetingDay = Says(kWeekDays, cmbmeeting.Key()); }

  ui::Label lblmoney{*this, "lblmoney"};
  ui::Label lblname{*this, "lblname"};
  ui::Label lblsize{*this, "lblsize"};
  ui::Label lblimage{*this, "lblimage"};
  ui::Button cmdwhy{*this, "cmdwhy", "Why?",
                    [this] { txtwhy.WriteLines(WhyText("image", ImageSteps(world()))); }};
  ui::Report txtwhy{*this, "txtwhy"};
  ui::Label lblmomentum{*this, "lblmomentum"};
  ui::Button cmdwhymomentum{
      *this, "cmdwhymomentum", "Why?",
      [this] { txtwhymomentum.WriteLines(WhyText("momentum", MomentumSteps(world()))); }};
  ui::Report txtwhymomentum{*this, "txtwhymomentum"};
  ui::Label lblowner{*this, "lblowner"};
  ui::Label lbleconomy{*this, "lbleconomy"};
  ui::ComboBox cmbmeeting{*this, "cmbmeeting", &frmFed::cmbmeeting_Pick};
  ui::Label lblcommissioner{*this, "lblcommissioner"};
  ui::Button cmdcommissioner{*this, "cmdcommissioner", "Choose A Commissioner",
                             [this] { desk().Open(MakefrmFedPick(game_, Office::Commissioner)); }};
  ui::ListBox lstspending{*this, "lstspending", HeadingsOf(kSpendingTable)};
  ui::Button cmdadvertising{*this, "cmdadvertising", "Change", [this] { OpenAdvertising(game_); }};
  ui::Button cmdmerch{*this, "cmdmerch", "Change", [this] { OpenMerchandising(game_); }};
  ui::Button cmdprod{*this, "cmdprod", "Raise", [this] { desk().Open("frmFedProd"); }};
  ui::Button cmdtickets{*this, "cmdtickets", "Change", [this] { desk().Open("frmTicket"); }};
  ui::Chart chtimage{*this, "chtimage"};
  ui::Chart chtstanding{*this, "chtstanding"};
  using Part = std::unique_ptr<FedPart>;
  Part product_ = MakeFedProduct(*this, game_);
  Part splits_ = MakeFedSplits(*this, game_);
  Part camp_ = MakeFedSite(*this, game_, Site::Camp, [this] { Return(); });
  Part territory_ = MakeFedSite(*this, game_, Site::Territory, [this] { Return(); });
  ui::Button cmdfinance{*this, "cmdfinance", "Finance", [this] { desk().Open("frmFinance"); }};
  ui::Button cmdsponsor{*this, "cmdsponsor", "Sponsors", [this] { desk().Open("frmFedSponsor"); }};
  ui::Button cmdvalue{*this, "cmdvalue", "What We Are Worth",
                      [this] { desk().Open("frmFedValue"); }};
};

const CellColumns<WorthLine> kWorthTable = {
    {{"What", K::Text, 3}, [](const WorthLine& line) { return line.What; }},
    {{"Dollars", K::Number, 2},
     [](const WorthLine& line) {
       return MoneyCell(line.Dollars, line.Dollars < 0    ? ui::Tone::Red
                                      : line.Dollars == 0 ? ui::Tone::Muted
                                                          : ui::Tone::Plain);
     }},
    {{"Why", K::Text, 8},
     [](const WorthLine& line) { return ui::Cell(line.Why, ui::Tone::Muted); }}};

/// What the promotion is worth, and why.
class frmFedValue : public GameScreen {
 public:
  explicit frmFedValue(Game& game) : GameScreen(game, "frmFedValue", "What We Are Worth") {
    lstworth.Room = 16;
  }

  ui::Page Layout() override { return PageOf(ui::Group("", {ui::Grow(lstworth)}), &lblworth); }

  void Return() override {
    const Promotion& player = world().Player();
    const std::vector<WorthLine> lines = PromotionWorth(world(), player);
    const long long sum = SumOf(lines);
    FillPlaces(lstworth, kWorthTable, lines);
    lstworth.Add({ui::Cell("All together", ui::Tone::Gold), MoneyCell(sum, ui::Tone::Gold), ""});
    lblworth.Text = player.Name + " is worth " + Dollars(sum) + ".";
  }

 private:
  ui::Label lblworth{*this, "lblworth"};
  ui::ListBox lstworth{*this, "lstworth", HeadingsOf(kWorthTable)};
};

}  // namespace

SCREEN(frmFed)
SCREEN(frmFedValue)

}  // namespace grapplemont
