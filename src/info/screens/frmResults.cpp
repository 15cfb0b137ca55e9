#include <algorithm>

#include "info/results.h"
#include "info/screens/infoscreens.h"
#include "info/screens/infotables.h"
#include "info/screens/pastscreens.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "report/report.h"
#include "show/nightbook.h"
#include "show/recap.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;

using K = ui::ColumnKind;

const CellColumns<KeptShow> kReports = {
    {{"Date", K::Date}, [](const KeptShow& show) { return DayCell(show.On); }},
    {{"Show", K::Text, 3}, [](const KeptShow& show) { return show.Name; }},
    {{"Told by", K::Text, 2}, [](const KeptShow& show) { return VoiceName(show.Voice); }}};

/// The last shows, to be read again in the words of their reports. With a day it begins with the
/// promotion's show of that day.
class frmReports : public GameScreen {
 public:
  explicit frmReports(Game& game, Day on = kDayZero, int promotionUid = 0)
      : GameScreen(game, "frmReports", "Report Column"), on_(on), promotion_(promotionUid) {
    lstreports.EmptyText = "Whatever is told of your shows can be read here again.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Columns({ui::Group("The last shows", {ui::Grow(lstreports)}).Grow(2),
                               ui::Group("", {ui::Grow(txtreport)}).Grow(3)}),
                  &lblfacts);
  }

  void Load() override {
    ShowList();
    Select();
    ShowReport();
  }
  void Return() override {
    ShowList();
    if (lstreports.Selected() == 0) lstreports.Select(lstreports.Count() > 0 ? 1 : 0);
    ShowReport();
  }

 private:
  void ShowList() {
    shows_ = ShowsInTheColumn(world());
    lstreports.Fill(NumberedRows(kReports, shows_));
    lblfacts.Text = shows_.empty() ? "Nothing has been told yet."
                                   : "The last " + std::to_string(kKeptShows) +
                                         " shows are kept as they were told.";
  }

  /// The show that was asked for, else the latest.
  void Select() {
    lstreports.Select(shows_.empty() ? 0 : 1);
    for (std::size_t i = 0; i < shows_.size(); ++i)
      if (shows_[i].On == on_ && shows_[i].Promotion == promotion_)
        lstreports.Select(static_cast<int>(i) + 1);
  }

  static ui::Report::Style StyleOf(int kind) {
    if (kind == kWhoMet) return Style::Strong;
    if (kind == kDetails || kind == kFigures) return Style::Muted;
    return kind == kWinner ? Style::Line : Style::Body;
  }

  void ShowReport() {
    const int key = lstreports.Key();
    if (key < 1 || key > static_cast<int>(shows_.size())) return txtreport.Write("");
    const KeptShow& show = shows_[static_cast<std::size_t>(key - 1)];
    std::vector<ui::Report::Paragraph> words = {
        {Style::Heading, show.Name},
        {Style::Muted,
         LongDate(show.On) + ". Reported by " + std::string(VoiceName(show.Voice)) + "."}};
    for (const ReportText& text : ReportOf(world(), show.On, show.Promotion))
      AddText(words, StyleOf(text.Kind), text.Words);
    txtreport.Write(std::move(words));
  }

  static void AddText(std::vector<ui::Report::Paragraph>& words, ui::Report::Style style,
                      std::string_view text) {
    while (!text.empty()) {
      const auto end = text.find('\n');
      if (const auto line = text.substr(0, end); !line.empty())
        words.push_back({style, std::string(line)});
      text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
  }

  Day on_;
  int promotion_;
  std::vector<KeptShow> shows_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstreports{*this, "lstreports", HeadingsOf(kReports), &frmReports::ShowReport};
  ui::Report txtreport{*this, "txtreport"};
};

}  // namespace

SCREEN(frmReports)

std::unique_ptr<ui::Screen> ReportScreen(Game& game, Day on, int promotionUid) {
  return std::make_unique<frmReports>(game, on, promotionUid);
}

void ConnectInfo(Game& game) {
  game.OpenReport = [&game](Day on, int promotionUid) {
    game.Desk().Open(ReportScreen(game, on, promotionUid));
  };
  game.OpenMail = [&game](int number) {
    ui::Screen* const top = game.Desk().Top();
    if (top && top->Name() == "frmNews") game.Desk().Close(*top);
    game.Desk().Open(MailScreen(game, number));
  };
}

namespace {

const CellColumns<YearAward> kAwards = {
    {{"Year", K::Number}, [](const YearAward& award) { return YearOf(award.On); }},
    {{"Award", K::Text, 3}, [](const YearAward& award) { return AwardName(award.Kind); }},
    {{"Winner", K::Text, 5},
     [](const YearAward& award) { return ui::Cell(award.Winner.View(), ui::Tone::Gold); }},
    {{"For", K::Text, 8}, [](const YearAward& award) { return award.For.View(); }}};

/// The awards of the years.
class frmAwards : public GameScreen {
 public:
  explicit frmAwards(Game& game) : GameScreen(game, "frmAwards", "Awards") {
    lstawards.EmptyText =
        "Nobody has an award yet. Good matches and Titles are what they are given for.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Columns({ui::Field("Year", cmbyear),
                                              ui::Field("Award", cmbaward), ui::Spacer()}),
                                 ui::Grow(lstawards)}),
                  &lblfacts);
  }

  /// The latest year, or whatever there will be.
  void Load() override {
    cmbyear.Add("All years");
    for (const int year : YearsOfAwards(world())) cmbyear.Add(std::to_string(year), year);
    cmbaward.Add("All awards");
    for (int kind = kWrestlerOfTheYear; kind <= kRookieOfTheYear; ++kind)
      cmbaward.Add(std::string(AwardName(kind)), kind);
    for (ui::ComboBox* filter : {&cmbyear, &cmbaward}) filter->Filters = true;
    cmbyear.Select(cmbyear.Count() > 1 ? 2 : 1);
    cmbaward.Select(1);
    ShowAwards();
  }
  void Return() override { ShowAwards(); }

 private:
  void ShowAwards() {
    std::vector<ui::ListBox::Row> rows;
    for (const YearAward* award : AwardsOf(world(), cmbyear.Key(), cmbaward.Key()))
      rows.push_back(RowOf(kAwards, *award, world().Awards().NumberOf(*award)));
    lblfacts.Text = "Awards are given on 31 December, for the year up to the day before.";
    lstawards.Fill(std::move(rows));
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbyear{*this, "cmbyear", &frmAwards::ShowAwards};
  ui::ComboBox cmbaward{*this, "cmbaward", &frmAwards::ShowAwards};
  ui::ListBox lstawards{*this, "lstawards", HeadingsOf(kAwards)};
};

}  // namespace

SCREEN(frmAwards)

namespace {

/// How many shows the chart goes back.
constexpr std::size_t kCharted = 26;

ui::Cell KindCell(const HistoryEntry& show) {
  if (show.CalledOff) return {"Called off", ui::Tone::Red};
  return show.Kind == kPastEvent ? ui::Cell("Event", ui::Tone::Gold) : ui::Cell("Television");
}

/// A figure that a show has which was held.
ui::Cell HeldCell(const HistoryEntry& show, ui::Cell figure) {
  return show.CalledOff ? ui::Cell(0.0, "") : figure;
}

ui::Cell MoneyCell(int dollars) {
  return {static_cast<double>(dollars), Dollars(dollars)};
}

const CellColumns<HistoryEntry> kShows = {
    {{"Date", K::Date}, [](const HistoryEntry& show) { return ShortDayCell(show.On); }},
    {{"Show", K::Text, 4}, [](const HistoryEntry& show) { return show.Name.View(); }},
    {{"Day", K::Date},
     [](const HistoryEntry& show) {
       return ui::Cell(double(DayNumber(DayName(show.On))), std::string(DayName(show.On)));
     }},
    {{"Kind", K::Tag}, KindCell},
    {{"Rating", K::Percent},
     [](const HistoryEntry& show) { return HeldCell(show, int(show.Rating)); }},
    {{"Crowd", K::Number},
     [](const HistoryEntry& show) { return HeldCell(show, CountCell(show.Attendance)); }},
    {{"Viewers", K::Number, 0, "Television rating, or buy rate."},
     [](const HistoryEntry& show) {
       return HeldCell(show,
                       {1.0 * show.Viewers, show.Viewers == 0 ? "" : RatingText(show.Viewers)});
     }},
    {{"In", K::Number, 0, "What the show brought."},
     [](const HistoryEntry& show) { return MoneyCell(show.Income); }},
    {{"Out", K::Number, 0, "What the show itself cost."},
     [](const HistoryEntry& show) { return MoneyCell(show.Costs); }}};

ui::Cell StakeCell(const HeldMatch& match) {
  if (match.Changed) return {"Title change", ui::Tone::Gold};
  if (!(match.Title == "None")) return {"Title", ui::Tone::Gold};
  return match.Feud[0] != 0 ? ui::Cell("Feud", ui::Tone::Red) : ui::Cell("");
}

const CellColumns<HeldMatch> kCard = {
    {{"#", K::Number}, [](const HeldMatch& match) { return int(match.Row); }},
    {{"Result", K::Text, 6}, ResultText},
    {{"Kind", K::Text, 3}, grapplemont::KindText},
    {{"For", K::Tag}, StakeCell},
    {{"Rating", K::Percent}, [](const HeldMatch& match) { return int(match.Rating); }}};

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
                  &lblfacts,
                  {&cmdreports, &cmdtitles, &cmdawards, &cmdrecords, &cmdchronicle, &cmdmorning},
                  &cmdreport);
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
    for (ui::ComboBox* filter : {&cmbshow, &cmbyear}) {
      filter->Filters = true;
      filter->Select(1);
    }
  }

  /// Their keys are the numbers of the history's records.
  void ShowShows() {
    const std::string name = cmbshow.Selected() <= 1 ? std::string() : cmbshow.Text.Get();
    const auto shows = PastCards(world(), name, cmbyear.Key());
    std::vector<ui::ListBox::Row> rows;
    for (const HistoryEntry* show : shows)
      rows.push_back(RowOf(kShows, *show, world().History().NumberOf(*show)));
    lstshows.Fill(std::move(rows));
    if (lstshows.Selected() == 0) lstshows.Select(lstshows.Count() > 0 ? 1 : 0);
    lblfacts.Text = SumOf(shows);
    ShowChart(shows);
    ShowCard();
  }

  void ShowChart(const std::vector<const HistoryEntry*>& shows) {
    std::vector<double> ratings;
    std::vector<Day> days;
    for (std::size_t i = std::min(shows.size(), kCharted); i-- > 0;) {
      if (shows[i]->CalledOff) continue;
      ratings.push_back(shows[i]->Rating);
      days.push_back(shows[i]->On);
    }
    chtratings.Captions = DayCaptions(days);
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
        rows.push_back(RowOf(kCard, *match, world().Bouts().NumberOf(*match)));
    lstcard.EmptyText = !show             ? "Choose a show to see who won on it."
                        : show->CalledOff ? "The show was called off."
                                          : "The matches of this show are not kept.";
    lstcard.Fill(std::move(rows), false);
    ShowButtons(show);
  }

  void ShowButtons(const HistoryEntry* show) {
    const bool kept = show && HasReport(world(), show->On, show->Promotion);
    EnableUnless(cmdreport, !show  ? "Choose a show first."
                            : kept ? ""
                                   : "Only the reports of the last " + std::to_string(kKeptShows) +
                                         " shows are kept.");
    EnableUnless(cmdmorning, !show ? "Choose a show first."
                             : HasNight(world(), show->On, show->Promotion)
                                 ? ""
                                 : "What a show moved is kept of the last " +
                                       std::to_string(kKeptShows) + " shows that were held.");
  }

  void cmdmorning_Click() {
    if (const HistoryEntry* show = Chosen())
      desk().Open(MorningScreen(game_, show->On, show->Promotion));
  }

  void cmdreport_Click() {
    if (const HistoryEntry* show = Chosen())
      desk().Open(ReportScreen(game_, show->On, show->Promotion));
  }
  void lstshows_Open() {
    if (cmdreport.Enabled) cmdreport_Click();
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbshow{*this, "cmbshow", &frmResults::ShowShows};
  ui::ComboBox cmbyear{*this, "cmbyear", &frmResults::ShowShows};
  ui::ListBox lstshows{*this, "lstshows", HeadingsOf(kShows), &frmResults::ShowCard,
                       &frmResults::lstshows_Open};
  ui::ListBox lstcard{*this, "lstcard", HeadingsOf(kCard)};
  ui::Chart chtratings{*this, "chtratings"};
  ui::Button cmdreport{*this, "cmdreport", "Read Report", &frmResults::cmdreport_Click};
  ui::Button cmdreports{*this, "cmdreports", "Report Column",
                        [this] { desk().Open("frmReports"); }};
  ui::Button cmdmorning{*this, "cmdmorning", "Morning After", &frmResults::cmdmorning_Click};
  ui::Button cmdtitles{*this, "cmdtitles", "Reigns", [this] { desk().Open("frmReigns"); }};
  ui::Button cmdawards{*this, "cmdawards", "Awards", [this] { desk().Open("frmAwards"); }};
  ui::Button cmdrecords{*this, "cmdrecords", "Records", [this] { desk().Open("frmRecords"); }};
  ui::Button cmdchronicle{*this, "cmdchronicle", "Chronicle",
                          [this] { desk().Open("frmChronicle"); }};
};

}  // namespace

SCREEN(frmResults)

}  // namespace grapplemont
