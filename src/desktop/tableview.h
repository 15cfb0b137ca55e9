#pragma once

#include "desktop/controlview.h"
#include "desktop/pieces.h"
#include "desktop/tablegrid.h"

namespace grapplemont::desktop {

/// Toolkit numbers as places of a vector.
inline std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

// Rows that can be overseen without a search line, and those of records that can be opened.
inline constexpr int kWorthSearching = 12, kRecordsWorthSearching = 8;

class ButtonView;
class PushButton;

/// A ListBox: the grid, a search line above it once it is worth one, and the menus that filter and
/// choose columns.
class TableView : public ViewOf<QWidget, ui::ListBox> {
 public:
  TableView(ui::ListBox& list, Stage& stage, QWidget* parent);
  QWidget* FocusTarget() override { return grid_; }
  /// Keeps what the player has made of the table.
  void Leave() override;
  /// Whether it may come to have rows enough for a search line.
  bool CanSearch() const { return control_.Room >= kWorthSearching || !control_.Views.empty(); }
  /// The search line's row, for a card whose heading stands in the line above the table.
  QWidget* TakeSearchRow();
  /// Has these stand in the rows, by the rows' keys from 1.
  void SetRowButtons(std::vector<ButtonView*> buttons);
  /// What row buttons are children of.
  QWidget* RowHolder() { return grid_->viewport(); }
  /// Puts the keyboard into the search line if it is there.
  bool FocusSearch();
  /// Whether a row is to be chosen here and none has been.
  bool WaitsForChoice() const;
  /// Chooses the cursor's row, without a cursor the first; false where nothing more is to be
  /// chosen.
  bool ChooseCurrent();
  /// Shows all rows again; false when nothing filtered.
  bool ClearFilters();
  /// As the player has arranged it; nullptr for a moment while the list has changed.
  const ui::Table* Arranged() const { return table_.Follows() ? &table_ : nullptr; }

 protected:
  void Show() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildSearchRow();
  void BuildFilterRow();
  void Connect();
  void ConnectGrid();
  void Act(int shownRow, bool open);
  // Of a list that can have several rows, in tablemany.cpp.
  void AddRow(int shownRow);
  void ReachRow(int shownRow);
  void PickAll();
  /// Nobody acts on rows that they do not see: of several those seen stay chosen, else the first
  /// seen is chosen instead.
  void DropUnseen();
  void PickShown(const std::vector<int>& shownRows);
  /// Shows the rows again; the cursor stays on its row.
  void Rearrange();
  void Refilter();
  void ShowSearchRow();
  void ShowFilterRow();
  void ShowSelection();
  void FitColumns();
  const std::vector<int>& NaturalWidths();
  std::vector<int> MeasuredWidths() const;
  void FitHint();
  bool IsText(std::size_t place) const;
  bool IsTags(std::size_t place) const;   // one or several in a cell
  bool IsWords(std::size_t place) const;  // texts and tags
  int HeadingWidth(std::size_t place) const;
  std::size_t SentencePlace(const std::vector<int>& widths) const;
  bool IsEmpty(int column) const;
  int DropEmpty(int room, std::vector<int>& widths) const;
  int PinnedIn(const std::vector<int>& widths) const;
  void SqueezeTexts(int missing, std::vector<int>& widths);
  int BareWidthOf(int column) const;
  int DropBars(int missing, std::vector<int>& widths);
  void ScrollRest(const std::vector<int>& asked, std::vector<int>& widths);
  void ApplyColumns();
  void TakeOrder();
  void RestorePlace();
  void BeginAtTop();
  std::string Csv() const;
  bool SeveralChosen() const;
  void CopyCsv() const;
  void SaveCsv();
  void PlaceRowButtons();

  // Names in cells and menus, in tablemenu.cpp.
  struct NamedLink {
    QString Words;
    ui::Handler Open;
  };
  void ConnectLinks();
  /// Those of a cell as shown, in their order.
  std::vector<NamedLink> LinksOf(int shownRow, int listColumn) const;
  /// Those of all shown cells of a row, each once, those of the cell first.
  std::vector<NamedLink> LinksOfRow(const QModelIndex& cell) const;

  void OpenHeadingMenu(const QPoint& at);
  void OpenColumnsMenu(const QPoint& globally);
  void OpenRowMenu(const QPoint& at);
  QAction* AddChange(QMenu& menu, const QString& words, const std::function<void()>& change);
  void AddActs(QMenu& menu);
  /// Whether no column is hidden.
  bool ShowsAll() const {
    return static_cast<int>(table_.Columns().size()) == model_.columnCount();
  }
  void AddViews(QMenu& menu);
  void AddColumnChoices(QMenu& menu);
  void AddTableActs(QMenu& menu);
  void SaveView();
  void PressAct(ui::Button& button, ui::ComboBox* box, int row);
  void AddMeaning(QMenu& menu, int column, const QString& words);
  void AddHeadings(QMenu& menu);
  void OpenFilter(int column);
  void AddFilterLine(QMenu& menu, int column);
  void MoveColumn(int column, int by);

  const QString place_;  // where the table's state is kept
  ui::Table table_;
  TableModel model_;
  TableGrid* grid_;
  QWidget* searchRow_;
  QLineEdit* search_;
  PushButton* columns_;
  QWidget* filterRow_;
  QLabel* filtered_;
  PushButton* clear_;
  std::vector<ButtonView*> rowButtons_;
  // What the contents ask for, kept while the page is laid out around them.
  std::vector<int> natural_;
  int naturalScale_ = 0;
  bool arranging_ = false;
  bool isNew_ = true;       // its grid has just been given the rows
  bool hasChosen_ = false;  // the player, in this view: whom they have chosen stays in sight
  int currentKey_ = 0;
  int anchorKey_ = 0;  // of the row that was picked last, from which Shift reaches
};

}  // namespace grapplemont::desktop
