#include <memory>

#include "halls/yearbook.h"
#include "records/fields/wording.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

/// The page of a year.
class frmYearbook : public GameScreen {
 public:
  explicit frmYearbook(Game& game) : GameScreen(game, "frmYearbook", "Yearbook") {
    lstpage.EmptyText = "Nothing is written of this year.";
    cmbsection.Filters = true;
    txtyear.Brief = true;
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Columns({ui::Field("Year", cmbyear),
                                              ui::Field("Section", cmbsection), ui::Spacer()}),
                                 txtyear, ui::Grow(lstpage)}),
                  &lblfacts, {&cmdolder, &cmdnewer, &cmdpage});
  }

  /// The latest year that has ended, or the running one.
  void Load() override {
    Read();
    for (const int year : YearsOfBook(*past_)) cmbyear.Add(std::to_string(year), year);
    cmbyear.Select(cmbyear.Count() > 1 ? 2 : 1);
    cmbyear_Pick();
  }
  void Return() override {
    Read();
    ShowRows();
  }

 private:
  void Read() {
    past_ = std::make_unique<Ledger>(PastOf(world()));
    if (cmbyear.Key() != 0) page_ = PageOfYear(*past_, cmbyear.Key());
  }

  void cmbyear_Pick() {
    page_ = PageOfYear(*past_, cmbyear.Key());
    const std::string before = cmbsection.Text.Get();
    cmbsection.Clear();
    cmbsection.Add("All sections");
    cmbsection.Select(1);
    for (const YearSection& section : page_) {
      cmbsection.Add(section.Title, cmbsection.Count());
      if (section.Title == before) cmbsection.Select(cmbsection.Count());
    }
    ShowRows();
  }

  void ShowRows() {
    rows_.clear();
    std::vector<ui::ListBox::Row> rows;
    for (const YearSection& section : page_) {
      if (cmbsection.Key() != 0 && section.Title != cmbsection.Text.Get()) continue;
      for (const YearRow& row : section.Rows) {
        rows_.push_back(row);
        rows.push_back({{{section.Title, ui::Tone::Muted}, row.Who, row.Figure, row.What},
                        static_cast<int>(rows_.size())});
      }
    }
    lstpage.Fill(std::move(rows), false);
    const int year = cmbyear.Key();
    const bool isOver = year < YearOf(world().Today());
    txtyear.Write(StoryOfYear(page_, year, isOver));
    lblfacts.Text = isOver ? "The year " + std::to_string(year) + "." : "The year is not over yet.";
    EnableUnless(cmdolder, cmbyear.Selected() < cmbyear.Count() ? "" : "There is no older page.");
    EnableUnless(cmdnewer, cmbyear.Selected() > 1 ? "" : "There is no newer page.");
    ShowButtons();
  }

  void Turn(int step) {
    cmbyear.Select(cmbyear.Selected() + step);
    cmbyear_Pick();
  }

  const YearRow* RowAt(int key) const {
    return key >= 1 && key <= static_cast<int>(rows_.size())
               ? &rows_[static_cast<std::size_t>(key - 1)]
               : nullptr;
  }
  ui::Drawing FaceAt(int key) const {
    const YearRow* row = RowAt(key);
    return row && row->Uid != 0 ? FaceOf(game_.World(), row->Uid) : ui::Drawing();
  }
  void ShowButtons() {
    const YearRow* row = RowAt(lstpage.Key());
    EnableUnless(cmdpage, !row            ? "Choose somebody first."
                          : row->Uid == 0 ? "There is no page of this."
                                          : "");
  }
  void cmdpage_Click() {
    if (const YearRow* row = RowAt(lstpage.Key())) game_.OpenWorker(row->Uid);
  }

  std::unique_ptr<Ledger> past_;
  std::vector<YearSection> page_;
  std::vector<YearRow> rows_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbyear{*this, "cmbyear", &frmYearbook::cmbyear_Pick};
  ui::ComboBox cmbsection{*this, "cmbsection", &frmYearbook::ShowRows};
  ui::Report txtyear{*this, "txtyear"};
  ui::Button cmdolder{*this, "cmdolder", "Year Before", [this] { Turn(1); }};
  ui::Button cmdnewer{*this, "cmdnewer", "Year After", [this] { Turn(-1); }};
  ui::Button cmdpage{*this, "cmdpage", "Open Page", &frmYearbook::cmdpage_Click};
  ui::ListBox lstpage{
      *this,
      "lstpage",
      {{"Section", K::Text, 3},
       {.Title = "Who", .Width = 6, .Draws = [this](int key) { return FaceAt(key); }},
       {"How much", K::Text, 3},
       {"Details", K::Text, 6}},
      &frmYearbook::ShowButtons,
      cmdpage};
};

}  // namespace

SCREEN(frmYearbook)

}  // namespace grapplemont
