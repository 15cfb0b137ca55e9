#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "report/live.h"
#include "report/report.h"
#include "roster/workerform.h"
#include "show/holdshow.h"
#include "show/livetelling.h"
#include "show/recap.h"
#include "show/runsegment.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// Where the percentages stand.
constexpr const char* kFigureControls[] = {"txtquality", "txtcrowd", "txtoverall"};
constexpr int kFigureCount = 3, kOverallFigure = 3;
constexpr int kLettersOfCard = 60;     // that stands beside another
constexpr int kLettersOfWide = 190;    // of a page that has room for faces, too
constexpr std::size_t kHallRoom = 80;  // pieces that the line of the hall shows

ui::Cell OutcomeIn(const Segment& segment, bool won) {
  if (segment.Kind != kMatch) return "";
  if (IsDraw(segment)) return {"Drew", ui::Tone::Muted};
  return won ? ui::Cell("Won", ui::Tone::Green) : ui::Cell("Lost", ui::Tone::Red);
}

const ToldFigure& FigureAt(int i) {
  return kToldFigures[i - 1];
}

/// Without the last one while it is still being told.
void ShowRatings(World& world, ui::Chart& chart, bool withLast = true) {
  RatingsSoFar ratings = RatingsOfShow(world);
  if (!withLast && !ratings.Values.empty()) ratings.Values.pop_back();
  chart.Captions = ratings.Rows;
  chart.Lines = std::vector<ui::Chart::Series>{{"", ratings.Values}};
}

/// The show told Segment by Segment. It cannot be left but through its end.
class frmMatchOutput : public ui::Screen {
 public:
  explicit frmMatchOutput(Game& game)
      : Screen(game.Desk(), "frmMatchOutput", "Show Report"), game_(game) {
    lbltitle.Visible = false;  // the page's own heading says the same
    txtstip.Brief = true;
    lstcast.EmptyText = "Whoever is in the next Segment stands here.";
    chthall.Thin = true;
    chthall.Tip = "How loud the hall is.";
    cmdall.Tip = "Shows what is left of this report, and its percentages.";
    int pace = 0;
    for (const TellingPace& row : TellingPaces()) cmbpace.Add(std::string(row.Name), pace++);
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblreportedby;
    page.Actions = {&cmdnotepad, &cmdall, &cmdnext};
    page.Main = &cmdnext;
    page.Stays = "The show has to be seen through to its end first.";
    page.Lets = ui::Reach::Tells;
    std::vector<ui::Box> figures{lblanalysis};
    for (int i = 1; i <= kFigureCount; ++i)
      figures.push_back(
          ui::Columns({ui::Field(FigureAt(i).Name, txtfigures(i)).Grow(), cmdwhy(i)}));
    figures.push_back(ui::Grow(txtwhy));
    page.Body = ui::Columns(
        {ui::Group("", {lbltitle, ui::Columns({lblinfo, txtstyle, txttype, txtbelt, ui::Spacer()}),
                        txtstip, ui::Grow(txtreport),
                        ui::Columns(
                            {ui::Field("The hall", chthall).Grow(), ui::Field("Goes on", cmbpace)}),
                        lblwinner, ui::Field("Announcers", txtannouncers)})
             .Grow(7),
         ui::Group("Who is in it", {ui::Grow(lstcast)}).From(kLettersOfWide).Grow(6),
         ui::Columns({ui::Rows({ui::Group("", std::move(figures)).Grow(9),
                                ui::Group("Road agent", {ui::Grow(txtroad)}).Grow(4)})
                          .Grow(2),
                      ui::Group("The show so far", {ui::Grow(chtshow)}).Grow(1)})
             .Wide(kLettersOfCard)
             .Grow(5)});
    return page;
  }

  void Load() override {
    ShowFrame();
    if (ShowIsClosed(world())) return Finish();
    if (run().Current == 0) {
      desk().Hear(ui::Sound::Bell);
      return TellNext();
    }
    ShowInterval();
  }

 private:
  World& world() { return game_.World(); }
  const ShowRun& run() { return world().ShowRuns()[1]; }

  void ShowFrame() {
    const std::string name = ShowName(world(), run().IsEvent);
    lbltitle.Text = "Event Report For " + name;
    Title = lbltitle.Text.Get();
    lblreportedby.Text = "Reported By " + std::string(VoiceName(world().Game().Reporter));
    const CommentaryTeam team{run().Announcer, run().Colour, run().ColourIsWorker};
    const std::string announcer = AnnouncerName(world(), team);
    txtannouncers.Text =
        announcer == "None" ? announcer : announcer + " and " + ColourName(world(), team);
    txtannouncers.Tip = "At the announcers' table.";
  }

  /// Between two Segments when the game is opened again.
  void ShowInterval() {
    lblinfo.Text = "The show goes on";
    txtroad.Visible = false;
    txtstip.Write({{ui::Report::Style::Heading, "After " + RowName(run().Current)}});
    txtreport.Write(NextSegment(world()) == 0
                        ? "Every Segment has been told. Press Next for what the show came to."
                        : "What has been told so far stands. Press Next for what was to come.");
    ShowFigures();
    ShowRatings(world(), chtshow);
    ShowPace();
  }

  std::string RowName(int number) { return DescribeSegment(world(), world().Segments()[number]); }

  void TellNext() {
    if (NextSegment(world()) == 0) return Finish();
    told_ = RunNextSegment(world(), &memory_);
    if (world().Segments()[run().Current].Kind == kMatch) desk().Hear(ui::Sound::Bell);
    text_ = told_->Report;
    pieces_.clear();
    if (TellsLive(world())) pieces_ = LivePieces(text_, told_->Sentences, told_->Crowd);
    if (!told_->Verdict.empty()) {
      text_ += "\n" + told_->Verdict;
      if (!pieces_.empty()) pieces_.push_back({text_.size(), false, pieces_.back().Hall});
    }
    shown_ = 1;
    ShowDetails();
    ShowTold();
  }

  bool IsLive() const { return !pieces_.empty(); }
  /// The percentages come behind the last piece.
  bool IsThrough() const { return !IsLive() || shown_ > pieces_.size(); }

  void GoOn() {
    ++shown_;
    ShowTold();
  }

  void cmdall_Click() {
    shown_ = pieces_.size() + 1;
    ShowTold();
  }

  /// As much as has been told by now: nothing that gives the end away before it.
  void ShowTold() {
    if (shown_ == 1 || IsThrough()) ShowCast(world().Segments()[run().Current]);
    ShowProse();
    ShowFigures();
    ShowRatings(world(), chtshow, IsThrough());
    lblwinner.Visible = IsThrough() && !lblwinner.Text.Get().empty();
    ShowPace();
  }

  void ShowPace() {
    cmdall.Visible = !IsThrough();
    chthall.Visible = IsLive();
    cmbpace.Visible = IsLive();
    cmdnext.Every = 0;
    if (!IsLive()) return;
    const std::size_t last = std::min(shown_, pieces_.size());
    std::vector<double> hall;
    for (std::size_t at = last > kHallRoom ? last - kHallRoom : 0; at < last; ++at)
      hall.push_back(pieces_[at].Hall);
    chthall.Lines = std::vector<ui::Chart::Series>{{"The hall", hall}};
    cmbpace.SelectKey(PaceOfTelling(world()));
    if (IsThrough()) return;
    const std::size_t from = last > 1 ? pieces_[last - 2].Until : 0;
    const LivePiece& piece = pieces_[last - 1];
    cmdnext.Every = WaitBehind(std::string_view(text_).substr(from, piece.Until - from),
                               piece.HoldsBreath, PaceOfTelling(world()));
  }

  void cmbpace_Click() {
    SetPaceOfTelling(world(), cmbpace.Key());
    ShowPace();
  }

  void ShowDetails() {
    const SegmentDetails details = DetailsOf(world(), world().Segments()[run().Current]);
    lblinfo.Text = details.Heading;
    txtstyle.Text = details.Style;
    txttype.Text = details.Type;
    txtbelt.Text = details.Belt;
    txtbelt.Colour = ui::Tone::Gold;
    lblwinner.Text = details.Winner;
    for (ui::Label* label : {&txtstyle, &txttype, &txtbelt})
      label->Visible = !label->Text.Get().empty();
    txtstip.Write({{ui::Report::Style::Heading, details.Names}});
  }

  /// As they are after it, the winners first; until it is through by their names alone.
  void ShowCast(const Segment& segment) {
    const std::vector<int> winners = WinnersOf(segment);
    const auto hasWon = [&](int uid) { return std::ranges::find(winners, uid) != winners.end(); };
    std::vector<int> people = PeopleOf(segment);
    if (IsThrough()) std::ranges::stable_partition(people, hasWon);
    std::vector<ui::ListBox::Row> rows;
    for (const int uid : people) {
      const Worker* worker = world().FindWorker(uid);
      if (!worker) continue;
      if (IsThrough())
        rows.push_back({{worker->Name.View(), DispositionCell(*worker), int(worker->Over),
                         int(worker->Condition), OutcomeIn(segment, hasWon(uid))},
                        uid});
      else
        rows.push_back({{worker->Name.View(), "", "", "", ""}, uid});
    }
    lstcast.Fill(std::move(rows), false);
  }

  void ShowProse() {
    txtreport.Grows = IsLive();
    txtreport.Write(WordsSoFar());
    txtroad.WriteLines(told_->Notes);
    // Without a word, its room goes to the figures.
    txtroad.Visible = IsThrough() && !told_->Notes.empty();
  }

  std::string WordsSoFar() const {
    if (IsThrough()) return text_;
    const LivePiece& piece = pieces_[shown_ - 1];
    std::string words = text_.substr(0, piece.Until);
    while (words.ends_with(' ') || words.ends_with('\n')) words.pop_back();
    return words + (piece.HoldsBreath ? " ..." : "");
  }

  void ShowFigures() {
    const bool isMatch = told_ && world().Segments()[run().Current].Kind == kMatch;
    lblanalysis.Visible = told_.has_value();
    for (int i = 1; i <= kFigureCount; ++i) {
      const bool shown = told_ && IsThrough() && (isMatch || i != 1);
      txtfigures(i).Visible = shown;
      cmdwhy(i).Visible = shown;
      if (!shown) continue;
      const int value = (*told_).*FigureAt(i).Of;
      txtfigures(i).Text = std::to_string(value) + "%";
      txtfigures(i).Colour = value >= 70  ? ui::Tone::Green
                             : value < 40 ? ui::Tone::Red
                                          : ui::Tone::Amber;
    }
    cmdwhy_Click(kOverallFigure);
  }

  void cmdwhy_Click(int i) {
    if (!told_)
      return txtwhy.Write({{ui::Report::Style::Muted, "The next Segment's figures stand here."}});
    if (!IsThrough()) return ShowPeople();
    const ToldFigure& figure = FigureAt(i);
    txtwhy.WriteLines(WhyText(figure.Name, (*told_).*figure.Of));
  }

  /// While their Segment is told: nothing that the Segment changes.
  void ShowPeople() {
    using Style = ui::Report::Style;
    std::vector<ui::Report::Paragraph> words;
    for (const int uid : PeopleOf(world().Segments()[run().Current])) {
      const Worker* worker = world().FindWorker(uid);
      if (!worker) continue;
      words.push_back({Style::Strong, worker->Name.Str()});
      words.push_back({Style::Line, WhoLine(*worker) + ". " + FinishersLine(*worker)});
    }
    words.push_back({Style::Muted, "The percentages come when it has been told."});
    txtwhy.Write(std::move(words));
  }

  void Finish() {
    if (!ShowIsClosed(world())) CloseShow(world());
    desk().Open("frmPostShow");
    Close();
  }

  void cmdnext_Click() { IsThrough() ? TellNext() : GoOn(); }

  Game& game_;
  LineMemory memory_;
  std::optional<ToldSegment> told_;
  std::string text_;               // of the report and the verdict
  std::vector<LivePiece> pieces_;  // of a Segment that is told live
  std::size_t shown_ = 0;          // of them; one more with the percentages
  ui::Label lbltitle{*this, "lbltitle"};
  ui::Label lblreportedby{*this, "lblreportedby"};
  ui::Label lblinfo{*this, "lblinfo"};
  ui::Label txtstyle{*this, "txtstyle"};
  ui::Label txttype{*this, "txttype"};
  ui::Label txtbelt{*this, "txtbelt"};
  ui::Report txtstip{*this, "txtstip"};
  ui::Report txtreport{*this, "txtreport"};
  ui::Chart chthall{*this, "chthall"};
  ui::ComboBox cmbpace{*this, "cmbpace", &frmMatchOutput::cmbpace_Click};
  ui::Label lblwinner{*this, "lblwinner"};
  ui::ListBox lstcast{*this, "lstcast",
                      WithFaces(world(), {{"Who", ui::ColumnKind::Text, 4},
                                          {"Disposition", ui::ColumnKind::Tag},
                                          {"Over", ui::ColumnKind::Number},
                                          {"Condition", ui::ColumnKind::Percent},
                                          {"Result", ui::ColumnKind::Tag}}),
                      ui::Handler{}, [this] { game_.OpenWorker(lstcast.Key()); }};
  ui::Label lblanalysis{*this, "lblanalysis", "Match Analysis"};
  ui::Array<ui::Label> txtfigures{"", kFigureCount, [this](const std::string&, int i) {
                                    return std::make_unique<ui::Label>(*this,
                                                                       kFigureControls[i - 1]);
                                  }};
  ui::Array<ui::Button> cmdwhy{"cmdwhy", kFigureCount, [this](const std::string& name, int i) {
                                 return std::make_unique<ui::Button>(
                                     *this, name, "Why?", [this, i] { cmdwhy_Click(i); });
                               }};
  ui::Report txtwhy{*this, "txtwhy"};
  ui::Report txtroad{*this, "txtroad"};
  ui::Label txtannouncers{*this, "txtannouncers"};
  ui::Chart chtshow{*this, "chtshow", true};
  ui::Button cmdnotepad{*this, "cmdnotepad", "Notepad", [this] { desk().Open("frmNotepad"); }};
  ui::Button cmdall{*this, "cmdall", "See It All", &frmMatchOutput::cmdall_Click};
  ui::Button cmdnext{*this, "cmdnext", "Next", &frmMatchOutput::cmdnext_Click};
};

/// What the show came to.
class frmPostShow : public GameScreen {
 public:
  explicit frmPostShow(Game& game)
      : GameScreen(game, "frmPostShow", "Recap Sheet", {.Back = "To The Next Day"}) {}

  ui::Page Layout() override {
    ui::Page page = PageOf(
        ui::Columns(
            {ui::Group("The Segments", {lbltitle, ui::Grow(lstrecap)}).Grow(3),
             ui::Rows(
                 {ui::Group("How the rating came about", {ui::Grow(lstsum)}).Grow(2),
                  ui::Group("Segment by Segment", {lblbest, lblworst, ui::Grow(chtshow)}).Grow(3)})
                 .Grow(2)}),
        &lblrating, {&cmdnotepad});
    page.Stays = "The next day comes first.";
    page.Lets = ui::Reach::Tells;
    return page;
  }

  void Load() override {
    lbltitle.Visible = false;
    const ShowRun& run = world().ShowRuns()[1];
    lbltitle.Text = "Recap Sheet For " + ShowName(world(), run.IsEvent);
    Title = lbltitle.Text.Get();
    const ShowRecap recap = RecapOf(world());
    desk().Hear(ui::Sound::Crowd);
    lblrating.Text = "The show is rated " + std::to_string(recap.Rating) + "%.";
    lblbest.Text = "Best: " + recap.Best;
    lblworst.Text = "Worst: " + recap.Worst;
    for (ui::Label* label : {&lblbest, &lblworst}) label->Visible = !recap.Best.empty();
    for (const RecapLine& line : recap.Lines)
      lstrecap.Add({ui::Cell(line.Number), line.What,
                    ui::Cell(line.Rating, std::to_string(line.Rating) + "%")});
    lstsum.Room = lstsum.Least = static_cast<int>(recap.Sum.size());  // the last row is the answer
    for (const ScoreStep& step : recap.Sum)
      lstsum.Add({step.Why, ui::Cell(static_cast<int>(step.Change))});
    ShowRatings(world(), chtshow);
  }

 private:
  void cmdback_Click() override {
    LeaveShow(world());
    game_.AdvanceDay(false);
    Close();
  }

  using K = ui::ColumnKind;
  ui::Label lbltitle{*this, "lbltitle"};
  ui::Label lblrating{*this, "lblrating"};
  ui::ListBox lstrecap{
      *this, "lstrecap", {{"#", K::Number, 1}, {"Segment", K::Text, 8}, {"Rating", K::Percent, 3}}};
  ui::ListBox lstsum{*this, "lstsum", {{"What", K::Text, 5}, {"Sum", K::Number, 1}}};
  ui::Label lblbest{*this, "lblbest"};
  ui::Label lblworst{*this, "lblworst"};
  ui::Chart chtshow{*this, "chtshow", true};
  ui::Button cmdnotepad{*this, "cmdnotepad", "Notepad", [this] { desk().Open("frmNotepad"); }};
};

}  // namespace

SCREEN(frmMatchOutput)
SCREEN(frmPostShow)

}  // namespace grapplemont
