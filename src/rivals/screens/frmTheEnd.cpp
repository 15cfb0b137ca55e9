#include "business/finance.h"
#include "rivals/endstories.h"
#include "rivals/founding.h"
#include "rivals/purse.h"
#include "rivals/screens/rivalscreens.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// The news of the player's end, and the career behind it. The world can still be read afterwards.
class frmTheEnd : public ui::Screen {
 public:
  explicit frmTheEnd(Game& game)
      : Screen(game.Desk(), "frmTheEnd", "The End", ui::Role::Cover), game_(game) {}

  ui::Page Layout() override {
    return {.Actions = {&cmdlook, &cmdmenu, &cmdplayon},
            .Main = &cmdplayon,
            .Cancel = &cmdlook,
            .Body = ui::Columns({ui::Group("The Turnbuckle Courier", {ui::Grow(txtstory)}).Grow(3),
                                 ui::Group("Your career", {ui::Grow(txtcareer)}).Grow(2)})};
  }

  void Load() override {
    using Style = ui::Report::Style;
    const World& world = game_.World();
    const EndStory story = StoryOfTheEnd(world, world.Game().EndCode);
    txtstory.Write({{Style::Heading, story.Headline},
                    {Style::Body, story.Body},
                    {Style::Muted, story.SignedBy}});
    txtcareer.WriteLines(CareerInFigures(world));
  }

 private:
  void cmdmenu_Click() {
    game_.Commit();
    game_.CloseSlot();
    desk().CloseAll();
    desk().Open("frmGameMenu");
  }

  Game& game_;
  ui::Report txtstory{*this, "txtstory"};
  ui::Report txtcareer{*this, "txtcareer"};
  ui::Button cmdlook{*this, "cmdlook", "Look Around", [this] { Close(); }};
  ui::Button cmdmenu{*this, "cmdmenu", "Main Menu", &frmTheEnd::cmdmenu_Click};
  ui::Button cmdplayon{*this, "cmdplayon", "Play On", [this] { desk().Open("frmPlayOn"); }};
};

/// The stranger's visit. However it is left, they open their promotion.
class frmPinky : public GameScreen {
 public:
  explicit frmPinky(Game& game)
      : GameScreen(game, "frmPinky", "A Visitor",
                   {.Is = ui::Role::Dialog, .Back = "So Be It", .Manages = true}) {
    txtwords.Brief = true;
  }

  ui::Page Layout() override { return PageOf(ui::Rows({txtwords})); }

  void Load() override { txtwords.Write(StrangersWords(world())); }

 private:
  void cmdback_Click() override {
    if (world().Game().EndCode == kStrangerWaits) MeetStranger(world());
    GameScreen::cmdback_Click();
  }

  ui::Report txtwords{*this, "txtwords"};
};

constexpr const char* kDeals = "deals";

/// Two ways to be rid of a rival, and what each costs.
class frmTakeover : public GameScreen {
 public:
  frmTakeover(Game& game, int uid)
      : GameScreen(game, "frmTakeover", "Takeover",
                   {.Is = ui::Role::Dialog, .Back = "Cancel", .BackName = "cmdcancel"}),
        uid_(uid) {
    BackBefore(cmddoit);
  }

  ui::Page Layout() override {
    return {.Facts = &lblmoney,
            .Actions = {&cmdback, &cmddoit},
            .Main = &cmddoit,
            .Cancel = &cmdback,
            .Body = ui::Rows({ui::Group("", {opt1, lblabout1, lblcost1}),
                              ui::Group("", {opt2, lblabout2, lblcost2})})};
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
  ui::Button cmddoit{*this, "cmddoit", "Make the deal!", &frmTakeover::cmddoit_Click};
};

}  // namespace

SCREEN(frmTheEnd)
SCREEN(frmPinky)

std::unique_ptr<ui::Screen> MakefrmTakeover(Game& game, int uid) {
  return std::make_unique<frmTakeover>(game, uid);
}

}  // namespace grapplemont
