#pragma once

#include <QAbstractTableModel>
#include <QStyledItemDelegate>
#include <functional>
#include <span>
#include <vector>

#include "ui/arrangedtable.h"

namespace grapplemont::desktop {

/// The first columns as shown, which stay in place while the others scroll beside them.
struct Pinned {
  int Count = 0;
  int Width = 0;  // of them all; 0 while nothing is scrolled
};

/// The rows of a table as Qt asks for them. Columns are the list's own, rows those shown.
class TableModel : public QAbstractTableModel {
 public:
  TableModel(const ui::ListBox& list, const ui::Table& table) : list_(list), table_(table) {}

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(table_.Rows().size());
  }
  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(list_.Columns().size());
  }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  void Reset() {
    beginResetModel();
    endResetModel();
  }

  const ui::ListBox& List() const { return list_; }
  const ui::Column& Column(int column) const {
    return list_.Columns()[static_cast<std::size_t>(column)];
  }
  const ui::Table& Table() const { return table_; }
  /// What the glossary says of a heading; empty for nothing.
  std::function<std::string(const std::string& title)> MeaningOf;

  Pinned Pin;
  /// Columns that show the numbers of their bars alone.
  std::vector<int> Bare;
  /// In the order shown; none while nothing is scrolled.
  std::span<const int> PinnedColumns() const;
  bool IsPinned(int column) const;

 private:
  QVariant TipOf(int section) const;
  const ui::ListBox& list_;
  const ui::Table& table_;
};

/// Paints the cells: texts, numbers in straight columns, bars, framed tags.
class TableCells : public QStyledItemDelegate {
 public:
  TableCells(const TableModel& model, QObject* parent)
      : QStyledItemDelegate(parent), model_(model) {}

  void SetHover(int row) { hover_ = row; }
  /// Whether the columns that stay are painted, else those that scroll.
  void SetPaintsPinned(bool pinned) { paintsPinned_ = pinned; }
  /// What a cell's hint says beside its text; empty for nothing.
  std::function<QString(const QModelIndex& cell)> HintOf;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
  /// What the ground of a row shows of it.
  void PaintRow(QPainter& painter, const QStyleOptionViewItem& option, int row) const;

 private:
  bool IsLink(const QModelIndex& index) const;
  bool IsBare(int column) const;
  void PaintCell(QPainter& painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const;
  const TableModel& model_;
  int hover_ = -1;
  bool paintsPinned_ = false;
};

/// The width that a cell's contents ask for, with the room at its sides.
int CellWidth(const ui::Cell& cell, const ui::Column& column);
/// The same without the bar that may stand before its number.
int BareWidth(const ui::Cell& cell, const ui::Column& column);
/// How wide the picture before a cell's text is, with its gap; 0 for none.
int DrawnWidth(const ui::Column& column, int key);
bool AlignsRight(ui::ColumnKind kind);

/// In drawn pixels; rows with a sentence below a text are as high as cards.
int RowHeight(const ui::ListBox& list);
inline constexpr int kCellSide = 8;
inline constexpr int kBarRoom = 64;  // of a bar before its number
inline constexpr int kSliver = 28;   // of a column that the table's edge cuts: no words fit less

}  // namespace grapplemont::desktop
