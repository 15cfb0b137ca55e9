#include "desktop/emptytables.h"

#include <QScrollArea>
#include <algorithm>

#include "desktop/tablegrid.h"

namespace grapplemont::desktop {

namespace {

struct Growing {
  int EmptyTables = 0, Others = 0;
};

void CountGrowing(const QLayoutItem& item, Growing& found);

void CountGrowing(const QLayout& layout, Growing& found) {
  for (int i = 0; i < layout.count(); ++i) CountGrowing(*layout.itemAt(i), found);
}

void CountGrowing(const QLayoutItem& item, Growing& found) {
  auto& part = const_cast<QLayoutItem&>(item);
  if (const QLayout* layout = part.layout()) return CountGrowing(*layout, found);
  const QWidget* widget = item.widget();
  if (!widget || widget->isHidden()) return;
  if (const auto* grid = dynamic_cast<const TableGrid*>(widget)) {
    ++(grid->model()->rowCount() == 0 ? found.EmptyTables : found.Others);
  } else if (const auto* area = qobject_cast<const QScrollArea*>(widget)) {
    if (area->widget() && area->widget()->layout()) CountGrowing(*area->widget()->layout(), found);
  } else if (widget->layout()) {
    CountGrowing(*widget->layout(), found);
  } else if (widget->sizePolicy().expandingDirections().testFlag(Qt::Vertical) &&
             widget->minimumHeight() != widget->maximumHeight()) {
    ++found.Others;
  }
}

bool HoldsEmptyTablesAlone(const QLayoutItem& item) {
  Growing found;
  CountGrowing(item, found);
  return found.EmptyTables > 0 && found.Others == 0;
}

}  // namespace

void LetEmptyTablesYield(QBoxLayout& column, std::vector<int>& shares) {
  const auto count = static_cast<std::size_t>(column.count());
  for (std::size_t i = shares.size(); i < count; ++i)
    shares.push_back(column.stretch(static_cast<int>(i)));
  std::vector<bool> yields(count);
  bool isWanted = false;
  for (std::size_t i = 0; i < count; ++i) {
    const QLayoutItem& item = *column.itemAt(static_cast<int>(i));
    if (shares[i] == 0 || item.isEmpty()) continue;
    yields[i] = HoldsEmptyTablesAlone(item);
    isWanted = isWanted || !yields[i];
  }
  for (std::size_t i = 0; i < count; ++i)
    if (const int share = yields[i] && isWanted ? 0 : shares[i];
        column.stretch(static_cast<int>(i)) != share)
      column.setStretch(static_cast<int>(i), share);
}

}  // namespace grapplemont::desktop
