#include "info/screens/infotables.h"
#include "info/smallmonth.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;

using K = ui::ColumnKind;

constexpr const char* kTooBig =
    "Only Small and Backyard promotions live like this. Ours has outgrown it.";

/// What a small promotion can do with the month, and what is said in town.
class frmMonth : public GameScreen {
 public:
  explicit frmMonth(Game& game) : GameScreen(game, "frmMonth", "This Month", {.Manages = true}) {
    BackBefore(cmdventure);
    lstrumours.EmptyText = "The town has nothing to say this month.";
    lblcame.Colour = ui::Tone::Gold;
    lblcame.Visible = lblterms.Visible = false;
    txtbrings.Brief = true;
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns({ui::Rows({ui::Group("What could be done", {ui::Grow(lstventures)}).Grow(3),
                               ui::Group("What is said in town", {ui::Grow(lstrumours)}).Grow(2)})
                         .Grow(3),
                     ui::Group("", {lblcame, txtbrings, ui::Grow(lstwhom), lblterms}).Grow(2)}),
        &lblfacts, {}, &cmdventure);
  }

  void Return() override {
    const bool isSmall = HasSmallMonth(world().Player());
    lblfacts.Text = MonthYear(world().Today()) + ", " + Dollars(world().Player().Money) +
                    " in hand." +
                    (isSmall ? " " + Counted(VenturesLeft(world()), "venture") +
                                   " still open; each can be made once a month."
                             : std::string());
    ShowVentures(isSmall);
    ShowRumours();
    lstventures_Click();
  }

 private:
  void ShowVentures(bool isSmall) {
    lstventures.EmptyText = kTooBig;
    std::vector<ui::ListBox::Row> rows;
    for (const VentureRow& row : Ventures()) {
      if (!isSmall) break;
      const bool done = IsDoneThisMonth(world(), row.Is);
      const int price = PriceOf(world(), row);
      rows.push_back({{row.Name, ui::Cell(price, Dollars(price)),
                       done ? ui::Cell("Done", ui::Tone::Muted) : ui::Cell("Open", ui::Tone::Gold)},
                      static_cast<int>(row.Is) + 1});
    }
    lstventures.Fill(std::move(rows));
    if (lstventures.Selected() == 0 && lstventures.Count() > 0) lstventures.Select(1);
  }

  void ShowRumours() {
    rumours_ = LocalRumours(world());
    std::vector<ui::ListBox::Row> rows;
    for (const LocalRumour& rumour : rumours_)
      rows.push_back({{rumour.Words}, static_cast<int>(rows.size()) + 1});
    lstrumours.Fill(std::move(rows));
  }

  const VentureRow* Chosen() const {
    const int key = lstventures.Key();
    return key == 0 ? nullptr : &Ventures()[static_cast<std::size_t>(key - 1)];
  }

  void lstventures_Click() {
    const VentureRow* venture = Chosen();
    lstwhom.Visible = venture && *venture->Whom;
    if (!venture) {
      txtbrings.Write({{Style::Muted, "What a venture brings stands here."}});
      return EnableUnless(cmdventure, kTooBig);
    }
    txtbrings.Write({{Style::Heading, venture->Name},
                     {Style::Line, venture->Brings},
                     {Style::Strong, venture->Whom}});
    FillTable(lstwhom, PeopleTable(), WhomFor(world(), venture->Is));
    lstwhom.EmptyText = "Nobody this month.";
    lstwhom_Click();
  }

  void lstwhom_Click() {
    const VentureRow* venture = Chosen();
    if (venture) EnableUnless(cmdventure, WhyNotVenture(world(), venture->Is, lstwhom.Key()));
    ShowTerms(venture && venture->Is == Venture::Tryout && lstwhom.Count() > 0);
  }

  void ShowTerms(bool isTryout) {
    const Worker* worker = isTryout ? world().FindWorker(lstwhom.Key()) : nullptr;
    lblterms.Visible = isTryout;
    lblterms.Text = worker ? worker->Name + " signs for " + TryoutTerms(world(), *worker) + "."
                           : std::string("Choose somebody to read what they ask.");
  }

  void cmdventure_Click() {
    const std::string came = Undertake(world(), Chosen()->Is, lstwhom.Key());
    lblcame.Text = came;
    lblcame.Visible = true;
    Return();
  }

  void lstrumours_Open() {
    if (lstrumours.Key() == 0) return;
    const LocalRumour& rumour = rumours_[static_cast<std::size_t>(lstrumours.Key() - 1)];
    if (rumour.Worker != 0) return game_.OpenWorker(rumour.Worker);
    desk().Open(rumour.Screen);
  }

  std::vector<LocalRumour> rumours_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstventures{*this,
                          "lstventures",
                          {{"Venture", K::Text, 4}, {"Price", K::Number, 1}, {"", K::Tag, 1}},
                          &frmMonth::lstventures_Click};
  ui::ListBox lstrumours{
      *this, "lstrumours", {{"Rumour"}}, ui::Handler{}, [this] { lstrumours_Open(); }};
  ui::Label lblcame{*this, "lblcame"};
  ui::Report txtbrings{*this, "txtbrings"};
  ui::ListBox lstwhom{*this, "lstwhom", HeadingsOf(PeopleTable()), &frmMonth::lstwhom_Click};
  ui::Label lblterms{*this, "lblterms"};
  ui::Button cmdventure{*this, "cmdventure", "Do It", &frmMonth::cmdventure_Click};
};

}  // namespace

SCREEN(frmMonth)

}  // namespace grapplemont
