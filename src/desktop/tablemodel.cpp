#include "desktop/tablemodel.h"

#include "desktop/letters.h"

namespace grapplemont::desktop {

int TableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.Rows().size());
}

int TableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(list_.Columns().size());
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)) return {};
  return Shown(table_.At(index.row(), index.column()).Text);
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= columnCount()) return {};
  const ui::Column& column = list_.Columns()[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return Shown(column.Title);
  if (role == Qt::ToolTipRole && !column.Tip.empty()) return Shown(column.Tip);
  return {};
}

void TableModel::Reset() {
  beginResetModel();
  endResetModel();
}

}  // namespace grapplemont::desktop
