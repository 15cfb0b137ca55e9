#include "futures/screens/screenspread.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

#include "business/past.h"
#include "futures/futurescsv.h"
#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "session/screens/screenfiletowrite.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

constexpr int kLookEvery = 150;         // milliseconds
constexpr std::size_t kDayLetters = 3;  // "09 " of a day
constexpr std::chrono::milliseconds kRepaintEvery(100);
constexpr const char* kNothingPlayed = "Nothing is being played.";

using K = ui::ColumnKind;

/// "09 Mar" within half a year, else "Mar 2026".
std::vector<std::string> CaptionsOf(const std::vector<Day>& days) {
  constexpr auto kInDays = std::chrono::days{183};
  if (days.empty() || days.back() - days.front() <= kInDays) return DayCaptions(days);
  std::vector<std::string> captions;
  for (const Day day : days) captions.push_back(BriefDate(day).substr(kDayLetters));
  return captions;
}

/// By how much the first answer is ahead: points of image, dollars, percent.
ui::Cell GapCell(double gap, Measure measure) {
  const long long rounded = std::llround(gap);
  const ui::Tone tone = rounded < 0   ? ui::Tone::Red
                        : rounded > 0 ? ui::Tone::Green
                                      : ui::Tone::Muted;
  const std::string amount =
      measure == Measure::Money ? Dollars(std::abs(rounded)) : std::to_string(std::abs(rounded));
  const char* sign = rounded < 0 ? "-" : rounded > 0 ? "+" : "";
  return {gap, sign + amount, tone};
}

ui::Cell PercentCell(int percent, ui::Tone tone) {
  return {static_cast<double>(percent), std::to_string(percent) + "%", tone};
}

std::string Titled(const std::string& answer, const char* what) {
  return answer + ", " + what;
}

}  // namespace

PlayingCard::PlayingCard(ui::Screen& screen, Game& game, ui::Handler show)
    : game_(game),
      show_(std::move(show)),
      hsdone(screen, "hsdone", 0, 1),
      lbldone(screen, "lbldone"),
      cmdlook(screen, "cmdlook", "Look", [this] { Look(); }),
      cmdstop(screen, "cmdstop", "Stop", [this] {
        futures_->Work().Stop();
        Look();
      }) {
  hsdone.Tells = true;
  hsdone.Enabled = false;
  hsdone.Tip = "How many worlds are finished.";
  cmdlook.Plain = true;
  cmdlook.Tip = "Shows the worlds that are finished so far; the page does so by itself, too.";
  lbldone.Fleeting = true;
  cmdstop.Fleeting = true;
  Clear();
}

ui::Box PlayingCard::Layout() {
  return ui::Columns({ui::Grow(hsdone), lbldone, cmdlook});
}

void PlayingCard::Clear() {
  futures_.reset();
  isPlaying_ = false;
  shown_ = -1;
  hsdone.Value = 0;
  lbldone.Text = "Nothing has been played yet.";
  cmdlook.Every = 0;
  cmdlook.Visible = false;
  EnableUnless(cmdstop, kNothingPlayed);
}

void PlayingCard::Begin(std::vector<Answer> answers, int days) {
  const FuturePlan plan{game_.Worlds(), days};
  Clear();
  futures_ = std::make_unique<Futures>(game_.World(), std::move(answers), plan);
  isPlaying_ = true;
  hsdone.Max = plan.Worlds;
  cmdlook.Visible = true;
  cmdlook.Every = kLookEvery;
  EnableUnless(cmdstop, "");
  if (!game_.Desk().HasClock()) Wait();
  Look();
}

void PlayingCard::Wait() {
  Jobs& work = futures_->Work();
  const bool isOver = game_.Desk().WaitUntil([&] {
    if (work.WaitFor(kRepaintEvery)) return true;
    Show(work.Now());
    game_.Desk().Repaint();
    return false;
  });
  if (isOver) return;
  work.Stop();
  while (!work.WaitFor(kRepaintEvery)) {
  }
}

void PlayingCard::Look() {
  isPlaying_ = !futures_->Work().WaitFor(std::chrono::milliseconds(0));
  const Progress progress = futures_->Work().Now();
  if (isPlaying_ && progress.Done == shown_) return;
  shown_ = progress.Done;
  cmdlook.Visible = isPlaying_;
  cmdlook.Every = isPlaying_ ? kLookEvery : 0;
  EnableUnless(cmdstop, isPlaying_ ? "" : kNothingPlayed);
  show_();
  Show(progress);
}

void PlayingCard::Show(const Progress& progress) {
  hsdone.Value = progress.Done;
  const auto faults = static_cast<int>(futures_->Faults().size());
  lbldone.Text = !isPlaying_ && progress.Done < progress.Of
                     ? "Stopped at " + std::to_string(progress.Done) + " of " +
                           std::to_string(progress.Of) + " worlds"
                     : ProgressText(progress, "worlds");
  if (faults > 0)
    lbldone.Text = lbldone.Text.Get() + "; " + std::to_string(faults) +
                   " met a fault and do not count: " + futures_->Faults().front();
}

std::string ExportWorlds(Game& game, const PlayedWorlds& worlds, const std::string& title,
                         const std::string& offered) {
  const std::string file = FileToWrite(game, title, offered);
  if (file.empty()) return {};
  const std::string csv = FuturesAsCsv(*worlds.Morning, worlds.Days, worlds.Lives, worlds.Answers);
  WriteFile(game.Disk(), file, std::as_bytes(std::span(csv)));
  return "Wrote what became of the worlds to " + ForScreen(file) + ".";
}

ui::Tone ToneOfAnswer(std::size_t answer) {
  return answer == 0 ? ui::Tone::Gold : ui::Tone::Blue;
}

std::vector<ui::Column> ChanceColumns(const std::string& what,
                                      const std::vector<std::string>& answers) {
  std::vector<ui::Column> columns{{what, K::Text, 3}};
  const auto kind = answers.size() == 1 ? K::Percent : K::Number;  // there is room for one bar
  for (const std::string& answer : answers)
    columns.push_back(
        {answer.empty() ? "Chance" : answer, kind, 2, "In how many worlds of a hundred."});
  return columns;
}

void FillChances(ui::ListBox& list, const std::vector<std::vector<Chance>>& answers) {
  std::vector<ui::ListBox::Row> rows;
  const std::size_t count = answers.empty() ? 0 : answers.front().size();
  for (std::size_t place = 0; place < count; ++place) {
    ui::ListBox::Row row{{answers.front()[place].What}, static_cast<int>(place) + 1};
    for (std::size_t answer = 0; answer < answers.size(); ++answer)
      row.Cells.push_back(PercentCell(answers[answer][place].Percent(), ToneOfAnswer(answer)));
    rows.push_back(std::move(row));
  }
  list.Fill(std::move(rows));
}

SpreadCard::SpreadCard(ui::Screen& screen)
    : cmbmeasure(screen, "cmbmeasure",
                 [this] {
                   ShowHeadings();
                   ShowMeasure();
                 }),
      chtspread(screen, "chtspread"),
      lblbands(screen, "lblbands",
               "The line is the middle world; half of all worlds lie in the strong band, eight in "
               "ten in the faint one."),
      lstspread(screen, "lstspread") {
  for (const auto& [measure, name] : kMeasures)
    cmbmeasure.Add(std::string(name), static_cast<int>(measure) + 1);
  cmbmeasure.Select(1);
  lblbands.Colour = ui::Tone::Muted;
  lstspread.EmptyText = "What becomes of the worlds will stand here.";
  lstspread.Room = 6;
}

ui::Box SpreadCard::Picture() {
  return ui::Group("", {ui::Field("What", cmbmeasure), lblbands, ui::Grow(chtspread)});
}

ui::Box SpreadCard::Table(std::string title) {
  return ui::Group(std::move(title), {ui::Grow(lstspread)});
}

void SpreadCard::SetAnswers(const std::vector<std::string>& answers) {
  answers_ = answers;
  ShowHeadings();
}

/// One answer alone needs no name: its figures are named by what they measure.
void SpreadCard::ShowHeadings() {
  std::vector<ui::Column> columns{{"Day", K::Date, 2}};
  for (std::string answer : answers_) {
    if (answer.empty()) answer = cmbmeasure.Text;
    columns.push_back({Titled(answer, "low"), K::Number, 2, "One world in ten lies below."});
    columns.push_back({Titled(answer, "middle"), K::Number, 2, "Half of all worlds lie below."});
    columns.push_back({Titled(answer, "high"), K::Number, 2, "One world in ten lies above."});
  }
  if (answers_.size() == 2)
    columns.push_back(
        {"Difference", K::Number, 2, "How far the first answer is ahead in the middle world."});
  lstspread.SetColumns(std::move(columns));
}

void SpreadCard::Show(PlayedWorlds worlds) {
  worlds_ = std::move(worlds);
  ShowMeasure();
}

void SpreadCard::ShowMeasure() {
  const auto measure = static_cast<Measure>(std::max(cmbmeasure.Key() - 1, 0));
  std::vector<std::vector<Spread>> spreads;
  if (worlds_.Morning)
    for (const auto& lives : worlds_.Lives)
      spreads.push_back(SpreadsOf(lives, measure, *worlds_.Morning));
  const bool any = !spreads.empty() && !spreads.front().empty();
  if (!any) spreads.clear();
  ShowPicture(measure, spreads);
  ShowTable(measure, spreads);
}

void SpreadCard::ShowPicture(Measure measure, const std::vector<std::vector<Spread>>& spreads) {
  std::vector<double> places;
  if (!spreads.empty())
    for (const Day day : worlds_.Days) places.push_back(PlaceOf(day));
  std::vector<ui::Chart::Series> lines;
  std::vector<ui::Chart::Band> bands;
  double low = std::numeric_limits<double>::infinity(), high = -low;
  for (std::size_t answer = 0; answer < spreads.size(); ++answer) {
    const ui::Tone tone = ToneOfAnswer(answer);
    ui::Chart::Series line{worlds_.Answers[answer], {}, tone};
    ui::Chart::Band faint{{}, {}, tone}, strong{{}, {}, tone};
    for (const Spread& spread : spreads[answer]) {
      line.Values.push_back(spread.Middle);
      faint.Low.push_back(spread.Low);
      faint.High.push_back(spread.High);
      strong.Low.push_back(spread.LowQuarter);
      strong.High.push_back(spread.HighQuarter);
      low = std::fmin(low, spread.Low);
      high = std::fmax(high, spread.High);
    }
    lines.push_back(std::move(line));
    bands.push_back(std::move(faint));
    bands.push_back(std::move(strong));
  }
  std::vector<std::pair<double, std::string>> borders;
  if (measure == Measure::Image && low <= high) borders = ClassBorders(low, high, *worlds_.Morning);
  chtspread.Unit = measure == Measure::Money ? "$" : "";
  chtspread.Captions = spreads.empty() ? std::vector<std::string>() : CaptionsOf(worlds_.Days);
  chtspread.Places = std::move(places);
  chtspread.Bands = std::move(bands);
  chtspread.Levels = std::move(borders);
  chtspread.Lines = std::move(lines);
}

void SpreadCard::ShowTable(Measure measure, const std::vector<std::vector<Spread>>& spreads) {
  std::vector<ui::ListBox::Row> rows;
  const std::size_t days = spreads.empty() ? 0 : spreads.front().size();
  for (std::size_t day = 0; day < days; ++day) {
    ui::ListBox::Row row{{DayCell(worlds_.Days[day])}, static_cast<int>(day) + 1};
    const auto add = [&](double value, ui::Tone tone) {
      row.Cells.emplace_back(value, MeasureText(value, measure, *worlds_.Morning), tone);
    };
    for (std::size_t answer = 0; answer < spreads.size(); ++answer) {
      const Spread& spread = spreads[answer][day];
      add(spread.Low, ui::Tone::Plain);
      add(spread.Middle, ToneOfAnswer(answer));
      add(spread.High, ui::Tone::Plain);
    }
    if (spreads.size() == 2) {
      const double gap = spreads[0][day].Middle - spreads[1][day].Middle;
      row.Cells.push_back(std::isfinite(gap) ? GapCell(gap, measure) : ui::Cell("-"));
    }
    rows.push_back(std::move(row));
  }
  lstspread.Fill(std::move(rows));
}

}  // namespace grapplemont
