#include <algorithm>

#include "info/results.h"
#include "info/screens/chroniclescreens.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "show/reportcolumn.h"
#include "storylines/screens/screenpeople.h"
#include "ui/gamescreen.h"

namespace grapplemont {

namespace {

/// How many shows the chart goes back.
constexpr std::size_t kCharted = 26;

/// Every show that was held or called off, and who won on it.
class frmResults : public GameScreen {
 public:
  explicit frmResults(Game& game) : GameScreen(game, "frmResults", "Results") {
    lstshows.EmptyText = "Your shows stand here once they have been held.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Rows({ui::Group("", {ui::Columns({ui::Field("Show", cmbshow),
                                                        ui::Field("Year", cmbyear), ui::Spacer()}),
                                           ui::Grow(lstshows)})
                                .Grow(5),
                            ui::Columns({ui::Group("Who won", {ui::Grow(lstcard)}).Grow(3),
                                         ui::Group("Ratings", {ui::Grow(chtratings)}).Grow(2)})
                                .Grow(4)}),
                  &lblfacts, {&cmdreports, &cmdtitles, &cmdawards}, &cmdreport);
  }

  void Load() override {
    FillFilters();
    ShowShows();
  }
  void Return() override { ShowShows(); }

 private:
  void FillFilters() {
    cmbshow.Add("All shows");
    for (const std::string& name : NamesOfPastShows(world())) cmbshow.Add(name);
    cmbyear.Add("All years");
    for (const int year : YearsOfPastShows(world())) cmbyear.Add(std::to_string(year), year);
    cmbshow.Select(1);
    cmbyear.Select(1);
  }

  /// Their keys are the numbers of the history's records.
  void ShowShows() {
    const std::string name = cmbshow.Selected() <= 1 ? std::string() : cmbshow.Text.Get();
    const auto shows = PastCards(world(), name, cmbyear.Key());
    std::vector<ui::ListBox::Row> rows;
    for (const HistoryEntry* show : shows)
      rows.push_back({CellsOf(*show), world().History().NumberOf(*show)});
    lstshows.Fill(std::move(rows));
    if (lstshows.Selected() == 0) lstshows.Select(lstshows.Count() > 0 ? 1 : 0);
    lblfacts.Text = SumOf(shows);
    ShowChart(shows);
    ShowCard();
  }

  static std::vector<ui::Cell> CellsOf(const HistoryEntry& show) {
    const bool isEvent = show.Kind == kPastEvent;
    const ui::Cell when(static_cast<double>((Day(show.On) - kDayZero).count()), ShortDate(show.On));
    if (show.CalledOff)
      return {when,
              show.Name.View(),
              DayName(show.On),
              ui::Cell("Called off", ui::Tone::Red),
              ui::Cell(0, std::string()),
              ui::Cell(0, std::string()),
              ui::Cell(0, std::string()),
              Money(show.Income),
              Money(show.Costs)};
    return {when,
            show.Name.View(),
            DayName(show.On),
            isEvent ? ui::Cell("Event", ui::Tone::Gold) : ui::Cell("Television"),
            ui::Cell(show.Rating),
            ui::Cell(show.Attendance),
            ui::Cell(show.Viewers, show.Viewers == 0 ? "" : RatingText(show.Viewers)),
            Money(show.Income),
            Money(show.Costs)};
  }

  static ui::Cell Money(int dollars) { return {static_cast<double>(dollars), Dollars(dollars)}; }

  void ShowChart(const std::vector<const HistoryEntry*>& shows) {
    std::vector<double> ratings;
    std::vector<std::string> captions;
    for (std::size_t i = std::min(shows.size(), kCharted); i-- > 0;) {
      if (shows[i]->CalledOff) continue;
      ratings.push_back(shows[i]->Rating);
      captions.push_back(ShortDate(shows[i]->On));
    }
    chtratings.Captions = std::move(captions);
    chtratings.Lines = std::vector<ui::Chart::Series>{{"", std::move(ratings)}};
  }

  /// nullptr when none is selected.
  const HistoryEntry* Chosen() {
    const int number = lstshows.Key();
    return number >= 1 && number <= world().History().Count() ? &world().History()[number]
                                                              : nullptr;
  }

  void ShowCard() {
    const HistoryEntry* show = Chosen();
    std::vector<ui::ListBox::Row> rows;
    if (show)
      for (const HeldMatch* match : MatchesOf(world(), *show))
        rows.push_back({{ui::Cell(match->Row), ResultText(*match), KindText(*match),
                         StakeOf(*match), ui::Cell(match->Rating)},
                        world().Bouts().NumberOf(*match)});
    lstcard.EmptyText = !show             ? "Choose a show to see who won on it."
                        : show->CalledOff ? "The show was called off."
                                          : "The matches of this show are not kept.";
    lstcard.Fill(std::move(rows), false);
    ShowButtons(show);
  }

  static ui::Cell StakeOf(const HeldMatch& match) {
    if (match.Changed) return {"Title change", ui::Tone::Gold};
    if (!(match.Title == "None")) return {"Title", ui::Tone::Gold};
    return match.Feud[0] != 0 ? ui::Cell("Feud", ui::Tone::Red) : ui::Cell("");
  }

  void ShowButtons(const HistoryEntry* show) {
    const bool kept = show && HasReport(world(), show->On, show->Promotion);
    EnableUnless(cmdreport, !show  ? "Choose a show first."
                            : kept ? ""
                                   : "Only the reports of the last " + std::to_string(kKeptShows) +
                                         " shows are kept.");
  }

  void cmdreport_Click() {
    if (const HistoryEntry* show = Chosen())
      desk().Open(MakefrmReports(game_, show->On, show->Promotion));
  }
  void lstshows_Open() {
    if (cmdreport.Enabled) cmdreport_Click();
  }

  using K = ui::ColumnKind;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbshow{*this, "cmbshow", &frmResults::ShowShows};
  ui::ComboBox cmbyear{*this, "cmbyear", &frmResults::ShowShows};
  ui::ListBox lstshows{*this,
                       "lstshows",
                       {{"Date", K::Date},
                        {"Show", K::Text, 4},
                        {"Day"},
                        {"Kind", K::Tag},
                        {"Rating", K::Percent},
                        {"Crowd", K::Number},
                        {"Viewers", K::Number, 0, "Television rating, or buy rate."},
                        {"In", K::Number, 0, "What the show brought."},
                        {"Out", K::Number, 0, "What the show itself cost."}},
                       &frmResults::ShowCard,
                       &frmResults::lstshows_Open};
  ui::ListBox lstcard{*this,
                      "lstcard",
                      {{"#", K::Number},
                       {"Result", K::Text, 6},
                       {"Kind", K::Text, 3},
                       {"For", K::Tag},
                       {"Rating", K::Percent}}};
  ui::Chart chtratings{*this, "chtratings"};
  ui::Button cmdreport{*this, "cmdreport", "Read Report", &frmResults::cmdreport_Click};
  ui::Button cmdreports{*this, "cmdreports", "Report Column",
                        [this] { desk().Open("frmReports"); }};
  ui::Button cmdtitles{*this, "cmdtitles", "Reigns", [this] { desk().Open("frmReigns"); }};
  ui::Button cmdawards{*this, "cmdawards", "Awards", [this] { desk().Open("frmAwards"); }};
};

}  // namespace

SCREEN(frmResults)

}  // namespace grapplemont
