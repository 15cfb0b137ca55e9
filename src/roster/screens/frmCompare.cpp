#include <algorithm>
#include <array>
#include <cctype>
#include <limits>
#include <optional>

#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "roster/market.h"
#include "roster/moods.h"
#include "roster/postings.h"
#include "roster/screens/frmWorker.h"
#include "roster/talks.h"
#include "roster/workerform.h"
#include "roster/workerrecord.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;
using Style = ui::Report::Style;

constexpr int kMost = 4;
constexpr int kLettersOfHead = 12;       // beside each other in a line
constexpr std::size_t kMostCalled = 40;  // whom a name offers
constexpr int kLastFive = 5, kLastTen = 10;
constexpr double kNotKept = std::numeric_limits<double>::quiet_NaN();

/// How somebody stands in a row: the higher the better; nothing where there is no better.
struct Measure {
  ui::Cell Shown;
  std::optional<double> Worth = {};
};

Measure Percentage(int percent) {
  return {percent, percent};
}

template <auto field>
Measure Points(const World&, const Worker& worker) {
  return Percentage(worker.*field);
}

Measure Side(const World& world, const Worker& worker) {
  ui::Cell side = DispositionCell(worker);
  if (!TitlesHeldBy(world, worker.Uid).empty()) side.Text += ", champion";
  return {side};
}
Measure Place(const World&, const Worker& worker) {
  return {PlaceText(worker)};
}
Measure LastFive(const World& world, const Worker& worker) {
  const std::vector<FormLine> form = FormOf(world, worker, kLastFive);
  std::string text;
  for (const FormLine& line : form)
    text += (text.empty() ? "" : " ") + std::string(line.Outcome > 0   ? "W"
                                                    : line.Outcome < 0 ? "L"
                                                                       : "D");
  if (form.empty()) return {"-"};
  return {text, SumOf(form).Won};
}
Measure Rating(const World& world, const Worker& worker) {
  const std::vector<FormLine> form = FormOf(world, worker, kLastTen);
  if (form.empty()) return {"-"};
  return Percentage(SumOf(form).Mean);
}
Measure Bond(const World&, const Worker& worker) {
  if (worker.Employer == 0) return {"Free"};
  if (worker.Unsackable || worker.ContractMonths < 0) return {"No end"};
  return {MonthsText(worker.ContractMonths), worker.ContractMonths};
}
Measure Pay(const World&, const Worker& worker) {
  return {WageText(worker.Wage), -worker.Wage};
}

struct CompareRow {
  std::string_view Name;
  Measure (*Of)(const World& world, const Worker& worker);
};
constexpr CompareRow kBefore[] = {
    {"Disposition", Side}, {"Position", Place}, {"Over", Points<&Worker::Over>}};
constexpr CompareRow kAfter[] = {{"Condition", Points<&Worker::Condition>},
                                 {"Morale", Points<&Worker::Morale>},
                                 {"Last five", LastFive},
                                 {"Rating, last ten", Rating},
                                 {"Contract", Bond},
                                 {"Wage a month", Pay}};

char Small(char letter) {
  return static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
}

/// Marks the best, all who are level; nobody where all are, or where one has nothing to compare.
bool MarkBest(std::vector<ui::Cell>& cells, const std::vector<Measure>& measures) {
  const auto [least, most] = std::ranges::minmax_element(measures, {}, &Measure::Worth);
  if (!least->Worth || least->Worth == most->Worth) return false;
  for (std::size_t i = 0; i < measures.size(); ++i)
    cells[i + 1].Best = measures[i].Worth == most->Worth;
  return true;
}

/// Workers side by side, two to four of them.
class frmCompare : public GameScreen {
 public:
  frmCompare(Game& game, std::vector<int> uids)
      : GameScreen(game, "frmCompare", "Compare"), uids_(std::move(uids)) {
    uids_.resize(std::min<std::size_t>(uids_.size(), kMost));
    lblhow.Colour = ui::Tone::Muted;
    for (int place = 1; place <= kMost; ++place) {
      cmdremove(place).Plain = true;
      picworker(place).Height = 56;
    }
    txtadd.Hint = "Part of anybody's name";
    txtadd.OnChange = [this] { ShowChoices(); };
    // All of it is seen at once in a window of the usual size.
    lstcompare.Room = 8;  // of a fixed number that are read, not searched
    lstmeetings.Room = 2;
    txtword.Room = 3;
    lstmeetings.EmptyText = "Add somebody to see how they did against each other.";
  }

  ui::Page Layout() override {
    std::vector<ui::Box> heads = {ui::Grow(lblhow, 3)};  // as wide as the table's columns
    for (int place = 1; place <= kMost; ++place)
      heads.push_back(ui::Rows({picworker(place), lblworker(place), cmdremove(place)}).Grow(4));
    return PageOf(
        ui::Columns({ui::Group("", {ui::Columns(std::move(heads)).Wide(kLettersOfHead),
                                    ui::Grow(lstcompare)})
                         .Grow(7),
                     ui::Rows({ui::Group("Add a worker",
                                         {ui::Field("Called", txtadd), ui::Field("Who", cmbadd)}),
                               ui::Group("Over, last twelve months", {ui::Grow(chtover)}).Grow(2),
                               ui::Group("Against each other", {ui::Grow(lstmeetings)}).Grow(2),
                               ui::Group("In a word", {ui::Grow(txtword)}).Grow(2)})
                         .Grow(4)}),
        &lblfacts);
  }

  void Return() override {
    std::erase_if(uids_, [this](int uid) { return !world().FindWorker(uid); });
    ShowHeads();
    ShowChoices();
    ShowRows();
    ShowChart();
    ShowMeetings();
  }

 private:
  const Worker& At(std::size_t place) { return *world().FindWorker(uids_[place]); }
  bool Has(int uid) const { return std::ranges::find(uids_, uid) != uids_.end(); }

  void ShowHeads() {
    for (int place = 1; place <= kMost; ++place) {
      const bool used = place <= std::ssize(uids_);
      const int uid = used ? uids_[static_cast<std::size_t>(place - 1)] : 0;
      picworker(place).Drawn = FaceOf(world(), uid);
      picworker(place).Visible = lblworker(place).Visible = cmdremove(place).Visible = used;
      lblworker(place).Text =
          used ? WorkerName(world(), uid) + "\n" + WhoLine(*world().FindWorker(uid))
               : std::string();
      EnableUnless(cmdremove(place), uids_.size() > 1 ? "" : "One has to stay.");
    }
    lblfacts.Text = uids_.size() < 2 ? "Add one to three others to compare with." : "As of today.";
    lblhow.Text = uids_.size() < 2 ? "" : "A star marks the best of a row, and all who are level.";
  }

  /// The player's people and whom the player keeps an eye on.
  std::vector<const Worker*> KnownPeople() {
    std::vector<const Worker*> people;
    for (const Worker& worker : world().Workers())
      if (WorksForPlayer(world(), worker)) people.push_back(&worker);
    SortByOver(people);
    for (const Worker* listed : Shortlisted(world())) people.push_back(listed);
    return people;
  }

  /// Everybody in the business who has these letters in their name, the most popular first.
  std::vector<const Worker*> PeopleCalled(std::string_view letters) {
    const auto alike = [](char a, char b) { return Small(a) == Small(b); };
    std::vector<const Worker*> people;
    for (const Worker& worker : world().Workers())
      if (worker.Uid != 0 && !std::ranges::search(worker.Name.View(), letters, alike).empty())
        people.push_back(&worker);
    SortByOver(people);
    people.resize(std::min(people.size(), kMostCalled));
    return people;
  }

  void ShowChoices() {
    const std::string typed(detail::Trimmed(txtadd.Text.Get()));
    const std::vector<const Worker*> people = typed.empty() ? KnownPeople() : PeopleCalled(typed);
    cmbadd.Clear();
    cmbadd.Add(typed.empty()    ? "Choose somebody"
               : people.empty() ? "Nobody is called that"
                                : "Choose one of " + std::to_string(people.size()));
    for (const Worker* worker : people)
      if (!Has(worker->Uid)) cmbadd.Add(worker->Name.Str(), worker->Uid);
    cmbadd.Select(1);
    const char* const full = std::ssize(uids_) < kMost ? "" : "Four are as many as fit.";
    EnableUnless(txtadd, full);
    EnableUnless(cmbadd, full);
  }

  void AddRow(std::vector<ui::ListBox::Row>& rows, std::string_view name,
              const std::vector<Measure>& measures) {
    std::vector<ui::Cell> cells = {{name, ui::Tone::Muted}};
    for (const Measure& measure : measures) cells.push_back(measure.Shown);
    if (measures.size() > 1 && MarkBest(cells, measures))
      for (std::size_t i = 0; i < uids_.size(); ++i)
        if (cells[i + 1].Best) leads_[i].emplace_back(name);
    rows.push_back({std::move(cells), static_cast<int>(rows.size()) + 1});
  }

  template <class Of>
  std::vector<Measure> MeasureAll(Of of) {
    std::vector<Measure> measures;
    for (std::size_t i = 0; i < uids_.size(); ++i) measures.push_back(of(At(i)));
    return measures;
  }

  void ShowRows() {
    std::vector<ui::Column> columns = {{"", K::Text, 3}};
    for (std::size_t i = 0; i < uids_.size(); ++i)
      columns.push_back({At(i).ShortName.Str(), K::Percent, 4});
    leads_.assign(uids_.size(), {});
    std::vector<ui::ListBox::Row> rows;
    const auto add = [&](const CompareRow& row) {
      AddRow(rows, row.Name,
             MeasureAll([&](const Worker& worker) { return row.Of(world(), worker); }));
    };
    for (const CompareRow& row : kBefore) add(row);
    for (const Ability& ability : Abilities())
      AddRow(rows, ability.Name, MeasureAll([&](const Worker& worker) {
               Measure measure = Percentage(worker.*ability.Of);
               if (!ability.MoreIsBetter) measure.Worth.reset();
               return measure;
             }));
    for (const CompareRow& row : kAfter) add(row);
    lstcompare.SetColumns(std::move(columns));
    lstcompare.Fill(std::move(rows));
    ShowWords();
  }

  void ShowWords() {
    std::vector<ui::Report::Paragraph> words;
    for (std::size_t i = 0; uids_.size() > 1 && i < uids_.size(); ++i)
      words.push_back(
          {Style::Line,
           At(i).Name.Str() + (leads_[i].empty() ? " leads in nothing."
                                                 : " leads in " + Joined(leads_[i]) + ".")});
    if (words.empty())
      words.push_back({Style::Muted, "Add somebody to see in what each of them leads."});
    txtword.Write(std::move(words));
  }

  /// Everybody's months end today; whoever has fewer begins later.
  void ShowChart() {
    constexpr std::array kTones = {ui::Tone::Blue, ui::Tone::Red, ui::Tone::Green, ui::Tone::Amber};
    std::vector<std::string> captions;
    std::vector<std::vector<MonthMark>> all;
    for (std::size_t i = 0; i < uids_.size(); ++i) all.push_back(MarksOf(world(), At(i)));
    for (const auto& marks : all) {
      if (marks.size() <= captions.size()) continue;
      captions.clear();
      for (const MonthMark& mark : marks) captions.push_back(mark.Month);
    }
    std::vector<ui::Chart::Series> lines;
    for (std::size_t i = 0; i < all.size(); ++i) {
      ui::Chart::Series line{At(i).ShortName.Str(),
                             std::vector<double>(captions.size() - all[i].size(), kNotKept),
                             kTones[i]};
      for (const MonthMark& mark : all[i]) line.Values.push_back(mark.Over);
      lines.push_back(std::move(line));
    }
    chtover.Captions = std::move(captions);
    chtover.Lines = std::move(lines);
  }

  void ShowMeetings() {
    std::vector<ui::ListBox::Row> rows;
    for (std::size_t a = 0; a < uids_.size(); ++a)
      for (std::size_t b = a + 1; b < uids_.size(); ++b) {
        const Encounters met = EncountersOf(world(), uids_[a], uids_[b]);
        const bool never = met.Count() == 0;
        rows.push_back({{At(a).ShortName + " v " + At(b).ShortName.Str(),
                         never ? ui::Cell("Never", ui::Tone::Muted)
                               : ui::Cell(std::to_string(met.Won) + "-" + std::to_string(met.Lost) +
                                          (met.Drawn > 0 ? ", " + Counted(met.Drawn, "draw") : "")),
                         never ? ui::Cell("") : ui::Cell(met.Mean)},
                        static_cast<int>(rows.size()) + 1});
      }
    lstmeetings.Fill(std::move(rows));
  }

  void cmbadd_Click() {
    const int uid = cmbadd.Key();
    if (uid != 0 && !Has(uid) && std::ssize(uids_) < kMost) {
      uids_.push_back(uid);
      txtadd.Text = "";
    }
    Return();
  }
  void Remove(int place) {
    if (place <= std::ssize(uids_) && uids_.size() > 1) uids_.erase(uids_.begin() + place - 1);
    Return();
  }

  std::vector<int> uids_;
  std::vector<std::vector<std::string>> leads_;  // the rows in which each is best
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Array<ui::Picture> picworker{"picworker", kMost, [this](const std::string& name, int) {
                                     auto picture = std::make_unique<ui::Picture>(*this, name);
                                     picture->Height = 72;
                                     return picture;
                                   }};
  ui::Array<ui::Label> lblworker{"lblworker", kMost, [this](const std::string& name, int) {
                                   return std::make_unique<ui::Label>(*this, name);
                                 }};
  ui::Array<ui::Button> cmdremove{"cmdremove", kMost, [this](const std::string& name, int place) {
                                    return std::make_unique<ui::Button>(
                                        *this, name, "Remove", [this, place] { Remove(place); });
                                  }};
  ui::TextBox txtadd{*this, "txtadd"};
  ui::ComboBox cmbadd{*this, "cmbadd", &frmCompare::cmbadd_Click};
  ui::Label lblhow{*this, "lblhow"};
  ui::ListBox lstcompare{*this, "lstcompare"};
  ui::Chart chtover{*this, "chtover"};
  ui::ListBox lstmeetings{
      *this, "lstmeetings", {{"Who", K::Text, 5}, {"Won", K::Text, 3}, {"Rating", K::Percent, 4}}};
  ui::Report txtword{*this, "txtword"};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmCompare(Game& game, std::vector<int> uids) {
  return std::make_unique<frmCompare>(game, std::move(uids));
}

}  // namespace grapplemont
