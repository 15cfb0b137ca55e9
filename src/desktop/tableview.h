#pragma once

#include "desktop/controlview.h"
#include "desktop/pieces.h"
#include "desktop/tablegrid.h"

namespace grapplemont::desktop {

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
  /// The search line's row, for a page that has a better place for it.
  QWidget* TakeSearchRow();
  /// Has these stand in the rows, by the rows' keys from 1.
  void SetRowButtons(std::vector<ButtonView*> buttons);
  /// What row buttons are children of.
  QWidget* RowHolder() { return grid_->viewport(); }
  /// Puts the keyboard into the search line if it is there.
  bool FocusSearch();

 protected:
  void Show() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildSearchRow();
  void Connect();
  void ConnectGrid();
  void Act(int shownRow, bool open);
  /// Shows the rows again; the cursor stays on its row.
  void Rearrange();
  void ShowSearchRow();
  void ShowSelection();
  void FitColumns();
  std::vector<int> NaturalWidths() const;
  std::vector<int> LeastWidths(const std::vector<int>& widths, int first, int other) const;
  void ApplyColumns();
  void TakeOrder();
  void RestorePlace();
  void CopyCsv() const;
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
  void AddColumnChoices(QMenu& menu);
  void AddFilterLine(QMenu& menu, int column);
  void MoveColumn(int column, int by);

  std::string id_;
  ui::Table table_;
  TableModel model_;
  TableGrid* grid_;
  QWidget* searchRow_;
  QLineEdit* search_;
  QLabel* count_;
  PushButton* columns_;
  std::vector<ButtonView*> rowButtons_;
  bool arranging_ = false;
  int currentKey_ = 0;
};

}  // namespace grapplemont::desktop
