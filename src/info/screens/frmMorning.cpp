#include <algorithm>
#include <array>

#include "info/infowords.h"
#include "info/morning.h"
#include "info/screens/infotables.h"
#include "info/screens/pastscreens.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "show/recap.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"
#include "ui/pictureof.h"

namespace grapplemont {

namespace {
using K = ui::ColumnKind;

/// What the show came to, by the control that says it.
struct Figure {
  const char* Control;
  const char* Caption;
  NoteKind Kind;
  bool IsChange;  // the number that counts is by how much it moved
};
constexpr std::array<Figure, 5> kShownFigures = {
    {{"lblrating", "Rating", kNoteRating, false},
     {"lblimage", "Image", kNoteImage, false},
     {"lblcrowd", "Attendance", kNoteCrowd, false},
     {"lblviewers", "Television rating", kNoteViewers, false},
     {"lblmoney", "Money", kNoteMoney, true}}};
constexpr int kFigureCount = static_cast<int>(kShownFigures.size());

const Figure& FigureAt(int i) {
  return kShownFigures[static_cast<std::size_t>(i - 1)];
}

ui::Tone ToneOf(int change) {
  return change > 0 ? ui::Tone::Green : change < 0 ? ui::Tone::Red : ui::Tone::Muted;
}

/// "74 (+3)", by the change. What did not move stands as it is now, as long as that is how the show
/// left it.
ui::Cell MovedCell(const MovedFigure& figure, const Worker* worker, Percent Worker::*now) {
  if (figure.Moved)
    return {1.0 * figure.Change, std::to_string(figure.Now) + " (" + Signed(figure.Change) + ")",
            ToneOf(figure.Change)};
  return {0.0, worker ? std::to_string(int(worker->*now)) : "-", ui::Tone::Muted};
}

ui::Column MovedColumn(const char* what) {
  return {what, K::Number, 0, "As the show left it, and what it changed; sorted by the change."};
}

/// A reason where it stands alone.
std::string Alone(std::string_view reason) {
  return FillLine(reason, {});
}

/// What a show of the player's made and moved, and why.
class frmMorning : public GameScreen {
 public:
  /// Without a day it is about the last show.
  explicit frmMorning(Game& game, Day on = kDayZero, int promotionUid = 0)
      : GameScreen(game, "frmMorning", "The morning after",
                   {.Back = on == kDayZero ? "To The Desk" : "Back"}),
        on_(on),
        promotion_(promotionUid) {
    lblflat.Colour = ui::Tone::Amber;
    lstpeople.EmptyText = "The show moved nobody.";
    lsttitles.EmptyText = "No Title was at stake. A match for it moves its image.";
    lstfeuds.EmptyText = "No feud was moved. Matches between the people of one move it.";
    lsthurt.EmptyText = "Nobody was hurt.";
    lstwhy.EmptyText = "Choose a number or a name to see where it came from.";
    // All of it is seen at once in a window of the usual size.
    lstpeople.Room = 4;
    lsttitles.Room = lstfeuds.Room = lsthurt.Room = 3;
    lstwhy.Room = 16;
    for (int i = 1; i <= kFigureCount; ++i) {
      lblfigures(i).Large = true;
      cmdwhy(i).Plain = true;
    }
  }

  ui::Page Layout() override {
    std::vector<ui::Box> figures;
    for (int i = 1; i <= kFigureCount; ++i)
      figures.push_back(ui::Group(CaptionOf(FigureAt(i)), {lblfigures(i), lblnotes(i),
                                                           ui::Columns({cmdwhy(i), ui::Spacer()})})
                            .Grow());
    // A Title comes with who holds it, which needs more room than the others.
    ui::Box moved =
        ui::Columns({ui::Rows({ui::Group("Titles", {ui::Grow(lsttitles)}).Grow()}).Grow(2),
                     ui::Group("Feuds", {ui::Grow(lstfeuds)}).Grow(),
                     ui::Group("Hurt", {ui::Grow(lsthurt)}).Grow()});
    ui::Page page = PageOf(
        ui::Rows({ui::Columns(std::move(figures)),
                  ui::Columns(
                      {ui::Rows({ui::Group("Who rose and who fell", {ui::Grow(lstpeople)}).Grow(3),
                                 std::move(moved).Grow(2)})
                           .Grow(2),
                       ui::Rows({ui::Group("", {lblwhy, ui::Grow(lstwhy)}).Grow(3),
                                 ui::Group("Row by row", {ui::Grow(chtrows), lblwanted}).Grow()})
                           .Grow(1)})
                      .Grow()}),
        &lblfacts, {&cmdreport, &cmdresults});
    page.More.insert(page.More.begin(), &lblflat);
    return page;
  }

  void Return() override {
    if (on_ == kDayZero) FindLast();
    morning_ = MorningOf(world(), on_, promotion_);
    ShowFacts();
    for (int i = 1; i <= kFigureCount; ++i) ShowFigure(i);
    ShowPeople();
    ShowOthers();
    ShowRows();
    cmdwhy_Click(1);
  }

 private:
  void FindLast() {
    for (const ShowNote& note : world().ShowNotes()) {
      if (note.Kind != kNoteRating) continue;
      on_ = note.On;
      promotion_ = note.Promotion;
    }
  }

  void ShowFacts() {
    const NotedNumber* rating = morning_.Of(kNoteRating);
    lblfacts.Text = rating ? rating->What + " on " + LongDate(on_) + "."
                           : "No show of yours has been held yet.";
    for (const NotedNumber* won : morning_.AllOf(kNoteTitle))
      lblfacts.Text =
          lblfacts.Text.Get() + " " + won->What + ": " + won->Steps.back()->Why.Str() + ".";
    lblflat.Text = FlatNightText(morning_);
    lblflat.Visible = !lblflat.Text->empty();
    EnableUnless(cmdreport, HasReport(world(), on_, promotion_)
                                ? ""
                                : "Only the reports of the last " + std::to_string(kKeptShows) +
                                      " shows are kept.");
    lblwanted.Text = WantedText(morning_);
    lblwanted.Visible = !lblwanted.Text.Get().empty();
  }

  /// An Event is bought, a show on television is watched.
  bool IsBought(const Figure& figure) const {
    return figure.Kind == kNoteViewers && morning_.Show && morning_.Show->Kind == kPastEvent;
  }
  const char* CaptionOf(const Figure& figure) const {
    return IsBought(figure) ? "Buy rate" : figure.Caption;
  }

  /// What stands below the number: where it came from, and how it was the last time.
  std::string NoteText(const Figure& figure, const NotedNumber& number) {
    if (figure.Kind == kNoteRating) return BandText(morning_);
    if (figure.Kind == kNoteImage)
      return ChangeText(kNoteImage, number.Change()) + " from " + std::to_string(number.Before());
    if (figure.Kind == kNoteMoney)
      return (number.After() == world().Player().Money ? "Now " : "Then ") +
             Dollars(number.After());
    if (!morning_.Before) return "For the first time";
    const int before = figure.Kind == kNoteCrowd ? int(morning_.Before->Attendance)
                                                 : int(morning_.Before->Viewers);
    return ChangeText(figure.Kind, number.After() - before) + " on the last one";
  }

  static std::string FigureText(const Figure& figure, const NotedNumber& number) {
    return figure.IsChange ? ChangeText(figure.Kind, number.Change())
                           : NumberText(figure.Kind, number.After());
  }

  void ShowFigure(int i) {
    const Figure& figure = FigureAt(i);
    const NotedNumber* number = morning_.Of(figure.Kind);
    const std::string none = IsBought(figure) ? "No pay-per-view" : "Not moved";
    EnableUnless(cmdwhy(i), number ? "" : none + ", so there are no steps.");
    if (!number) {
      lblfigures(i).Text = "-";
      lblnotes(i).Text = none;
      return;
    }
    lblfigures(i).Text = FigureText(figure, *number);
    if (figure.IsChange) lblfigures(i).Colour = ToneOf(number->Change());
    lblnotes(i).Text = NoteText(figure, *number);
    lblnotes(i).Colour = ui::Tone::Muted;
  }

  void ShowPeople() {
    people_ = PeopleMoved(morning_);
    const bool isFresh = world().Today() - on_ <= std::chrono::days{1};
    std::vector<ui::ListBox::Row> rows;
    for (std::size_t i = 0; i < people_.size(); ++i) {
      const PersonMoved& person = people_[i];
      const Worker* worker = isFresh ? world().FindWorker(person.Worker) : nullptr;
      rows.push_back({{person.Name, MovedCell(person.Over, worker, &Worker::Over),
                       MovedCell(person.Morale, worker, &Worker::Morale),
                       MovedCell(person.Condition, worker, &Worker::Condition), Alone(person.Why)},
                      static_cast<int>(i) + 1});
    }
    lstpeople.Fill(std::move(rows));
  }

  /// Titles, feuds and injuries, each under the place of its number in the morning's.
  void ShowOthers() {
    std::vector<ui::ListBox::Row> titles, feuds, hurt;
    for (std::size_t i = 0; i < morning_.Numbers.size(); ++i) {
      const NotedNumber& number = morning_.Numbers[i];
      const ShowNote& last = *number.Steps.back();
      const int key = static_cast<int>(i) + 1;
      if (number.Kind == kNoteTitle)
        titles.push_back(
            {{number.What, ui::Cell(WhoWon(world(), last), ui::Tone::Gold), Alone(last.Why.View())},
             key});
      if (number.Kind == kNoteTitleImage)
        titles.push_back(
            {{number.What, ImageCell(number), Alone(WhyTitleMoved(world(), morning_, number))},
             key});
      if (number.Kind == kNoteHeat) feuds.push_back({{number.What, Moved(number)}, key});
      if (number.Kind == kNoteFeudEnd)
        feuds.push_back({{number.What, ui::Cell("Ended", ui::Tone::Gold)}, key});
      if (number.Kind == kNoteInjury)
        hurt.push_back(
            {{number.What,
              ui::Cell(last.Why.Str() + ", " + Counted(last.Change, "month"), ui::Tone::Red)},
             key});
    }
    lsttitles.Fill(std::move(titles));
    lstfeuds.Fill(std::move(feuds));
    lsthurt.Fill(std::move(hurt));
  }

  static ui::Cell ImageCell(const NotedNumber& number) {
    return number.Change() == 0 ? ui::Cell(number.After(), "Unchanged", ui::Tone::Muted)
                                : Moved(number);
  }

  static ui::Cell Moved(const NotedNumber& number) {
    return {static_cast<double>(number.After()),
            std::to_string(number.After()) + " (" + Signed(number.Change()) + ")",
            ToneOf(number.Change())};
  }

  void ShowRows() {
    std::vector<double> ratings;
    std::vector<std::string> captions;
    if (const NotedNumber* rating = morning_.Of(kNoteRating))
      for (const RowRating& row : RowRatings(*rating)) {
        ratings.push_back(row.Rating);
        captions.push_back(std::to_string(row.Row));
      }
    chtrows.Captions = std::move(captions);
    chtrows.Lines = std::vector<ui::Chart::Series>{{"", std::move(ratings)}};
  }

  /// The steps of the number, and where they lead: to what it came to be, or to the change.
  void AddSteps(std::vector<ui::ListBox::Row>& rows, const NotedNumber& number,
                const std::string& caption, bool toChange = false) {
    if (number.Before() != 0 && !toChange)
      rows.push_back({{NumberText(number.Kind, number.Before()), "", "Before"}});
    for (const ShowNote* step : number.Steps) {
      if (number.Kind == kNoteRating && step == number.Steps.back()) {
        AddMean(rows, *step);
        continue;
      }
      rows.push_back(
          {{ui::Cell(step->Change, ChangeText(number.Kind, step->Change), ToneOf(step->Change)),
            step->Row == 0 ? ui::Cell(0.0, "") : ui::Cell(int(step->Row)),
            Alone(step->Why.View())}});
    }
    rows.push_back({{ui::Cell(number.After(),
                              toChange ? ChangeText(number.Kind, number.Change())
                                       : NumberText(number.Kind, number.After()),
                              ui::Tone::Gold),
                     "", caption}});
  }

  /// The last step of a rating takes the mean of all before.
  static void AddMean(std::vector<ui::ListBox::Row>& rows, const ShowNote& step) {
    const int sum = step.Now - step.Change;
    rows.push_back({{ui::Cell(sum), "", "Points in all"}});
    rows.push_back({{ui::Cell(0.0, ""), "", Alone(step.Why.View())}});
  }

  void ShowWhy(const std::string& title, std::vector<ui::ListBox::Row> rows) {
    lblwhy.Text = title;
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i].Key = static_cast<int>(i) + 1;
    lstwhy.Fill(std::move(rows), false);
  }

  void cmdwhy_Click(int i) {
    const Figure& figure = FigureAt(i);
    const NotedNumber* number = morning_.Of(figure.Kind);
    std::vector<ui::ListBox::Row> rows;
    if (number) AddSteps(rows, *number, CaptionOf(figure), figure.IsChange);
    ShowWhy(number ? "Why " + FigureText(figure, *number) + "?" : "Why?", std::move(rows));
  }

  void lstpeople_Click() {
    const int key = lstpeople.Key();
    if (key < 1 || key > static_cast<int>(people_.size())) return;
    const std::string& name = people_[static_cast<std::size_t>(key - 1)].Name;
    std::vector<ui::ListBox::Row> rows;
    for (const NotedNumber* number : NumbersOf(morning_, name))
      AddSteps(rows, *number,
               number->Kind == kNoteOver     ? "Over"
               : number->Kind == kNoteMorale ? "Morale"
                                             : "Condition");
    ShowWhy("Why " + name + "?", std::move(rows));
  }
  void lstpeople_Open() {
    const int key = lstpeople.Key();
    if (key < 1 || key > static_cast<int>(people_.size())) return;
    const int uid = people_[static_cast<std::size_t>(key - 1)].Worker;
    if (uid != 0 && game_.OpenWorker) game_.OpenWorker(uid);
  }

  void ShowOther(const ui::ListBox& list) {
    const int key = list.Key();
    if (key < 1 || key > static_cast<int>(morning_.Numbers.size())) return;
    const NotedNumber& number = morning_.Numbers[static_cast<std::size_t>(key - 1)];
    std::vector<ui::ListBox::Row> rows;
    AddSteps(rows, number, number.What);
    ShowWhy("Why " + number.What + "?", std::move(rows));
  }
  void lsttitles_Click() { ShowOther(lsttitles); }
  void lstfeuds_Click() { ShowOther(lstfeuds); }
  void lsthurt_Click() { ShowOther(lsthurt); }

  ui::Drawing PortraitOfRow(int key) {
    if (key < 1 || key > static_cast<int>(people_.size())) return {};
    const Worker* worker = world().FindWorker(people_[static_cast<std::size_t>(key - 1)].Worker);
    return worker ? ui::Drawing(PortraitOf(*worker)) : ui::Drawing();
  }

  void cmdreport_Click() { desk().Open(ReportScreen(game_, on_, promotion_)); }

  Day on_;
  int promotion_;
  Morning morning_;
  std::vector<PersonMoved> people_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Label lblflat{*this, "lblflat"};
  ui::Array<ui::Label> lblfigures{"", kFigureCount, [this](const std::string&, int i) {
                                    return std::make_unique<ui::Label>(*this, FigureAt(i).Control);
                                  }};
  ui::Array<ui::Label> lblnotes{"lblnote", kFigureCount, [this](const std::string& name, int) {
                                  return std::make_unique<ui::Label>(*this, name);
                                }};
  ui::Array<ui::Button> cmdwhy{"cmdwhy", kFigureCount, [this](const std::string& name, int i) {
                                 return std::make_unique<ui::Button>(
                                     *this, name, "Why?", [this, i] { cmdwhy_Click(i); });
                               }};
  ui::ListBox lstpeople{*this,
                        "lstpeople",
                        {{"Name", K::Text, 0, "", [this](int key) { return PortraitOfRow(key); }},
                         MovedColumn("Over"),
                         MovedColumn("Morale"),
                         MovedColumn("Condition"),
                         {"Why", K::Text, 4}},
                        &frmMorning::lstpeople_Click,
                        &frmMorning::lstpeople_Open};
  ui::ListBox lsttitles{*this,
                        "lsttitles",
                        {{"Title"},
                         {.Title = "Now",
                          .Kind = K::Tag,
                          .Tip = "Who has won it, or its image.",
                          .Term = "Title image"},
                         {"Why", K::Text, 4}},
                        &frmMorning::lsttitles_Click};
  ui::ListBox lstfeuds{
      *this, "lstfeuds", {{"Feud", K::Text, 1}, {"Heat", K::Tag}}, &frmMorning::lstfeuds_Click};
  ui::ListBox lsthurt{
      *this, "lsthurt", {{"Name"}, {"Injury", K::Tag, 1}}, &frmMorning::lsthurt_Click};
  ui::Label lblwhy{*this, "lblwhy"};
  ui::ListBox lstwhy{*this,
                     "lstwhy",
                     {{"Points", K::Number, 0, "What each step did, in its order."},
                      {"Row", K::Number, 0, "Row of the sheet."},
                      {"Why", K::Text, 1}}};
  ui::Chart chtrows{*this, "chtrows", true};
  ui::Label lblwanted{*this, "lblwanted"};
  ui::Button cmdreport{*this, "cmdreport", "Read The Report", &frmMorning::cmdreport_Click};
  ui::Button cmdresults{*this, "cmdresults", "Earlier Mornings",
                        [this] { desk().Open("frmResults"); }};
};

}  // namespace

SCREEN(frmMorning)

std::unique_ptr<ui::Screen> MorningScreen(Game& game, Day on, int promotionUid) {
  return std::make_unique<frmMorning>(game, on, promotionUid);
}

}  // namespace grapplemont
