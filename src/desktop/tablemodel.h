#pragma once

#include <QAbstractTableModel>

#include "ui/table.h"

namespace grapplemont::desktop {

/// The rows of a table as Qt asks for them. Columns are the list's own, rows those shown.
class TableModel : public QAbstractTableModel {
 public:
  TableModel(const ui::ListBox& list, const ui::Table& table) : list_(list), table_(table) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  void Reset();

  const ui::ListBox& List() const { return list_; }
  const ui::Table& Table() const { return table_; }

 private:
  const ui::ListBox& list_;
  const ui::Table& table_;
};

}  // namespace grapplemont::desktop
