#pragma once

#include <QStyledItemDelegate>
#include <functional>

#include "desktop/tablemodel.h"

namespace grapplemont::desktop {

/// Paints the cells: texts, numbers in straight columns, bars, framed tags.
class TableCells : public QStyledItemDelegate {
 public:
  TableCells(const TableModel& model, QObject* parent)
      : QStyledItemDelegate(parent), model_(model) {}

  void SetHover(int row) { hover_ = row; }
  /// What a cell's hint says beside its text; empty for nothing.
  std::function<QString(const QModelIndex& cell)> HintOf;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  bool IsLink(const QModelIndex& index) const;
  const TableModel& model_;
  int hover_ = -1;
};

/// The width that a cell's contents ask for, with the room at its sides.
int CellWidth(const ui::Cell& cell, ui::ColumnKind kind);
bool AlignsRight(ui::ColumnKind kind);

inline constexpr int kRowHeight = 33;  // in drawn pixels
inline constexpr int kCellSide = 8;

}  // namespace grapplemont::desktop
