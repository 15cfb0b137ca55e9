#include <algorithm>
#include <memory>

#include "halls/recordbook.h"
#include "records/fields/wording.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

/// Some happened on a day, others over years.
bool IsOfADay(const RecordLine& line) {
  return line.On > kNoTitleDate;
}

/// The records of the world or of a promotion, a table at a time.
class frmRecords : public GameScreen {
 public:
  explicit frmRecords(Game& game) : GameScreen(game, "frmRecords", "Records") {
    lstplaces.EmptyText = "Nobody stands here yet. What counts is counted from day to day.";
    cmbfeds.Filters = true;
    lsttables.Room = 20;
    lsttables.Least = 6;
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns({ui::Group("Tables", {ui::Grow(lsttables)}).Grow(3),
                     ui::Group("", {ui::Field("Promotion", cmbfeds), lbltip, ui::Grow(lstplaces)})
                         .Grow(8)}),
        &lblfacts, {&cmdhall, &cmdyearbook, &cmdtrees, &cmdawards, &cmdpage});
  }

  void Load() override {
    std::vector<ui::ListBox::Row> rows;
    for (const RecordTable& table : RecordTables())
      rows.push_back(
          {{table.Name, {table.Group, ui::Tone::Muted}}, static_cast<int>(rows.size()) + 1});
    lsttables.Fill(std::move(rows));
    lsttables.Select(1);
    Read();
    cmbfeds.Add("The world", 0);
    houses_ = HousesOf(*past_);
    for (const HouseOfRecords& house : houses_)
      cmbfeds.Add(house.Key.Initials + (house.Stands ? "" : " (closed)"), cmbfeds.Count());
    cmbfeds.Select(1);
    ShowHouse();
  }
  void Return() override {
    Read();
    ShowHouse();
  }

 private:
  void Read() { past_ = std::make_unique<Ledger>(PastOf(world())); }

  void ShowHouse() {
    const int house = cmbfeds.Key();
    book_ = std::make_unique<RecordBook>(
        *past_, house == 0 ? HouseKey() : houses_[static_cast<std::size_t>(house - 1)].Key);
    ShowTable();
  }

  void ShowTable() {
    const int key = lsttables.Key() == 0 ? 1 : lsttables.Key();
    const RecordTable& table = RecordTables()[static_cast<std::size_t>(key - 1)];
    lines_ = table.Lines(*book_);
    lstplaces.SetColumns(ColumnsOf(table));
    std::vector<ui::ListBox::Row> rows;
    for (const RecordLine& line : lines_) {
      const int place = static_cast<int>(rows.size()) + 1;
      rows.push_back({{place,
                       line.Who,
                       {line.Figure, line.Shown, place == 1 ? ui::Tone::Gold : ui::Tone::Plain},
                       line.More,
                       IsOfADay(line) ? DayCell(line.On) : ui::Cell(0.0, "")},
                      place});
    }
    lstplaces.Fill(std::move(rows), false);
    lbltip.Text = table.Tip;
    const bool isOlder = past_->KnownFrom() < Day(past_->State.Since);
    lblfacts.Text = "Counted since " + PlainDate(past_->State.Since) +
                    (isOlder ? "; of before that, what was still known then. " : ". ") +
                    Counted(static_cast<int>(RecordTables().size()), "table") + ".";
    ShowButtons();
  }

  std::vector<ui::Column> ColumnsOf(const RecordTable& table) {
    std::vector<ui::Column> columns = {
        {"Place", K::Number},
        {.Title = "Who", .Width = 6, .Draws = [this](int place) { return FaceAt(place); }},
        {table.Figure, K::Number, 2, table.Tip},
        {table.More, K::Text, 6}};
    if (std::ranges::any_of(lines_, IsOfADay)) columns.push_back({"Date", K::Date, 3});
    return columns;
  }

  const RecordLine* LineAt(int place) const {
    return place >= 1 && place <= static_cast<int>(lines_.size())
               ? &lines_[static_cast<std::size_t>(place - 1)]
               : nullptr;
  }
  ui::Drawing FaceAt(int place) const {
    const RecordLine* line = LineAt(place);
    return line && line->Uid != 0 ? FaceOf(game_.World(), line->Uid) : ui::Drawing();
  }

  void ShowButtons() {
    const RecordLine* line = LineAt(lstplaces.Key());
    EnableUnless(cmdpage, !line            ? "Choose somebody first."
                          : line->Uid == 0 ? "There is no page of this."
                                           : "");
  }
  void cmdpage_Click() {
    if (const RecordLine* line = LineAt(lstplaces.Key())) game_.OpenWorker(line->Uid);
  }

  std::unique_ptr<Ledger> past_;
  std::unique_ptr<RecordBook> book_;
  std::vector<HouseOfRecords> houses_;  // a key of cmbfeds is a place here, from 1
  std::vector<RecordLine> lines_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lsttables{
      *this, "lsttables", {{"Table", K::Text, 4}, {"About", K::Text, 2}}, &frmRecords::ShowTable};
  ui::ComboBox cmbfeds{*this, "cmbfeds", &frmRecords::ShowHouse};
  ui::Label lbltip{*this, "lbltip"};
  ui::Button cmdpage{*this, "cmdpage", "Open Page", &frmRecords::cmdpage_Click};
  ui::ListBox lstplaces{
      *this, "lstplaces", {{"Place", K::Number}}, &frmRecords::ShowButtons, cmdpage};
  ui::Button cmdhall{*this, "cmdhall", "Hall Of Fame", [this] { desk().Open("frmHall"); }};
  ui::Button cmdyearbook{*this, "cmdyearbook", "Yearbook", [this] { desk().Open("frmYearbook"); }};
  ui::Button cmdtrees{*this, "cmdtrees", "Family Trees", [this] { desk().Open("frmFamilyTree"); }};
  ui::Button cmdawards{*this, "cmdawards", "Awards", [this] { desk().Open("frmAwards"); }};
};

}  // namespace

SCREEN(frmRecords)

}  // namespace grapplemont
