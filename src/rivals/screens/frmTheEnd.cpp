#include <algorithm>

#include "business/finance.h"
#include "business/past.h"
#include "records/fields/fields.h"
#include "rivals/endstories.h"
#include "rivals/founding.h"
#include "rivals/purse.h"
#include "rivals/screens/rivalscreens.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"
#include "ui/goingback.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;

constexpr int kMonthsShown = 120;
constexpr std::size_t kNightsShown = 20;
constexpr int kLettersOfWide = 190;  // of a window that has room for more than news and figures

const CellColumns<HistoryEntry> kNights = {
    {{"Show", ui::ColumnKind::Text, 4},
     [](const HistoryEntry& night) { return night.Name.View(); }},
    {{"Date", ui::ColumnKind::Date, 2},
     [](const HistoryEntry& night) { return DayCell(night.On); }},
    {{"Rating", ui::ColumnKind::Percent, 2},
     [](const HistoryEntry& night) { return int(night.Rating); }},
    {{"Gate", ui::ColumnKind::Number, 1, "How many people came."},
     [](const HistoryEntry& night) { return int(night.Attendance); }}};

/// The shows of the player's last promotion while it was theirs, the best first.
std::vector<const HistoryEntry*> BestNights(const World& world) {
  std::vector<const HistoryEntry*> nights;
  for (const HistoryEntry& entry : world.History())
    if (IsShow(entry) && !entry.CalledOff && entry.Promotion == world.PlayerUid() &&
        entry.Rating > 0)
      nights.push_back(&entry);
  std::ranges::stable_sort(nights, [](auto* a, auto* b) { return a->Rating > b->Rating; });
  if (nights.size() > kNightsShown) nights.resize(kNightsShown);
  return nights;
}

/// The news of the player's end, and the career behind it. The world can still be read afterwards.
class frmTheEnd : public ui::Screen {
 public:
  explicit frmTheEnd(Game& game)
      : Screen(game.Desk(), "frmTheEnd", "The End", ui::Role::Cover), game_(game) {
    txtcareer.Brief = true;
    lstnights.EmptyText = "No show was held.";
  }

  ui::Page Layout() override {
    return {
        .Actions = {&cmdlook, &cmdmornings, &cmdmenu, &cmdplayon},
        .Main = &cmdplayon,
        .Cancel = &cmdlook,
        .Body = ui::Columns(
            {ui::Group("The Turnbuckle Courier", {ui::Grow(txtstory)}).Grow(3),
             ui::Rows({ui::Group("Your career", {txtcareer}),
                       ui::Group("Standing by month (100 points make a size class)",
                                 {ui::Grow(chtstanding)})
                           .Grow()})
                 .Grow(2),
             ui::Group("The best nights", {ui::Grow(lstnights)}).From(kLettersOfWide).Grow(2)})};
  }

  void Load() override {
    const World& world = game_.World();
    EnableUnless(cmdmornings, WhyNoWayBack(game_));
    const EndStory story = StoryOfTheEnd(world, world.Game().EndCode);
    txtstory.Write({{Style::Heading, story.Headline},
                    {Style::Body, story.Body},
                    {Style::Muted, story.SignedBy}});
    txtcareer.WriteLines(CareerInFigures(world));
    FillPlaces(lstnights, kNights, BestNights(world));
    const std::vector<PastStanding> standings = StandingsOf(world, world.Player(), kMonthsShown);
    ui::Chart::Series line{"Standing", {}, ui::Tone::Gold};
    for (const PastStanding& then : standings) line.Values.push_back(then.Score());
    chtstanding.Captions = CaptionsOf(standings);
    chtstanding.Places = PlacesOf(standings);
    chtstanding.Lines = std::vector<ui::Chart::Series>{std::move(line)};
  }

 private:
  void cmdmenu_Click() {
    game_.Commit();
    game_.CloseSlot();
    desk().CloseAll();
    desk().Open("frmGameMenu");
  }

  /// The page lies on the main screen, as always.
  void cmdmornings_Click() {
    Close();
    desk().Open("frmMornings");
  }

  Game& game_;
  ui::Report txtstory{*this, "txtstory"};
  ui::Report txtcareer{*this, "txtcareer"};
  ui::Chart chtstanding{*this, "chtstanding"};
  ui::ListBox lstnights{*this, "lstnights", HeadingsOf(kNights)};
  ui::Button cmdlook{*this, "cmdlook", "Look Around", [this] { Close(); }};
  ui::Button cmdmenu{*this, "cmdmenu", "Main Menu", &frmTheEnd::cmdmenu_Click};
  ui::Button cmdplayon{*this, "cmdplayon", "Play On", [this] { desk().Open("frmPlayOn"); }};
  ui::Button cmdmornings{*this, "cmdmornings", "Back In Time", &frmTheEnd::cmdmornings_Click};
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
